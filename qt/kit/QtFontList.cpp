#include "kit/QtFontList.h"

#include <QFontDatabase>
#include <QStringList>

namespace qv {

std::vector<std::string> QtFontList::fontNames() const {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) names.push_back(family.toStdString());
    return names;
}

}  // namespace qv
