#pragma once
// The printers port from the system's print service (CUPS where present).

#include "toolkit/PrinterList.h"

namespace qv {

class QtPrinterList : public PrinterList {
public:
    [[nodiscard]] std::vector<std::string> deviceNames() const override;
    [[nodiscard]] std::string defaultDevice() const override;
};

}  // namespace qv
