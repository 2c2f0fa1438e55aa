// Every help tool of the dialogs opens the help pop-up on its own topic,
// over the dialog that asked, with the print settings the dialog holds.

#include <memory>
#include <string>
#include <vector>

#include "dialogs/newtask/NewTaskFixture.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/ProjectSheet.h"
#include "help/PopHelpViewer.h"
#include "help/frmPopHelp.h"
#include "reports/PrintSettings.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {

class HelpTools : public NewTaskFixture {
protected:
    void SetUp() override {
        NewTaskFixture::SetUp();
        ports().help = &viewer;
        task_.SetTaskPrintSetting("PRINTER=Desk\tCOPIES=3\t");
    }

    static Form& top() { return *Form::openForms().back(); }
    static void press(Form& f, const char* sheetName, const char* key) {
        Sheet& s = *f.sheet(sheetName);
        s.click(s.tool(key));
    }
    // Presses the help tool of the dialog on top; the pop-up that opens
    // notes what it shows and is closed again.
    void help(const char* sheetName) {
        then([this, sheetName] { press(top(), sheetName, "HELP"); });
        then([this] {
            frmPopHelp* pop = viewer.shown();
            ASSERT_NE(pop, nullptr);
            seen.push_back(std::to_string(viewer.lastTopic()) + " " + pop->caption() + " [" +
                           pop->MakeHelpHTML().printer + "] over " + (pop->owner() ? pop->owner()->name() : "none"));
            press(*pop, "smtAction", "CLOSE");
        });
    }

    PopHelpViewer viewer;
    std::vector<std::string> seen;
};

}  // namespace

TEST_F(HelpTools, EachDialogOpensItsTopicWithItsTitle) {
    seed();
    fireTimer();
    help("smtActions");
    // Page Setup needs a whole print string, as a host gives one.
    then([] { g().TaskPrintDialog = PrintSettings::defaults(2); });
    click("smtActions", "PAGESETUP");
    help("smtActions");
    then([] { press(top(), "smtActions", "CANCEL"); });
    click("smtProj", ProjectSheet::kNewProjectKey);
    help("smtAction");
    then([] { top().keyDown(vbKeyEscape); });
    click("smtKeywords", KeywordSheet::kNewKeywordKey);
    help("smtAction");
    then([] { top().keyDown(vbKeyEscape); });
    closeHidden();
    open();

    // The keyword dialog is never handed the print settings.
    EXPECT_EQ(seen, (std::vector<std::string>{"600 Quorvel: Creating New Tasks [Desk] over frmTask3",
                                              "300 Quorvel: Print and Print Preview [Desk] over frmPageSetup",
                                              "800 Quorvel: Adding a Project [Desk] over frmAddProject",
                                              "8 Quorvel: Keywords [] over frmAddKeyword"}));
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_TRUE(reporter().faults().empty());
    EXPECT_EQ(scriptedUi().pendingActions(), 0u);
    EXPECT_EQ(viewer.shown(), nullptr) << "the pop-up is gone once closed";
}

}  // namespace qv
