#include "view/HostSession.h"

#include <algorithm>
#include <exception>

#include <QDateTime>

#include <QSettings>

#include "app/AppFolder.h"
#include "installer/StoreInstaller.h"
#include "kit/QtText.h"
#include "reports/PrintSettings.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsTaskSchedule.h"
#include "values/types/CCreateGuid.h"
#include "values/types/DateSerial.h"
#include "toolkit/Ports.h"
#include "view/HostReporter.h"
#include "view/HostStore.h"

namespace qv {

namespace {
// The slots of the host's print settings: the help pages', then one per
// task dialog. Slot 1 is the Existing Task's, the one with a schedule.
constexpr int32_t kHelpSlot = 0;
constexpr int32_t kExistingTaskSlot = 1;
constexpr int32_t kNewTaskSlot = 2;
constexpr int32_t kAppointmentSlot = 3;

int32_t slotFor(int32_t mode) {
    if (mode == 1 || mode == 5) return kExistingTaskSlot;
    if (mode == 2) return kAppointmentSlot;
    return kNewTaskSlot;
}
// The no-particular-project default the host keeps.
constexpr const char* kDefaultProject = "";
}  // namespace

HostSession::HostSession(const std::string& folder, HostStore& store, bool interactive, QObject* parent)
    : QObject(parent),
      folder_(folder),
      store_(store),
      reporter_(std::make_shared<HostReporter>(interactive)) {
    reporter_->setLog([this](const std::string& line) { emit logged(QString::fromStdString(line)); });
    ports().reporter = reporter_.get();
    start();
}

void HostSession::start() {
    task_ = std::make_unique<clsTask2>();
    ended_ = false;
    task_->setTempErrReport(reporter_);
    task_->SetMOP(kDefaultProject);
    task_->SetTaskPrintSetting(printInfo(kHelpSlot));
    wire();
}

HostSession::~HostSession() {
    if (ports().reporter == reporter_.get()) ports().reporter = nullptr;
}

void HostSession::wire() {
    task_->Raised.connect([this](const HostEvent& e) { onRaised(e); });
    task_->TaskDeleted.connect([this](const std::string& key) {
        try {
            store_.deleteTask(key);
        } catch (const std::exception& e) {
            emit logged(qtr("Could not remove the task: %1").arg(e.what()));
        }
    });
    task_->updateMainPrintInfo.connect([this](const std::string& info, int32_t slot) { savePrintInfo(info, slot); });
    task_->GotErrExitNow.connect([this] { ended_ = true; });
}

void HostSession::onRaised(const HostEvent& e) {
    QString line = QStringLiteral("%1 %2").arg(e.number).arg(QString::fromStdString(e.name));
    for (const auto& a : e.args) line += " \"" + QString::fromStdString(a) + "\"";
    emit logged(line);
    // Every event but the opening one may have changed what the lists show.
    if (e.name != "LoadingTask") emit listsChanged();
}

std::vector<std::string> HostSession::userStuff() const {
    return {qEnvironmentVariable("USER", "user").toStdString(), "Quorvel demo host", "", "", "", ""};
}

void HostSession::open(int32_t mode, const std::string& key, const std::string& projectKey,
                       const std::string& appointmentKey) {
    // A session that ended on a fault is not used again: the next task gets a fresh one.
    if (ended_) {
        emit logged(qtr("The last session ended on a fault; starting a new one"));
        start();
    }
    try {
        const int32_t slot = slotFor(mode);
        task_->SetupTask(mode, key, userStuff(), slot, printInfo(slot), appointmentKey, projectKey);
    } catch (const std::exception& e) {
        emit logged(qtr("SetupTask failed: %1").arg(e.what()));
    }
    emit listsChanged();
}

void HostSession::useFolder(const std::string& chosen) {
    const std::string folder = absoluteFolder(chosen);
    try {
        installApplicationFolder(folder);
    } catch (const std::exception& e) {
        emit logged(qtr("Could not prepare %1: %2").arg(QString::fromStdString(folder), e.what()));
        return;
    }
    folder_ = folder;
    store_.setFolder(folder);
    // The component finds its store again from the new folder's settings file.
    g().AppPath = folder;
    g().ConnString.clear();
    g().DBLocation.clear();
    Connection::releaseAll();
    start();
    emit logged(qtr("Using the folder %1").arg(QString::fromStdString(folder)));
    emit listsChanged();
}

void HostSession::newTask(const std::string& projectKey) { open(0, {}, projectKey); }

void HostSession::taskFromCatalog(const std::string& catalogKey) { open(6, catalogKey, {}); }

void HostSession::workAppointment(const std::string& appointmentKey) {
    open(2, appointmentKey, {}, appointmentKey);
}

std::string HostSession::scheduleAppointment(const std::string& taskKey) {
    const auto tasks = store_.tasks(false);
    const auto it = std::find_if(tasks.begin(), tasks.end(), [&](const TaskRow& t) { return t.guid == taskKey; });
    if (it == tasks.end()) return {};
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime start(now.date(), QTime(now.time().hour(), 0));
    const auto serial = [](const QDateTime& t) {
        return Date{dateserial::fromCivil(t.date().year(), t.date().month(), t.date().day(), t.time().hour(),
                                          t.time().minute())};
    };
    const std::string key = CCreateGuid::guid();
    clsTaskSchedule schedule;
    RecordsetPtr rs;
    schedule.SetSQL(queries::appointmentsOfTask(taskKey));
    if (!schedule.GetDataKEY(rs)) return {};
    // Importance before difficulty, a digit each.
    const std::string levels = std::to_string(std::clamp(it->imp, 0, 4)) + std::to_string(std::clamp(it->diff, 0, 4));
    if (!schedule.AddTA(key, taskKey, it->project, it->projectKey, serial(start.addSecs(3600)),
                        serial(start.addSecs(7200)), it->desc, levels))
        return {};
    emit logged(qtr("Scheduled an appointment for \"%1\"").arg(QString::fromStdString(it->desc)));
    emit listsChanged();
    return key;
}
void HostSession::openTask(const std::string& taskKey) { open(1, taskKey, {}); }

void HostSession::saveToCatalog(const std::string& taskKey) { open(5, taskKey, {}); }

// A slot the component never handed back gets the whole default string.
std::string HostSession::printInfo(int32_t slot) const {
    QSettings s(QString::fromStdString(folder_ + "/QuorvelHost.ini"), QSettings::IniFormat);
    const QVariant kept = s.value(QStringLiteral("print/%1").arg(slot));
    return kept.isValid() ? kept.toString().toStdString() : PrintSettings::defaults(slot);
}

void HostSession::savePrintInfo(const std::string& info, int32_t slot) {
    QSettings s(QString::fromStdString(folder_ + "/QuorvelHost.ini"), QSettings::IniFormat);
    s.setValue(QStringLiteral("print/%1").arg(slot), QString::fromStdString(info));
}

}  // namespace qv
