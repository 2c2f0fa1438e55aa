#include "view/HostSession.h"

#include <exception>

#include <QSettings>

#include "installer/StoreInstaller.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "store/Connection.h"
#include "toolkit/Ports.h"
#include "view/HostReporter.h"
#include "view/HostStore.h"

namespace qv {

namespace {
// The slot of the host's print settings that the task dialogs use.
constexpr int32_t kTaskDialogSlot = 1;
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
    task_->SetTaskPrintSetting(printInfo(0));
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
        task_->SetupTask(mode, key, userStuff(), kTaskDialogSlot, printInfo(kTaskDialogSlot), {}, projectKey);
    } catch (const std::exception& e) {
        emit logged(QStringLiteral("SetupTask failed: %1").arg(e.what()));
    }
    emit listsChanged();
}

void HostSession::useFolder(const std::string& folder) {
    try {
        installApplicationFolder(folder);
    } catch (const std::exception& e) {
        emit logged(QStringLiteral("Could not prepare %1: %2").arg(QString::fromStdString(folder), e.what()));
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
    emit logged(QStringLiteral("Using the folder %1").arg(QString::fromStdString(folder)));
    emit listsChanged();
}

void HostSession::newTask(const std::string& projectKey) { open(0, {}, projectKey); }

void HostSession::taskFromCatalog(const std::string& catalogKey) { open(6, catalogKey, {}); }

std::string HostSession::printInfo(int32_t slot) const {
    QSettings s(QString::fromStdString(folder_ + "/QuorvelHost.ini"), QSettings::IniFormat);
    return s.value(QStringLiteral("print/%1").arg(slot)).toString().toStdString();
}

void HostSession::savePrintInfo(const std::string& info, int32_t slot) {
    QSettings s(QString::fromStdString(folder_ + "/QuorvelHost.ini"), QSettings::IniFormat);
    s.setValue(QStringLiteral("print/%1").arg(slot), QString::fromStdString(info));
}

}  // namespace qv
