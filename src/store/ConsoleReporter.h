#pragma once
// The headless default reporter: the fault goes to standard error and to
// QuorvelErrors.log in the program's folder, then the session must end.

#include <string>

#include "Export.h"
#include "toolkit/Reporter.h"

namespace qv {

class QV_EXPORT ConsoleReporter : public Reporter {
public:
    bool report(const FaultReport& fault) override;

    // One line per fault, as it is written to the log.
    static std::string format(const FaultReport& fault);
};

}  // namespace qv
