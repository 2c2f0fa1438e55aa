#include "view/HostSession.h"

#include <exception>

#include <QSettings>

#include "reports/PrintSettings.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
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
    task_->TaskDeleted.connect([this](const std::string& key) { store_.deleteTask(key); });
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

void HostSession::open(int32_t mode, const std::string& key, const std::string& projectKey) {
    // A session that ended on a fault is not used again: the next task gets a fresh one.
    if (ended_) {
        emit logged(QStringLiteral("The last session ended on a fault; starting a new one"));
        start();
    }
    try {
        const int32_t slot = slotFor(mode);
        task_->SetupTask(mode, key, userStuff(), slot, printInfo(slot), {}, projectKey);
    } catch (const std::exception& e) {
        emit logged(QStringLiteral("SetupTask failed: %1").arg(e.what()));
    }
    emit listsChanged();
}

void HostSession::newTask(const std::string& projectKey) { open(0, {}, projectKey); }

void HostSession::taskFromCatalog(const std::string& catalogKey) { open(6, catalogKey, {}); }

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
