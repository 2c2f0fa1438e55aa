#pragma once
// The printers port from the system's print service (CUPS where present).

#include "Export.h"
#include "toolkit/PrinterList.h"

namespace qv {

class QV_EXPORT QtPrinterList : public PrinterList {
public:
    [[nodiscard]] std::vector<std::string> deviceNames() const override;
    [[nodiscard]] std::string defaultDevice() const override;
};

}  // namespace qv
