#include "session/globals/SessionGlobals.h"

namespace qv {

namespace {
SessionGlobals& instance() {
    static SessionGlobals globals;
    return globals;
}
}  // namespace

SessionGlobals& g() { return instance(); }

void resetGlobals() { instance() = SessionGlobals{}; }

}  // namespace qv
