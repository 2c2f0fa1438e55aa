#pragma once
// The host's own reads of the shared store: the task list, the catalog, the
// projects and the status words; and the removal of a deleted task's rows.
// The store is the one the folder's settings file names: the store file,
// or a team store on a server.

#include <cstdint>
#include <string>
#include <vector>

namespace qv {

struct TaskRow {
    std::string guid;
    std::string desc;
    std::string project;
    std::string projectKey;
    int32_t status = -1;
    std::string deadline;  // ISO text as stored
    int32_t timeNeeded = 0;
    int32_t timeSpent = 0;
    int32_t points = 0;
    bool current = false;
    int32_t imp = 0;
    int32_t diff = 0;
};

// One Task Appointment of a task, as the host lists them.
struct AppointmentRow {
    std::string key;
    std::string start;  // ISO text as stored
    std::string end;
    std::string desc;
    bool worked = false;
};

struct NamedRow {
    std::string key;
    std::string name;
};

class HostStore {
public:
    explicit HostStore(std::string folder);

    // The store file's path or the server's URI.
    [[nodiscard]] std::string location() const;
    [[nodiscard]] const std::string& folder() const { return folder_; }
    // Reads another program's folder from now on.
    void setFolder(std::string folder) { folder_ = std::move(folder); }
    // Tasks in the host's order; only current ones, or one project's, when asked.
    [[nodiscard]] std::vector<TaskRow> tasks(bool currentOnly, const std::string& projectKey = {}) const;
    [[nodiscard]] std::vector<NamedRow> catalog() const;
    [[nodiscard]] std::vector<NamedRow> projects() const;
    [[nodiscard]] std::vector<std::string> statusList() const;
    // A task's appointments, earliest first.
    [[nodiscard]] std::vector<AppointmentRow> appointments(const std::string& taskKey) const;
    // The rows the host owns for a task that the component deleted.
    void deleteTask(const std::string& guid) const;

private:
    std::string folder_;
};

}  // namespace qv
