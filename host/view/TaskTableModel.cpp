#include "view/TaskTableModel.h"

#include <QDateTime>

#include "kit/QtText.h"

namespace qv {

namespace {
// The columns' headings, and what an empty cell of each says.
const char* const kHeadings[] = {QV_N("Description"),    QV_N("Project"),     QV_N("Status"),
                                 QV_N("Deadline"),       QV_N("Time Needed"), QV_N("Time Spent"),
                                 QV_N("Possible Points")};
const char* const kNothing[] = {QV_N("no description"),    QV_N("no project"),     QV_N("no status"),
                                QV_N("no deadline"),       QV_N("no time needed"), QV_N("no time spent"),
                                QV_N("no possible points")};

// Hours and minutes, as the host's list writes a duration.
QString minutesText(int32_t minutes) {
    if (minutes <= 0) return {};
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0'));
}
}  // namespace

TaskTableModel::TaskTableModel(QObject* parent) : QAbstractTableModel(parent) {}

void TaskTableModel::setRows(std::vector<TaskRow> rows, QStringList statusWords) {
    beginResetModel();
    rows_ = std::move(rows);
    statusWords_ = std::move(statusWords);
    endResetModel();
}

const TaskRow* TaskTableModel::rowAt(int row) const {
    return row >= 0 && row < rowCount() ? &rows_[static_cast<size_t>(row)] : nullptr;
}

int TaskTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TaskTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

// To the nearest minute: a deadline typed as 17:00 is stored a hair before it.
QString TaskTableModel::deadlineText(const std::string& iso) {
    QDateTime when = QDateTime::fromString(QString::fromStdString(iso).left(23), Qt::ISODateWithMs);
    if (!when.isValid()) when = QDateTime::fromString(QString::fromStdString(iso).left(19), Qt::ISODate);
    // Dates of 1899-12-31 and before stand for no date.
    if (!when.isValid() || when.date() <= QDate(1899, 12, 31)) return {};
    const QTime t = when.time();
    when = QDateTime(when.date(), QTime(t.hour(), t.minute())).addSecs(t.second() * 1000 + t.msec() >= 30000 ? 60 : 0);
    return when.time() == QTime(0, 0) ? when.date().toString(Qt::ISODate)
                                      : when.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

QVariant TaskTableModel::display(const TaskRow& r, int column) const {
    switch (column) {
    case Desc: return QString::fromStdString(r.desc).section('\n', 0, 0);
    case Project: return QString::fromStdString(r.project);
    case Status: return r.status >= 0 && r.status < statusWords_.size() ? statusWords_[r.status] : QString();
    case Deadline: return deadlineText(r.deadline);
    case TimeNeeded: return minutesText(r.timeNeeded);
    case TimeSpent: return minutesText(r.timeSpent);
    case Points: return r.points;
    default: return {};
    }
}

QVariant TaskTableModel::data(const QModelIndex& index, int role) const {
    const TaskRow* r = index.isValid() ? rowAt(index.row()) : nullptr;
    if (!r || index.column() < 0 || index.column() >= ColumnCount) return {};
    if (role == Qt::DisplayRole) return display(*r, index.column());
    // An empty cell still says what it lacks ("no deadline").
    if (role == Qt::AccessibleTextRole && display(*r, index.column()).toString().isEmpty())
        return qtr(kNothing[index.column()]);
    if (role == Qt::UserRole) return QString::fromStdString(r->guid);
    if (role == Qt::TextAlignmentRole && index.column() >= TimeNeeded)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant TaskTableModel::headerData(int section, Qt::Orientation o, int role) const {
    if (o != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section >= 0 && section < ColumnCount ? qtr(kHeadings[section]) : QVariant();
}

}  // namespace qv
