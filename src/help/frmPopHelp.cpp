#include "help/frmPopHelp.h"

#include "help/HelpTopics.h"
#include "help/TourPreference.h"
#include "reports/FooterText.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"
#include "values/types/Convert.h"
#include "values/types/International.h"
#include "values/types/TextCase.h"

namespace qv {

namespace {

constexpr const char* kModule = "frmPopHelp";
constexpr const char* kPrintQuestion = QV_N("Print this help topic? It may take a moment or two to prepare.");
constexpr const char* kPreviewQuestion = QV_N("Print Preview this help topic? It may take a moment or two to prepare.");
constexpr const char* kTitlePrefix = "Quorvel -";
// Twips per unit of the margins: inches for US measurement, else centimetres.
constexpr float kTwipsPerInch = 1440.0f;
constexpr float kTwipsPerCm = 567.0f;

std::string withSlash(const std::string& folder) {
    return !folder.empty() && folder.back() == '/' ? folder : folder + "/";
}

// The page, without a place inside it ("#...").
std::string pageOf(const std::string& location) { return location.substr(0, location.find('#')); }

// The page's file name.
std::string fileNameOf(const std::string& location) {
    const std::string page = pageOf(location);
    const auto slash = page.find_last_of('/');
    return slash == std::string::npos ? page : page.substr(slash + 1);
}

// A number of the settings string; a host that never set the string gets
// the engine's defaults instead of a fault.
int32_t wholeOr(const std::string& text, int32_t fallback) { return tryToLong(text).value_or(fallback); }

int32_t twipsOr(const std::string& text, float perUnit) {
    const auto v = tryToDouble(text);
    return roundLong((v ? static_cast<float>(*v) : 1.0f) * perUnit);
}

}  // namespace

frmPopHelp::frmPopHelp(HelpPrinter* printer, TourPreference* tour)
    : Form(kModule), printer_(printer), tour_(tour) {
    addControl("smtAction", smtAction);
    browsePWindow.setPagePicker([this](const std::string& path) { return languages_.pageFor(helpFolder(), path); });
    smtAction.Click.connect([this](Tool& t) { smtAction_Click(t); });
    setCaption(tr("Quorvel Help"));
    smtAction.add(ttButton, "BACK", tr("&Back")).setTip(tr("Go back to the page before"));
    smtAction.add(ttButton, "PRINT", tr("&Print")).setTip(tr("Print this help topic"));
    smtAction.add(ttButton, "PRINTPREVIEW", tr("Print Pre&view")).setTip(tr("Preview this help topic as it prints"));
    smtAction.add(ttSeparator, "S1").setVisible(false);
    Tool& noShow = smtAction.add(ttCheck, "NOSHOW", tr("Show Tour when Application starts"));
    noShow.setTip(tr("Show/don't the Tour when application opens"));
    noShow.setVisible(false);
    smtAction.add(ttButton, "CLOSE", tr("&Close")).setTip(tr("Close this help window"));
}

bool frmPopHelp::setHelpPrinterSettings(const std::string& settings) {
    printSettings_ = settings;
    return true;
}

bool frmPopHelp::Setup(int32_t topic) {
    return trapAs(kProject, kModule, "Setup", [&] {
        const std::string folder = withSlash(g().AppPath);
        if (const auto found = HelpTopics::find(topic)) {
            browsePWindow.Navigate(languages_.pageFor(helpFolder(), folder + found->page));
            setCaption(found->title);
            helpPath_ = found->keptPath;
        }
        const bool tour = topic == kTourTopic;
        smtAction.tool("NOSHOW").setVisible(tour);
        smtAction.tool("S1").setVisible(tour);
        if (tour) {
            rememberedTopic_ = kTourTopic;
            smtAction.tool("NOSHOW").setChecked(tour_ ? tour_->showTourAtStart() : true);
        }
        helpLocation(browsePWindow.LocationURL());
    });
}

void frmPopHelp::smtAction_Click(Tool& t) {
    trapAs(kProject, kModule, "smtAction_Click", [&] {
        const std::string key = TextCase::upper(t.key());
        if (key == "CLOSE")
            closeNow();
        else if (key == "BACK")
            browsePWindow.GoBack();
        else if (key == "PRINT")
            printTopic(false);
        else if (key == "PRINTPREVIEW")
            printTopic(true);
    });
}

// Escape leaves as the Close tool does.
void frmPopHelp::Form_KeyDown(int32_t keyCode, int32_t /*shift*/) {
    trapAs(kProject, kModule, "Form_KeyDown", [&] {
        if (keyCode == vbKeyEscape) closeNow();
    });
}

// The close box tells the owner as well, without reading the tour's tool.
void frmPopHelp::Form_QueryUnload(bool& /*cancel*/, int32_t /*unloadMode*/) {
    trapAs(kProject, kModule, "Form_QueryUnload", [&] { closePop(); });
}

void frmPopHelp::closeNow() {
    if (rememberedTopic_ == kTourTopic && tour_) tour_->setShowTourAtStart(smtAction.tool("NOSHOW").checked());
    closePop();
}

void frmPopHelp::printTopic(bool preview) {
    const int32_t answer = ui().msgBox(tr(preview ? kPreviewQuestion : kPrintQuestion), vbYesNo + vbQuestion, kProgramTitle);
    if (answer != vbYes || !printer_) return;
    const HelpPrintJob job = MakeHelpHTML();
    if (job.page.empty()) return;
    ui().setWaitCursor(true);
    ui().doEvents();
    if (preview)
        printer_->preview(job);
    else
        printer_->print(job);
    ui().setWaitCursor(false);
}

HelpPrintJob frmPopHelp::MakeHelpHTML() const {
    CStringBag bag;
    bag.setContents(printSettings_);
    const float perUnit = getLocalMeasurement() == 1 ? kTwipsPerInch : kTwipsPerCm;
    HelpPrintJob job;
    job.printer = bag.ReadItem("PRINTER");
    job.copies = wholeOr(bag.ReadItem("COPIES"), 1);
    job.paper = bag.ReadItem("PAPER");
    job.marginTop = twipsOr(bag.ReadItem("TOP"), perUnit);
    job.marginBottom = twipsOr(bag.ReadItem("BOTTOM"), perUnit);
    job.marginRight = twipsOr(bag.ReadItem("RIGHT"), perUnit);
    job.marginLeft = twipsOr(bag.ReadItem("LEFT"), perUnit);
    job.headingColor = wholeOr(bag.ReadItem("HCOLOR"), 0);
    job.headingFont = bag.ReadItem("HFONT");
    job.headingSize = wholeOr(bag.ReadItem("HSIZE"), 14);
    (void)bag.ReadItem("HEADING");  // the page's heading is its caption
    job.footerColor = wholeOr(bag.ReadItem("FCOLOR"), 0);
    job.footerFont = bag.ReadItem("FFONT");
    job.footerSize = wholeOr(bag.ReadItem("FSIZE"), 9);
    const double now = clock().now();
    const std::string left = FooterText::forPrint(bag.ReadItem("FLEFT"), now);
    const std::string right = FooterText::forPrint(bag.ReadItem("FRIGHT"), now);
    job.footer = "{newline}{line}{Left}" + left + "{Right}" + right;
    job.heading = caption().rfind(kTitlePrefix, 0) == 0 ? caption().substr(std::string(kTitlePrefix).size()) : caption();
    job.page = pageToPrint();
    job.baseFolder = job.page.empty() ? helpFolder() : job.page.substr(0, job.page.find_last_of('/') + 1);
    return job;
}

std::string frmPopHelp::helpFolder() const {
    const std::string& folder = g().AppPath;
    return folder + (!folder.empty() && folder.back() == '/' ? "help/" : "/help/");
}

// A page of the help folder or of one of its language folders prints as
// shown; any other location by its file name in the help folder.
std::string frmPopHelp::pageToPrint() const {
    if (browsePWindow.hasPage()) {
        const std::string page = pageOf(browsePWindow.LocationURL());
        return page.starts_with(helpFolder()) ? page : helpFolder() + fileNameOf(page);
    }
    return helpPath_.empty() ? std::string() : withSlash(g().AppPath) + helpPath_;
}

}  // namespace qv
