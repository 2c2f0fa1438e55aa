#include "reports/PageSetupControls.h"

#include "toolkit/Failure.h"

namespace qv {

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
    s.add(ttTextBox, "PRINTER", "Printer:");
    Tool& paper = s.add(ttTextBox, "PAPER", "Orientation:");
    for (const char* p : {"Portrait", "Landscape"}) paper.addItem(ttOption, std::string("PAPER-") + p, p);
    s.add(ttTextBox, "COPIES", "Copies:");
    Tool& wide = s.add(ttTextBox, "PAGESWIDE", "Pages Wide:");
    for (const char* w : {"1", "2", "3", "4", "Automatic"})
        wide.addItem(ttOption, std::string("WIDE-") + w, w);
    Tool& color = s.add(ttTextBox, "PRINTCOLOR", "Print in Color:");
    for (const char* c : {"Yes", "No"}) color.addItem(ttOption, std::string("COLOR-") + c, c);
    s.add(ttHeading, {}, "Margins:");
    s.add(ttTextBox, "TOP", "Top:");
    s.add(ttTextBox, "BOTTOM", "Bottom:");
    s.add(ttTextBox, "LEFT", "Left:");
    s.add(ttTextBox, "RIGHT", "Right:");
}

void PageSetupControls::buildHeadingAndFooter() {
    Sheet& h = smtPrinting[Heading];
    h.add(ttTextBox, "HEADING", "Heading:");
    h.add(ttTextBox, "HCOLOR", "Text Color:").setTip("Click to pick the heading's colour");
    h.add(ttTextBox, "HFONT", "Font:");
    h.add(ttTextBox, "HSIZE", "Size:");
    Sheet& f = smtPrinting[Footer];
    f.add(ttTextBox, "FCOLOR", "Text Color:").setTip("Click to pick the footer's colour");
    f.add(ttTextBox, "FFONT", "Font:");
    f.add(ttTextBox, "FSIZE", "Size:");
    Sheet& t = smtPrinting[FooterText];
    t.add(ttTextBox, "FLEFT", "Left:");
    t.add(ttTextBox, "FRIGHT", "Right:");
}

void PageSetupControls::buildWhat() {
    Sheet& s = smtPrinting[What];
    s.add(ttCheck, "PTASK", "Task Information");
    s.add(ttCheck, "PCHECKLIST", "Checklist");
    s.add(ttCheck, "PNOTES", "Notes");
    s.add(ttCheck, "PSCHEDULE", "Schedule");
}

void PageSetupControls::buildActions() {
    smtActions.add(ttButton, "HELP", "&Help").setTip("Get Help on rearranging Views");
    smtActions.add(ttSeparator);
    smtActions.add(ttButton, "CANCEL", "&Cancel").setTip("Discard changes and close");
    smtActions.add(ttButton, "OK", "&OK").setTip("Save changes and close");
}

}  // namespace qv
