#include "print/QtPrinterList.h"

#include <QPrinterInfo>

namespace qv {

std::vector<std::string> QtPrinterList::deviceNames() const {
    std::vector<std::string> names;
    for (const QString& n : QPrinterInfo::availablePrinterNames()) names.push_back(n.toStdString());
    return names;
}

std::string QtPrinterList::defaultDevice() const {
    return QPrinterInfo::defaultPrinterName().toStdString();
}

}  // namespace qv
