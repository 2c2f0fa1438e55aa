#include "kit/QtLocaleInfo.h"

#include <QLocale>

namespace qv {

int32_t QtLocaleInfo::measurementSystem() const {
    return QLocale::system().measurementSystem() == QLocale::MetricSystem ? 0 : 1;
}

}  // namespace qv
