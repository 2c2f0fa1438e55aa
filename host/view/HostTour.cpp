#include "view/HostTour.h"

#include <QSettings>

namespace qv {

namespace {
const QString kKey = QStringLiteral("tour/showAtStart");
QString iniOf(const std::string& folder) { return QString::fromStdString(folder + "/QuorvelHost.ini"); }
}  // namespace

bool HostTour::showTourAtStart() const {
    return QSettings(iniOf(folder_), QSettings::IniFormat).value(kKey, true).toBool();
}

void HostTour::setShowTourAtStart(bool show) {
    QSettings(iniOf(folder_), QSettings::IniFormat).setValue(kKey, show);
}

}  // namespace qv
