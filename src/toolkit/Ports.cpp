#include "toolkit/Ports.h"

#include "toolkit/Failure.h"

namespace qv {

Ports& ports() {
    static Ports p;
    return p;
}

Ui& ui() {
    if (!ports().ui) throw Failure(err::ObjectRequired, "No user interface is installed");
    return *ports().ui;
}

Clock& clock() {
    if (!ports().clock) throw Failure(err::ObjectRequired, "No clock is installed");
    return *ports().clock;
}

}  // namespace qv
