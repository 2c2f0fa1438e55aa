#include "reports/frmPageSetup.h"

#include <cmath>

#include "reports/FooterText.h"
#include "reports/PrintSettings.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/CColorDialog.h"
#include "toolkit/Clock.h"
#include "toolkit/FontList.h"
#include "toolkit/HelpViewer.h"
#include "toolkit/Ports.h"
#include "toolkit/PrinterList.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"
#include "values/types/Convert.h"
#include "values/types/International.h"
#include "values/types/TaskUtil.h"
#include "values/types/TextCase.h"

namespace qv {

namespace {

const char* const kModule = "frmPageSetup";
constexpr int32_t kHelpTopic = 300;
constexpr int32_t kSmallestSize = 6;
constexpr int32_t kLargestSize = 48;

// What the system profile gives for the default device: "name,driver,port".
std::string defaultDeviceProfile() {
    PrinterList* printers = ports().printers;
    const std::string name = printers ? printers->defaultDevice() : std::string();
    return name.empty() ? std::string(",,,") : name + ",,";
}

std::vector<std::string> splitAt(const std::string& text, char sep) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (;;) {
        const std::size_t at = text.find(sep, from);
        parts.push_back(text.substr(from, at == std::string::npos ? std::string::npos : at - from));
        if (at == std::string::npos) return parts;
        from = at + 1;
    }
}

bool isNumeric(const std::string& text) {
    return !text.empty() && tryToDouble(text).has_value();
}

}  // namespace

frmPageSetup::frmPageSetup() : Form("frmPageSetup") {
    for (int i = 0; i < 5; ++i) {
        Sheet& s = c_.smtPrinting[static_cast<std::size_t>(i)];
        addControl(s.name(), s);
        s.Change.connect([this](Tool& t, const std::string& p) {
            trap(kModule, "smtPrinting_Change", [&] { smtPrinting_Change(t, p); });
        });
        s.Click.connect(
            [this, i](Tool& t) { trap(kModule, "smtPrinting_Click", [&] { smtPrinting_Click(i, t); }); });
    }
    addControl(c_.smtActions.name(), c_.smtActions);
    c_.smtActions.Click.connect(
        [this](Tool& t) { trap(kModule, "smtActions_Click", [&] { smtActions_Click(t); }); });
    for (Label* l : {&c_.Image1, &c_.lblPrint, &c_.lblStatic}) addControl(l->name(), *l);
    setCaption(std::string(kProgramTitle) + " - Page Setup");
}

void frmPageSetup::Form_Load() {
    trap(kModule, "Form_Load", [&] {
        SetupDefaultPrint();
        PopulateListControlWithPrinters();
        addHeaderFootMenu(c_.tool("FRIGHT"));
        addHeaderFootMenu(c_.tool("FLEFT"));
        addFontMenu(c_.tool("HFONT"));
        addFontMenu(c_.tool("FFONT"));
        addSizeMenu(c_.tool("HSIZE"));
        addSizeMenu(c_.tool("FSIZE"));
    });
}

void frmPageSetup::SetupDefaultPrint() {
    trap(kModule, "SetupDefaultPrint", [&] {
        GetTHEDefaultPrinter();
        c_.tool("PAPER").setText(tr("Landscape"));
        c_.tool("COPIES").setText("1");
        c_.tool("PAGESWIDE").setText("1");
        c_.tool("PRINTCOLOR").setText(tr("Yes"));
        const int32_t measure = getLocalMeasurement();
        if (measure != 0 && measure != 1) return;
        for (const char* key : {"TOP", "BOTTOM", "LEFT", "RIGHT"}) {
            Tool& t = c_.tool(key);
            t.setText(measure == 0 ? "2.54" : "1.00");
            t.setTip(measure == 0 ? tr("centimeters") : tr("inches"));
        }
    });
}

void frmPageSetup::GetTHEDefaultPrinter() {
    trap(kModule, "GetTHEDefaultPrinter", [&] {
        std::string profile = defaultDeviceProfile().substr(0, 254);
        if (auto nul = profile.find('\0'); nul != std::string::npos) profile.resize(nul);
        printerList_ = splitAt(profile, ',');
        c_.tool("PRINTER").setText(PageSetupControls::shownWord("PRINTER", printerList_.at(0)));
    });
}

void frmPageSetup::PopulateListControlWithPrinters() {
    trap(kModule, "PopulateListControlWithPrinters", [&] {
        Tool& list = c_.tool("PRINTER");
        const std::vector<std::string> names =
            ports().printers ? ports().printers->deviceNames() : std::vector<std::string>{};
        if (names.empty()) {
            list.addItem(ttOption, "PRN-0", PageSetupControls::shownWord("PRINTER", PrintSettings::kNoPrinter));
            return;
        }
        for (std::size_t i = 0; i < names.size(); ++i) {
            list.addItem(ttOption, "PRN-" + std::to_string(i), names[i]);
            if (!printerList_.empty() && names[i] == printerList_[0]) list.setText(names[i]);
        }
    });
}

