#pragma once
// The host's side of the component: one clsTask2, the calls that open its
// dialogs, and the answers to its sixteen events.

#include <memory>
#include <string>
#include <vector>

#include <QObject>

namespace qv {

class clsTask2;
class HostReporter;
class HostStore;
struct HostEvent;

class HostSession : public QObject {
    Q_OBJECT
public:
    HostSession(const std::string& folder, HostStore& store, bool interactive, QObject* parent = nullptr);
    ~HostSession() override;

    void newTask(const std::string& projectKey);
    void taskFromCatalog(const std::string& catalogKey);
    // Points the host and the component at another program's folder (a
    // store is installed there when it has none) and starts a fresh session.
    void useFolder(const std::string& folder);
    // Works one appointment (mode 2): the dialog reads the slot by its key.
    void workAppointment(const std::string& appointmentKey);
    // Adds an hour's appointment to a task through the component's
    // schedule class, starting at the next full hour; its key, or empty.
    std::string scheduleAppointment(const std::string& taskKey);
    // Mode 1: the Existing Task dialog on a stored task.
    void openTask(const std::string& taskKey);
    // Mode 5: the stored task filed in the Task Catalog.
    void saveToCatalog(const std::string& taskKey);
    [[nodiscard]] clsTask2& task() const { return *task_; }
    [[nodiscard]] bool ended() const { return ended_; }
    // The print settings string the component last handed back for a slot.
    [[nodiscard]] std::string printInfo(int32_t slot) const;

signals:
    void listsChanged();
    void logged(const QString& line);

private:
    void start();
    void wire();
    void onRaised(const HostEvent& e);
    void savePrintInfo(const std::string& info, int32_t slot);
    [[nodiscard]] std::vector<std::string> userStuff() const;
    void open(int32_t mode, const std::string& key, const std::string& projectKey,
              const std::string& appointmentKey = {});

    std::string folder_;
    HostStore& store_;
    std::shared_ptr<HostReporter> reporter_;
    std::unique_ptr<clsTask2> task_;
    bool ended_ = false;
};

}  // namespace qv
