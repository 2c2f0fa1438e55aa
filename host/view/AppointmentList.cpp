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
        const QString end = TaskTableModel::deadlineText(a.end).section(' ', 1);
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
