#include "script/ScriptContext.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "installer/HelpPages.h"
#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "script/ScriptHelp.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/PgConnection.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/ScriptedUi.h"

namespace qv {

namespace {

// Prints message boxes as they are asked; an unanswered one is told and
// answered with its first button instead of stopping the run.
class PrintingUi : public ScriptedUi {
public:
    PrintingUi(std::ostream& out, std::function<void(const std::string&)> unanswered)
        : out_(out), unanswered_(std::move(unanswered)) {}

    int32_t msgBox(const std::string& text, int32_t style, const std::string& title) override {
        out_ << "message [" << title << "] (" << style << "): " << text << "\n";
        if (pendingAnswers() == 0) {
            unanswered_(text);
            queueAnswer(firstButton(style));
        }
        return ScriptedUi::msgBox(text, style, title);
    }

private:
    static int32_t firstButton(int32_t style) {
        switch (style & 7) {
            case vbYesNo:
            case vbYesNoCancel: return vbYes;
            case vbRetryCancel: return vbRetry;
            case vbAbortRetryIgnore: return vbAbort;
            default: return vbOK;
        }
    }
    std::ostream& out_;
    std::function<void(const std::string&)> unanswered_;
};

class PrintingReporter : public Reporter {
public:
    explicit PrintingReporter(std::ostream& out) : out_(out) {}
    bool report(const FaultReport& f) override {
        out_ << "fault " << f.module << "." << f.procedure << " #" << f.number << ": " << f.description << "\n";
        GotErrExitNow();
        return true;
    }

private:
    std::ostream& out_;
};

}  // namespace

ScriptContext::ScriptContext(std::ostream& out, std::function<void(const std::string&)> unanswered) : out_(out) {
    resetGlobals();
    ui_ = std::make_unique<PrintingUi>(out_, std::move(unanswered));
    clock_ = std::make_unique<FakeClock>();
    reporter_ = std::make_shared<PrintingReporter>(out_);
    ports().ui = ui_.get();
    ports().clock = clock_.get();
    ports().reporter = reporter_.get();
    help_ = std::make_unique<ScriptHelp>(out_);
}

ScriptContext::~ScriptContext() {
    task_.reset();
    releaseDeferred();
    help_.reset();
    ports().ui = nullptr;
    ports().clock = nullptr;
    ports().reporter = nullptr;
    if (ownsFolder_) {
        PgConnection::releaseAll();
        dropScratchServerStore(storePath());
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }
}

void ScriptContext::ensureStore() {
    if (!folder_.empty()) return;
    auto base = std::filesystem::temp_directory_path() / "quorvel-script-XXXXXX";
    std::string templ = base.string();
    if (!mkdtemp(templ.data())) throw std::runtime_error("cannot make a temporary folder");
    folder_ = templ;
    ownsFolder_ = true;
    // QV_STORE_URI: the scenario runs on a fresh scratch store of that server.
    if (const char* server = std::getenv("QV_STORE_URI"); server && *server) {
        writeSettingsFile(folder_, makeScratchServerStore(server));
    } else {
        installStore(folder_);
        installSettingsFile(folder_);
    }
    installReportsFolder(folder_);
    installHelpPages(folder_, helpPagesSource());
    g().AppPath = folder_;
}

void ScriptContext::useHome(const std::string& folder) {
    if (!folder_.empty()) throw std::invalid_argument("home must come before the store is used");
    folder_ = folder;
    installApplicationFolder(folder_);
    g().AppPath = folder_;
}

clsTask2& ScriptContext::task() {
    if (task_) return *task_;
    task_ = std::make_unique<clsTask2>();
    task_->setTempErrReport(reporter_);
    task_->Raised.connect([this](const HostEvent& e) {
        events.push_back(e);
        out_ << "event " << e.name;
        for (const auto& a : e.args) out_ << " \"" << a << "\"";
        out_ << "\n";
    });
    return *task_;
}

Form& ScriptContext::activeForm() const {
    auto forms = Form::openForms();
    for (auto it = forms.rbegin(); it != forms.rend(); ++it)
        if ((*it)->visible()) return **it;
    throw std::runtime_error("no dialog is shown");
}

std::string ScriptContext::reportPath(const std::string& file) const {
    return (std::filesystem::path(folder_) / "Quorvel Reports" / file).string();
}

std::string ScriptContext::queryOne(const std::string& sql) const {
    bool isNull = false;
    const auto value = StoreFile(storePath(), true).firstValue(sql, &isNull);
    if (!value) return "(no row)";
    return isNull ? "(null)" : *value;
}

std::string ScriptContext::storePath() const { return storeLocationOf(folder_); }

}  // namespace qv
