#pragma once
// The host's task list as a table: description, project, status, deadline,
// time needed, time spent and possible points.

#include <vector>

#include <QAbstractTableModel>
#include <QStringList>

#include "view/HostStore.h"

namespace qv {

class TaskTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Desc, Project, Status, Deadline, TimeNeeded, TimeSpent, Points, ColumnCount };

    explicit TaskTableModel(QObject* parent = nullptr);

    void setRows(std::vector<TaskRow> rows, QStringList statusWords);
    [[nodiscard]] const TaskRow* rowAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation o, int role = Qt::DisplayRole) const override;

    // "2024-01-15T17:30:00.000" as the list shows it; empty for no date.
    [[nodiscard]] static QString deadlineText(const std::string& iso);

private:
    [[nodiscard]] QVariant display(const TaskRow& r, int column) const;

    std::vector<TaskRow> rows_;
    QStringList statusWords_;
};

}  // namespace qv
