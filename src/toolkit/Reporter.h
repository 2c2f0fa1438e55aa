#pragma once
// The reporter of the error path: it informs the user and records the
// fault. It raises GotErrExitNow when the program must end.

#include <array>
#include <cstdint>
#include <string>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

struct QV_EXPORT FaultReport {
    std::string project;
    std::string module;
    std::string procedure;
    std::string description;
    int32_t number = 0;
    int32_t line = 0;
    std::array<std::string, 6> ustuff;
    std::string profile;
};

class QV_EXPORT Reporter {
public:
    virtual ~Reporter() = default;
    // The one method; its result is ignored by the component.
    virtual bool report(const FaultReport& fault) = 0;

    Event<> GotErrExitNow;
};

}  // namespace qv