void frmPageSetup::addHeaderFootMenu(Tool& tool) {
    trap(kModule, "addHeaderFootMenu", [&] {
        int n = 0;
        for (const auto& pick : FooterText::picks(clock().now()))
            tool.addItem(ttOption, tool.key() + "-" + std::to_string(n++), pick.caption).setTag(pick.tag);
    });
}

void frmPageSetup::addFontMenu(Tool& tool) {
    trap(kModule, "addFontMenu", [&] {
        if (!tool.items().empty()) return;
        if (!ports().fonts) return;
        int n = 0;
        for (const auto& name : ports().fonts->fontNames())
            tool.addItem(ttOption, tool.key() + "-" + std::to_string(n++), name);
    });
}

void frmPageSetup::addSizeMenu(Tool& tool) {
    trap(kModule, "addSizeMenu", [&] {
        if (!tool.items().empty()) return;
        for (int32_t size = kSmallestSize; size <= kLargestSize; ++size)
            tool.addItem(ttOption, tool.key() + "-" + std::to_string(size), std::to_string(size));
    });
}

void frmPageSetup::PageSetup() {
    trap(kModule, "PageSetup", [&] {
        load();
        CStringBag bag;
        bag.setContents(g().TaskPrintDialog);
        for (const char* key :
             {"PRINTER", "PAPER", "COPIES", "PAGESWIDE", "PRINTCOLOR", "TOP", "BOTTOM", "RIGHT", "LEFT"})
            c_.tool(key).setText(PageSetupControls::shownWord(key, bag.ReadItem(key)));
        c_.tool("HCOLOR").setText(std::to_string(toLong(bag.ReadItem("HCOLOR"))));
        for (const char* key : {"HFONT", "HSIZE", "HEADING"}) c_.tool(key).setText(bag.ReadItem(key));
        c_.tool("FCOLOR").setText(std::to_string(toLong(bag.ReadItem("FCOLOR"))));
        for (const char* key : {"FFONT", "FSIZE"}) c_.tool(key).setText(bag.ReadItem(key));
        fillFooterTool("FLEFT", bag.ReadItem("FLEFT"));
        fillFooterTool("FRIGHT", bag.ReadItem("FRIGHT"));
        for (const char* key : {"PTASK", "PCHECKLIST", "PNOTES"})
            c_.tool(key).setChecked(PrintSettings::boolOf(bag.ReadItem(key)));
        Tool& schedule = c_.tool("PSCHEDULE");
        if (g().DialogNum != PrintSettings::kExistingTaskDialog)
            schedule.setVisible(false);
        else
            schedule.setChecked(PrintSettings::boolOf(bag.ReadItem("PSCHEDULE")));
    });
}

// A typed text shows nothing; the tag keeps the stored value, so a save
// without a new pick writes it back.
void frmPageSetup::fillFooterTool(const char* key, const std::string& stored) {
    Tool& t = c_.tool(key);
    if (auto shown = FooterText::shownFor(stored, clock().now())) t.setText(*shown);
    t.setTag(stored);
}

void frmPageSetup::smtPrinting_Change(Tool& tool, const std::string& property) {
    if (property != "Value") return;
    const std::string& key = tool.key();
    if (key == "PAPER") return showPaper(TextCase::upper(PageSetupControls::storedWord(key, tool.text())));
    if (key != "FLEFT" && key != "FRIGHT") return;
    const Tool* pick = GetItemSelected(tool);
    if (!pick) {
        tool.setTag(FooterText::kCustomTag);
    } else if (pick->tag() == FooterText::kBlankTag) {
        tool.setText("");
        tool.setTag(FooterText::kBlankTag);
    } else {
        tool.setTag(pick->tag());
    }
}

void frmPageSetup::showPaper(const std::string& paper) {
    if (paper == "LANDSCAPE") {
        c_.Image1.setCaption("LANDSCAPE");
        c_.lblPrint.setCaption(tr("Landscape"));
    } else if (paper == "PORTRAIT") {
        c_.Image1.setCaption("PORTRAIT");
        c_.lblPrint.setCaption(tr("Portrait"));
    }
}

void frmPageSetup::smtPrinting_Click(int index, Tool& tool) {
    if (index != PageSetupControls::Heading && index != PageSetupControls::Footer) return;
    if (tool.key() != "HCOLOR" && tool.key() != "FCOLOR") return;
    const std::string& text = tool.text();
    int32_t start = 0;
    if (!text.empty() && text[0] >= '0' && text[0] <= '9')
        start = toLong(text);
    else
        start = roundLong(tryToDouble(text).value_or(0.0));
    CColorDialog chooser;
    chooser.Init(0, tr("Select Color:"), 0, start);
    if (chooser.Show()) tool.setText(std::to_string(chooser.SelectedColor()));
}

