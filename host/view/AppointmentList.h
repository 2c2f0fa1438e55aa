#pragma once
// The appointments of the task chosen in the host's list, so that one can
// be worked: start, end, description and whether it was worked.

#include <string>

#include <QListWidget>

namespace qv {

class HostStore;

class AppointmentList : public QListWidget {
    Q_OBJECT
public:
    AppointmentList(HostStore& store, QWidget* parent = nullptr);

    // Shows the task's appointments, keeping the chosen one where it stays.
    void showTask(const std::string& taskKey);
    [[nodiscard]] const std::string& task() const { return task_; }
    // The chosen appointment's key, or empty.
    [[nodiscard]] std::string chosen() const;

private:
    HostStore& store_;
    std::string task_;
};

}  // namespace qv
