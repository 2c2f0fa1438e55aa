#pragma once
// Passes the error reporter's GotErrExitNow on to a dialog's own event, for
// as long as the dialog lives.

#include <cstddef>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class Reporter;

class QV_EXPORT ReporterRelay {
public:
    // Listens to the reporter installed in the ports, if any.
    explicit ReporterRelay(Event<>& target);
    ~ReporterRelay();
    ReporterRelay(const ReporterRelay&) = delete;
    ReporterRelay& operator=(const ReporterRelay&) = delete;

private:
    Reporter* reporter_ = nullptr;
    std::size_t id_ = 0;
};

}  // namespace qv