void frmPageSetup::smtActions_Click(Tool& tool) {
    const std::string& key = tool.key();
    if (key == "CANCEL") {
        unload();
        Cancel();
    } else if (key == "HELP") {
        if (HelpViewer* viewer = ports().help) viewer->openHelpPop(kHelpTopic, g().TaskPrintSetting);
    } else if (key == "OK") {
        if (!ValidatePrintInfo(0)) return;
        SavePageSetup();
        SavePrintInfoNow();
        unload();
    }
}

// Escape is the keyboard's Cancel.
void frmPageSetup::Form_KeyDown(int32_t keyCode, int32_t /*shift*/) {
    if (keyCode == vbKeyEscape) c_.smtActions.click(c_.smtActions.tool("CANCEL"));
}

bool frmPageSetup::fail(const char* message) {
    ui().msgBox(tr(message), vbInformation, kProgramTitle);
    return false;
}

bool frmPageSetup::ValidatePrintInfo(int32_t stage) {
    return trap(kModule, "ValidatePrintInfo", [&] {
        if (stage == 1 && !checkFirstStage()) return false;
        if (!checkMargins()) return false;
        if (c_.tool("PRINTER").text().empty()) return fail(QV_N("Select a Printer."));
        if (c_.tool("HFONT").text().empty())
            return fail(QV_N("Select a Heading font (even if you do not plan to print a heading)."));
        if (c_.tool("FFONT").text().empty())
            return fail(QV_N("Select a Footer font (even if you do not plan to print a footer)."));
        if (c_.tool("HSIZE").text().empty())
            return fail(QV_N("Select a Heading size (even if you do not plan to print a heading)."));
        // The footer's size is never looked at: this check reads the font again.
        if (c_.tool("FFONT").text().empty())
            return fail(QV_N("Select a Footer size (even if you do not plan to print a footer)."));
        return true;
    });
}

bool frmPageSetup::checkFirstStage() const {
    const std::string wide = PageSetupControls::storedWord("PAGESWIDE", c_.tool("PAGESWIDE").text());
    if (wide != "1" && wide != "2" && wide != "3" && wide != "4" && wide != "Automatic")
        return fail(QV_N("Pages Wide should be set to 1,2,3,4 or Automatic."));
    const std::string color = PageSetupControls::storedWord("PRINTCOLOR", c_.tool("PRINTCOLOR").text());
    if (color != "Yes" && color != "No") return fail(QV_N("Print in color should be Yes or No."));
    const std::string paper = PageSetupControls::storedWord("PAPER", c_.tool("PAPER").text());
    if (paper != "Portrait" && paper != "Landscape")
        return fail(QV_N("Print orientations should be Portrait or Landscape."));
    const auto copies = tryToDouble(c_.tool("COPIES").text());
    if (c_.tool("COPIES").text().empty() || !copies || *copies != std::floor(*copies) || *copies < 1)
        return fail(QV_N("Copies to print should be a positive integer."));
    return true;
}

// A margin of 0 passes, though the message says positive.
bool frmPageSetup::checkMargins() const {
    const std::pair<const char*, const char*> margins[] = {
        {"TOP", QV_N("Top margin should be a positive number.")},
        {"BOTTOM", QV_N("Bottom margin should be a positive number.")},
        {"LEFT", QV_N("Left margin should be a positive number.")},
        {"RIGHT", QV_N("Right margin should be a positive number.")}};
    for (const auto& [key, message] : margins) {
        const std::string& text = c_.tool(key).text();
        if (!isNumeric(text) || *tryToDouble(text) < 0) return fail(message);
    }
    return true;
}

// A new string from the tools: what the tools don't hold is not kept.
void frmPageSetup::SavePageSetup() {
    trap(kModule, "SavePageSetup", [&] {
        CStringBag bag;
        for (const char* key : PrintSettings::kToolKeys)
            bag.WriteItem(key, PageSetupControls::storedWord(key, c_.tool(key).text()));
        bag.WriteItem("FLEFT", footerValue("FLEFT"));
        bag.WriteItem("FRIGHT", footerValue("FRIGHT"));
        for (const char* key : {"PTASK", "PCHECKLIST", "PNOTES"})
            bag.WriteItem(key, PrintSettings::boolText(c_.tool(key).checked()));
        if (g().DialogNum == PrintSettings::kExistingTaskDialog)
            bag.WriteItem("PSCHEDULE", PrintSettings::boolText(c_.tool("PSCHEDULE").checked()));
        g().TaskPrintDialog = bag.Contents();
    });
}

// "--Quorvel--" and "Page Number" come only from strings of an older
// release: a pick of the title stores "Quorvel", of the page number
// "--Page Number--".
std::string frmPageSetup::footerValue(const char* key) const {
    const Tool& t = c_.tool(key);
    const std::string& tag = t.tag();
    if (tag == "--Quorvel--") return kProgramTitle;
    if (tag == FooterText::kCustomTag) return t.text();
    if (tag == FooterText::kBlankTag) return {};
    if (tag == "Page Number") return "<#>";
    return tag;
}

}  // namespace qv
