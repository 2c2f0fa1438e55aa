#include "script/ScriptRunner.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <stdexcept>

#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/HelpPages.h"
#include "script/FormChecks.h"
#include "script/GridCommands.h"
#include "script/InteropCommands.h"
#include "installer/StoreInstaller.h"
#include "store/ADOCode.h"
#include "store/PgConnection.h"
#include "reports/PrintSettings.h"
#include "script/PdfPages.h"
#include "script/ScriptHelp.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/DateBox.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/ScriptedUi.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Timer.h"
#include "values/Convert.h"
#include "values/DateSerial.h"

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

const std::map<std::string, int32_t>& answerWords() {
    static const std::map<std::string, int32_t> words{{"ok", vbOK},       {"cancel", vbCancel}, {"abort", vbAbort},
                                                      {"retry", vbRetry}, {"ignore", vbIgnore}, {"yes", vbYes},
                                                      {"no", vbNo}};
    return words;
}

const std::map<std::string, int32_t>& keyWords() {
    static const std::map<std::string, int32_t> words{
        {"enter", vbKeyReturn}, {"return", vbKeyReturn}, {"escape", vbKeyEscape}, {"esc", vbKeyEscape}, {"f1", vbKeyF1}};
    return words;
}

std::string lower(std::string s) {
    for (auto& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

// A date as scripts write it: "2026-03-01", "2026-03-01 09:30[:15]", or a
// date text of the program's own form.
std::optional<double> scriptDate(std::string text) {
    if (auto iso = dateserial::fromIso(text)) return iso;
    if (text.size() >= 16 && text[10] == ' ') {
        text[10] = 'T';
        if (text.size() == 16) text += ":00";
        if (auto iso = dateserial::fromIso(text)) return iso;
        if (auto iso = dateserial::fromIso(text + ".000")) return iso;
    }
    return tryToDate(text);
}

}  // namespace

ScriptRunner::ScriptRunner(std::ostream& out) : out_(out) {
    resetGlobals();
    ui_ = std::make_unique<PrintingUi>(out_, [this](const std::string& text) {
        ++failed_;
        out_ << "FAILED line " << (next_ > 0 ? steps_[next_ - 1].number : 0)
             << ": no answer queued for the message \"" << text << "\"\n";
    });
    clock_ = std::make_unique<FakeClock>();
    reporter_ = std::make_shared<PrintingReporter>(out_);
    ports().ui = ui_.get();
    ports().clock = clock_.get();
    ports().reporter = reporter_.get();
    help_ = std::make_unique<ScriptHelp>(out_);
}

ScriptRunner::~ScriptRunner() {
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

int ScriptRunner::run(const std::vector<std::string>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        try {
            auto line = ScriptLine::parse(static_cast<int>(i + 1), lines[i]);
            if (!line.words.empty()) steps_.push_back(std::move(line));
        } catch (const std::exception& e) {
            fail(ScriptLine{static_cast<int>(i + 1), {}}, e.what());
        }
    }
    while (next_ < steps_.size()) runNextStep();
    out_ << passed_ << " passed, " << failed_ << " failed\n";
    return failed_;
}

// Lines run one at a time, also while a dialog is shown: each run queues
// the next one first, so a dialog opened by this line takes the rest.
void ScriptRunner::runNextStep() {
    if (next_ >= steps_.size()) return;
    const ScriptLine& line = steps_[next_++];
    if (next_ < steps_.size()) ui_->queueAction([this] { runNextStep(); });
    try {
        step(line);
    } catch (const std::exception& e) {
        fail(line, e.what());
    }
}

void ScriptRunner::step(const ScriptLine& line) {
    static const std::map<std::string, Command> commands{
        {"home", &ScriptRunner::cmdHome},     {"sql", &ScriptRunner::cmdSql},
        {"mop", &ScriptRunner::cmdMop},       {"setup", &ScriptRunner::cmdSetup},
        {"type", &ScriptRunner::cmdType},     {"click", &ScriptRunner::cmdClick},
        {"key", &ScriptRunner::cmdKey},       {"close", &ScriptRunner::cmdClose},
        {"answer", &ScriptRunner::cmdAnswer}, {"advance", &ScriptRunner::cmdAdvance},
        {"expect", &ScriptRunner::cmdExpect}, {"resize", &ScriptRunner::cmdResize},
        {"drag", &ScriptRunner::cmdDrag},     {"clock", &ScriptRunner::cmdClock},
        {"settings-file", &ScriptRunner::cmdSettingsFile}};
    if (GridCommands::handles(lower(line.word(0)))) return GridCommands::run(activeForm(), line);
    if (InteropCommands::handles(line.word(0))) {
        ensureStore();
        return interop_.run(folder_, line, out_);
    }
    auto it = commands.find(lower(line.word(0)));
    if (it == commands.end()) throw std::invalid_argument("unknown command \"" + line.word(0) + "\"");
    (this->*(it->second))(line);
}

void ScriptRunner::fail(const ScriptLine& line, const std::string& why) {
    ++failed_;
    out_ << "FAILED line " << line.number << ": " << why << "\n";
}

void ScriptRunner::ensureStore() {
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

void ScriptRunner::cmdHome(const ScriptLine& l) {
    if (!folder_.empty()) throw std::invalid_argument("home must come before the store is used");
    folder_ = l.word(1);
    installApplicationFolder(folder_);
    g().AppPath = folder_;
}

void ScriptRunner::cmdSql(const ScriptLine& l) {
    ensureStore();
    StoreFile(storePath()).exec(l.word(1));
}

clsTask2& ScriptRunner::task() {
    if (task_) return *task_;
    task_ = std::make_unique<clsTask2>();
    task_->setTempErrReport(reporter_);
    task_->Raised.connect([this](const HostEvent& e) {
        events_.push_back(e);
        out_ << "event " << e.name;
        for (const auto& a : e.args) out_ << " \"" << a << "\"";
        out_ << "\n";
    });
    return *task_;
}

void ScriptRunner::cmdMop(const ScriptLine& l) {
    ensureStore();
    task().SetMOP(l.word(1));
}

// setup MODE [task=KEY] [ta=KEY] [project=KEY] [dialog=N] [print=TEXT]
void ScriptRunner::cmdSetup(const ScriptLine& l) {
    ensureStore();
    std::map<std::string, std::string> args;
    for (std::size_t i = 2; i < l.words.size(); ++i) {
        const auto& w = l.words[i];
        const auto eq = w.find('=');
        if (eq == std::string::npos) throw std::invalid_argument("setup takes name=value words: " + w);
        args[lower(w.substr(0, eq))] = w.substr(eq + 1);
    }
    const std::vector<std::string> ustuff{"1", "Script User", "", "", "", ""};
    const int32_t dialog = args.count("dialog") ? static_cast<int32_t>(toLong(args["dialog"])) : 0;
    // Without print= the dialog gets the whole default string a host would give.
    const std::string print = args.count("print") ? args["print"] : PrintSettings::defaults(dialog);
    task().SetupTask(static_cast<int32_t>(toLong(l.word(1))), args["task"], ustuff, dialog, print, args["ta"],
                     args["project"]);
}

Form& ScriptRunner::activeForm() const {
    auto forms = Form::openForms();
    for (auto it = forms.rbegin(); it != forms.rend(); ++it)
        if ((*it)->visible()) return **it;
    throw std::runtime_error("no dialog is shown");
}

// type TARGET TEXT: an editor, a date box (a date text) or sheet.KEY.
void ScriptRunner::cmdType(const ScriptLine& l) {
    Form& form = activeForm();
    const auto& target = l.word(1);
    const auto text = l.word(2);
    if (auto* ed = form.editor(target)) {
        ed->userEdit(text);
    } else if (auto* box = form.dateBox(target)) {
        const auto serial = text.empty() ? std::optional<double>(1.0) : scriptDate(text);
        if (!serial) throw std::invalid_argument("not a date: " + text);
        box->userSetValue(*serial);
    } else {
        // As the user types into a tool and leaves it; a tool that refuses
        // the edit keeps its text.
        Sheet* sheet = nullptr;
        Tool& tool = FormChecks::toolOf(form, target, &sheet);
        if (!sheet->beginEdit(tool)) {
            out_ << "note: " << target << " takes no typing\n";
            return;
        }
        sheet->userEdit(tool, text);
        sheet->endEdit(tool);
    }
}

void ScriptRunner::cmdClick(const ScriptLine& l) {
    Sheet* sheet = nullptr;
    Tool& tool = FormChecks::toolOf(activeForm(), l.word(1), &sheet);
    sheet->click(tool);
}

void ScriptRunner::cmdKey(const ScriptLine& l) {
    const auto word = lower(l.word(1));
    auto it = keyWords().find(word);
    const int32_t code = it != keyWords().end() ? it->second : static_cast<int32_t>(toLong(word));
    activeForm().keyDown(code, 0);
}

void ScriptRunner::cmdClose(const ScriptLine&) { activeForm().requestClose(); }

void ScriptRunner::cmdAnswer(const ScriptLine& l) {
    auto it = answerWords().find(lower(l.word(1)));
    if (it == answerWords().end()) throw std::invalid_argument("answer yes, no, ok, cancel, retry, abort or ignore");
    ui_->queueAnswer(it->second);
}

void ScriptRunner::cmdAdvance(const ScriptLine& l) { clock_->advance(toLong(l.word(1))); }

namespace {
const std::map<std::string, int32_t>& windowStates() {
    static const std::map<std::string, int32_t> words{
        {"normal", vbNormal}, {"minimized", vbMinimized}, {"maximized", vbMaximized}};
    return words;
}
}  // namespace

// resize LEFT TOP WIDTH HEIGHT [normal|minimized|maximized]: the user moves
// or sizes the dialog's window (twips).
void ScriptRunner::cmdResize(const ScriptLine& l) {
    Form::Geometry geo;
    geo.left = static_cast<int32_t>(toLong(l.word(1)));
    geo.top = static_cast<int32_t>(toLong(l.word(2)));
    geo.width = static_cast<int32_t>(toLong(l.word(3)));
    geo.height = static_cast<int32_t>(toLong(l.word(4)));
    if (l.words.size() > 5) {
        auto it = windowStates().find(lower(l.word(5)));
        if (it == windowStates().end()) throw std::invalid_argument("a window is normal, minimized or maximized");
        geo.state = it->second;
    }
    activeForm().userResized(geo);
}

// drag SPLITTER PANE HEIGHT: the user drags a splitter bar so that the pane
// (by index) gets the height in twips, and lets go.
void ScriptRunner::cmdDrag(const ScriptLine& l) {
    Splitter* split = activeForm().splitter(l.word(1));
    if (!split) throw std::invalid_argument("no splitter " + l.word(1));
    split->setPaneHeight(static_cast<int32_t>(toLong(l.word(2))), static_cast<int32_t>(toLong(l.word(3))));
    split->userEndDrag();
}

// clock YYYY-MM-DD [HH:MM[:SS]]: the fake clock's date and time.
void ScriptRunner::cmdClock(const ScriptLine& l) {
    const auto serial = scriptDate(l.rest(1));
    if (!serial) throw std::invalid_argument("not a date and time: " + l.rest(1));
    clock_->setNow(*serial);
}

// settings-file "TEXT": writes QuorvelSettings.txt in the program's folder.
void ScriptRunner::cmdSettingsFile(const ScriptLine& l) {
    ensureStore();
    std::ofstream file(std::filesystem::path(folder_) / "QuorvelSettings.txt", std::ios::binary | std::ios::trunc);
    file << l.word(1);
    if (!file) throw std::runtime_error("cannot write QuorvelSettings.txt");
}

void ScriptRunner::cmdExpect(const ScriptLine& l) {
    const auto what = lower(l.word(1));
    if (FormChecks::handles(what)) return expectOnForm(l);
    if (what == "event") return expectEvent(l, true);
    if (what == "no-event") return expectEvent(l, false);
    if (what == "message") return expectMessage(l);
    if (what == "row") return expectRow(l, false);
    if (what == "rows") return expectRow(l, true);
    if (what == "form") return expectForm(l);
    if (what == "no-message") return expectNoMessage(l);
    if (what == "help") return expectHelp(l, false);
    if (what == "help-page") return expectHelp(l, true);
    if (what == "cell" || what == "gridrows") return expectGrid(l);
    if (what == "report") return expectReport(l, true);
    if (what == "no-report") return expectReport(l, false);
    if (what == "pdfpages") return expectPdfPages(l);
    if (InteropCommands::checks(what)) return expectFile(l);
    throw std::invalid_argument(
        "expect event, no-event, message, no-message, tool, absent, checked, editor, date, caption, window, tab, row, "
        "rows, form, cell, gridrows, help, help-page, report, no-report, pdfpages, interop or file");
}

// expect interop TEXT / expect file FILE TEXT
void ScriptRunner::expectFile(const ScriptLine& l) {
    const std::string why = interop_.check(folder_, l);
    if (why.empty()) return pass();
    fail(l, why);
}

// expect event NAME [ARG...]: the next such event after the last one matched.
void ScriptRunner::expectEvent(const ScriptLine& l, bool present) {
    const auto& name = l.word(2);
    std::vector<std::string> args(l.words.begin() + std::min<std::size_t>(3, l.words.size()), l.words.end());
    for (std::size_t i = eventCursor_; i < events_.size(); ++i) {
        if (events_[i].name != name || (!args.empty() && events_[i].args != args)) continue;
        if (!present) return fail(l, "the event " + name + " was raised");
        eventCursor_ = i + 1;
        return pass();
    }
    if (present) return fail(l, "no event " + name + (args.empty() ? "" : " with " + l.rest(3)));
    pass();
}

// expect message TEXT [title=TITLE] [style=N]: the next such message box.
void ScriptRunner::expectMessage(const ScriptLine& l) {
    std::optional<std::string> title;
    std::optional<int32_t> style;
    for (std::size_t i = 3; i < l.words.size(); ++i) {
        const auto& w = l.words[i];
        if (w.rfind("title=", 0) == 0) title = w.substr(6);
        else if (w.rfind("style=", 0) == 0) style = static_cast<int32_t>(toLong(w.substr(6)));
        else throw std::invalid_argument("expect message TEXT [title=TITLE] [style=N]");
    }
    const auto& msgs = ui_->messages();
    for (std::size_t i = messageCursor_; i < msgs.size(); ++i) {
        if (msgs[i].text != l.word(2)) continue;
        messageCursor_ = i + 1;
        if (title && msgs[i].title != *title)
            return fail(l, "the message's title is \"" + msgs[i].title + "\", not \"" + *title + "\"");
        if (style && msgs[i].style != *style)
            return fail(l, "the message's style is " + std::to_string(msgs[i].style) + ", not " + std::to_string(*style));
        return pass();
    }
    fail(l, "no message \"" + l.word(2) + "\"");
}

// expect no-message [TEXT]: no message box (with that text) since the last matched.
void ScriptRunner::expectNoMessage(const ScriptLine& l) {
    const auto& msgs = ui_->messages();
    for (std::size_t i = messageCursor_; i < msgs.size(); ++i)
        if (l.words.size() < 3 || msgs[i].text == l.word(2)) return fail(l, "a message was shown: " + msgs[i].text);
    pass();
}

void ScriptRunner::expectOnForm(const ScriptLine& l) {
    const std::string why = FormChecks::check(activeForm(), l);
    if (why.empty()) return pass();
    fail(l, why);
}

// expect cell ROW COLUMN VALUE / expect gridrows N
void ScriptRunner::expectGrid(const ScriptLine& l) {
    const std::string why = GridCommands::check(activeForm(), l);
    if (why.empty()) return pass();
    fail(l, why);
}

// expect row "SELECT ..." VALUE: the first column of the first row.
// expect rows "SELECT ..." N: the number of rows.
void ScriptRunner::expectRow(const ScriptLine& l, bool count) {
    const auto sql = count ? "SELECT COUNT(*) FROM (" + l.word(2) + ") AS counted" : l.word(2);
    const auto actual = queryOne(sql);
    if (actual == l.word(3)) return pass();
    fail(l, "the store gives \"" + actual + "\", not \"" + l.word(3) + "\"");
}

// expect form NAME | none: which dialog is shown now.
void ScriptRunner::expectForm(const ScriptLine& l) {
    std::string shown = "none";
    try {
        shown = activeForm().name();
    } catch (const std::runtime_error&) {
    }
    if (shown == l.word(2)) return pass();
    fail(l, "the dialog shown is " + shown + ", not " + l.word(2));
}

// expect help TOPIC TITLE: the help pop-up shows the topic under the title.
// expect help-page FILE: its pane shows the page ("" for an empty pane).
void ScriptRunner::expectHelp(const ScriptLine& l, bool page) {
    const std::string why = page ? help_->checkPage(l.word(2)) : help_->checkTopic(toLong(l.word(2)), l.word(3));
    if (why.empty()) return pass();
    fail(l, why);
}

// expect report FILE TEXT: the report file written under "Quorvel Reports/" holds TEXT.
// expect no-report FILE: no such report file was written.
void ScriptRunner::expectReport(const ScriptLine& l, bool present) {
    std::ifstream in(reportPath(l.word(2)), std::ios::binary);
    if (!present) {
        if (!in) return pass();
        return fail(l, "the report " + l.word(2) + " was written");
    }
    if (!in) return fail(l, "no report " + l.word(2));
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (text.find(l.word(3)) != std::string::npos) return pass();
    fail(l, "the report " + l.word(2) + " does not hold \"" + l.word(3) + "\"");
}

// expect pdfpages FILE N: the PDF printed beside the report has N pages.
void ScriptRunner::expectPdfPages(const ScriptLine& l) {
    const int pages = pdfPageCount(reportPath(l.word(2)));
    if (pages < 0) return fail(l, "no PDF " + l.word(2));
    if (std::to_string(pages) == l.word(3)) return pass();
    fail(l, l.word(2) + " has " + std::to_string(pages) + " pages, not " + l.word(3));
}

std::string ScriptRunner::reportPath(const std::string& file) const {
    return (std::filesystem::path(folder_) / "Quorvel Reports" / file).string();
}

std::string ScriptRunner::queryOne(const std::string& sql) const {
    bool isNull = false;
    const auto value = StoreFile(storePath(), true).firstValue(sql, &isNull);
    if (!value) return "(no row)";
    return isNull ? "(null)" : *value;
}

std::string ScriptRunner::storePath() const { return storeLocationOf(folder_); }

}  // namespace qv
