#include "view/AppointmentList.h"

#include "kit/QtText.h"
#include "view/HostStore.h"
#include "view/TaskTableModel.h"

namespace qv {

AppointmentList::AppointmentList(HostStore& store, QWidget* parent) : QListWidget(parent), store_(store) {
    setObjectName("lstAppointments");
}

void AppointmentList::showTask(const std::string& taskKey) {
    const std::string keep = chosen();
    task_ = taskKey;
    QSignalBlocker block(this);
    clear();
    if (taskKey.empty()) return;
    for (const auto& a : store_.appointments(taskKey)) {
        // An end at midnight is kept as a bare date: its time is 00:00, not nothing.
        const QString endText = TaskTableModel::deadlineText(a.end);
        const QString end = endText.contains(' ') ? endText.section(' ', 1)
                                                  : (endText.isEmpty() ? QString() : QStringLiteral("00:00"));
        auto* item = new QListWidgetItem(
            QStringLiteral("%1 - %2  %3%4")
                .arg(TaskTableModel::deadlineText(a.start), end, QString::fromStdString(a.desc),
                     a.worked ? qtr("  (worked)") : QString()),
            this);
        item->setData(Qt::UserRole, QString::fromStdString(a.key));
        if (a.key == keep) setCurrentItem(item);
    }
}

std::string AppointmentList::chosen() const {
    const QListWidgetItem* item = currentItem();
    return item ? item->data(Qt::UserRole).toString().toStdString() : std::string();
}

}  // namespace qv
