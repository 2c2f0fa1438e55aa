#pragma once
// The printers port: the installed printers' device names and the default one.

#include <string>
#include <vector>

#include "Export.h"

namespace qv {

class QV_EXPORT PrinterList {
public:
    virtual ~PrinterList() = default;
    [[nodiscard]] virtual std::vector<std::string> deviceNames() const = 0;
    // Empty when there is no default printer.
    [[nodiscard]] virtual std::string defaultDevice() const = 0;
};

}  // namespace qv
