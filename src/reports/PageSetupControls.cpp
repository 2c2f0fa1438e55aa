#include "reports/PageSetupControls.h"

#include "reports/PrintSettings.h"
#include "toolkit/Failure.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {
struct StoredWord {
    const char* key;
    const char* word;
};
const StoredWord kStoredWords[] = {{"PAPER", QV_N("Portrait")},  {"PAPER", QV_N("Landscape")},
                                   {"PAGESWIDE", QV_N("Automatic")}, {"PRINTCOLOR", QV_N("Yes")},
                                   {"PRINTCOLOR", QV_N("No")},   {"PRINTER", PrintSettings::kNoPrinter}};
}  // namespace

std::string PageSetupControls::shownWord(const std::string& key, const std::string& stored) {
    for (const auto& [k, word] : kStoredWords)
        if (key == k && stored == word) return tr(word);
    return stored;
}

std::string PageSetupControls::storedWord(const std::string& key, const std::string& shown) {
    for (const auto& [k, word] : kStoredWords)
        if (key == k && shown == tr(word)) return word;
    return shown;
}

PageSetupControls::PageSetupControls() {
    buildPrinter();
    buildHeadingAndFooter();
    buildWhat();
    buildActions();
}

Tool& PageSetupControls::tool(const char* key) const {
    for (const Sheet& s : smtPrinting)
        if (s.hasKey(key)) return s.tool(key);
    throw Failure(err::InvalidProcedureCall, std::string("Invalid key: ") + key);
}

void PageSetupControls::buildPrinter() {
    Sheet& s = smtPrinting[Printer];
    s.add(ttTextBox, "PRINTER", tr("Printer:"));
    Tool& paper = s.add(ttTextBox, "PAPER", tr("Orientation:"));
    for (const char* p : {"Portrait", "Landscape"}) paper.addItem(ttOption, std::string("PAPER-") + p, shownWord("PAPER", p));
    s.add(ttTextBox, "COPIES", tr("Copies:"));
    Tool& wide = s.add(ttTextBox, "PAGESWIDE", tr("Pages Wide:"));
    for (const char* w : {"1", "2", "3", "4", "Automatic"})
        wide.addItem(ttOption, std::string("WIDE-") + w, shownWord("PAGESWIDE", w));
    Tool& color = s.add(ttTextBox, "PRINTCOLOR", tr("Print in Color:"));
    for (const char* c : {"Yes", "No"}) color.addItem(ttOption, std::string("COLOR-") + c, shownWord("PRINTCOLOR", c));
    s.add(ttHeading, {}, tr("Margins:"));
    s.add(ttTextBox, "TOP", tr("Top:"));
    s.add(ttTextBox, "BOTTOM", tr("Bottom:"));
    s.add(ttTextBox, "LEFT", tr("Left:"));
    s.add(ttTextBox, "RIGHT", tr("Right:"));
}

void PageSetupControls::buildHeadingAndFooter() {
    Sheet& h = smtPrinting[Heading];
    h.add(ttTextBox, "HEADING", tr("Heading:"));
    h.add(ttTextBox, "HCOLOR", tr("Text Color:")).setTip(tr("Click to pick the heading's colour"));
    h.add(ttTextBox, "HFONT", tr("Font:"));
    h.add(ttTextBox, "HSIZE", tr("Size:"));
    Sheet& f = smtPrinting[Footer];
    f.add(ttTextBox, "FCOLOR", tr("Text Color:")).setTip(tr("Click to pick the footer's colour"));
    f.add(ttTextBox, "FFONT", tr("Font:"));
    f.add(ttTextBox, "FSIZE", tr("Size:"));
    Sheet& t = smtPrinting[FooterText];
    t.add(ttTextBox, "FLEFT", tr("Left:"));
    t.add(ttTextBox, "FRIGHT", tr("Right:"));
}

void PageSetupControls::buildWhat() {
    Sheet& s = smtPrinting[What];
    s.add(ttCheck, "PTASK", tr("Task Information"));
    s.add(ttCheck, "PCHECKLIST", tr("Checklist"));
    s.add(ttCheck, "PNOTES", tr("Notes"));
    s.add(ttCheck, "PSCHEDULE", tr("Schedule"));
}

void PageSetupControls::buildActions() {
    smtActions.add(ttButton, "HELP", tr("&Help")).setTip(tr("Get Help on rearranging Views"));
    smtActions.add(ttSeparator);
    smtActions.add(ttButton, "CANCEL", tr("&Cancel")).setTip(tr("Discard changes and close"));
    smtActions.add(ttButton, "OK", tr("&OK")).setTip(tr("Save changes and close"));
}

}  // namespace qv
