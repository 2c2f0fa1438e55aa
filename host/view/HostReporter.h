#pragma once
// The host's reporter: the fault is logged like the console reporter's,
// shown in a message box when someone is there to read it, and handed to
// the host's event log.

#include <functional>

#include "store/ConsoleReporter.h"

namespace qv {

class HostReporter : public ConsoleReporter {
public:
    explicit HostReporter(bool interactive) : interactive_(interactive) {}
    void setLog(std::function<void(const std::string&)> log) { log_ = std::move(log); }

    bool report(const FaultReport& fault) override;

private:
    bool interactive_;
    std::function<void(const std::string&)> log_;
};

}  // namespace qv
