// Closing, cancelling and clearing the New Task dialog, and a store fault
// on the way to a save.

#include "dialogs/newtask/NewTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"

namespace qv {

using NewTaskCommands = NewTaskFixture;

TEST_F(NewTaskCommands, EscapeAsksOnlyWhenDirtyAndCancels) {
    seed();
    fireTimer();
    then([this] { scriptedUi().queueAnswer(vbNo); });
    key(vbKeyEscape);
    then([this] {
        EXPECT_TRUE(form().visible()) << "No keeps the dialog";
        scriptedUi().queueAnswer(vbYes);
    });
    key(vbKeyEscape);
    open();

    EXPECT_EQ(scriptedUi().messages().size(), 2u);
    EXPECT_EQ(scriptedUi().lastMessage().text, "Cancel creating the current task?");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbYesNo);
    EXPECT_FALSE(form().loaded());
    EXPECT_GE(count("DoCloseTaskForm"), 1);
    EXPECT_EQ(count("NewTask"), 0);
}

TEST_F(NewTaskCommands, DoneToolAsksThenCloses) {
    seed();
    fireTimer();
    then([this] { scriptedUi().queueAnswer(vbNo); });
    click("smtActions", "DONE");
    then([this] {
        EXPECT_EQ(tool("smtActions", "DONE").caption(), "C&ancel");
        scriptedUi().queueAnswer(vbYes);
    });
    click("smtActions", "DONE");
    open();
    EXPECT_EQ(tool("smtActions", "DONE").caption(), "Done");
    EXPECT_FALSE(form().loaded());

    // Right after a save the tool closes at once.
    scriptedUi().clearMessages();
    fireTimer();
    typeDescription("Quick one");
    click("smtActions", "QV");
    click("smtActions", "DONE");
    open();
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS"), 1);
    EXPECT_FALSE(form().loaded());
}

TEST_F(NewTaskCommands, CloseBoxAsksAndNoKeepsTheDialog) {
    seed();
    fireTimer();
    then([this] {
        scriptedUi().queueAnswer(vbNo);
        form().requestClose();
        EXPECT_TRUE(form().loaded());
        scriptedUi().queueAnswer(vbYes);
        form().requestClose();
    });
    open();
    EXPECT_FALSE(form().loaded());
    EXPECT_EQ(count("DoCloseTaskForm"), 1);
    EXPECT_EQ(count("TaskCanceled"), 0);
}

TEST_F(NewTaskCommands, ClearEmptiesWithoutACheckAndAnAddThenRefuses) {
    seed();
    fireTimer();
    click("smtKeywords", kKeyRed);
    then([this] { form().editor("SpellNotes")->setText("notes"); });
    typeDescription("To be cleared");
    click("smtActions", "CLEAR");
    then([this] {
        EXPECT_EQ(form().editor("spellTask")->text(), "");
        EXPECT_EQ(form().editor("SpellNotes")->text(), "");
        EXPECT_FALSE(tool("smtKeywords", kKeyRed).checked());
        for (const char* s : {"smtProj", "smtImp", "smtDiff", "smtTimeNeeded"})
            for (const auto& t : sheet(s).tools()) EXPECT_FALSE(t->checked()) << s;
        EXPECT_TRUE(tool("smtActions", "QV").enabled()) << "no check ran";
        EXPECT_EQ(tool("smtReady", "DESCFLAG").image(), "GOOD");
        EXPECT_EQ(tool("smtOther", "STATUS").text(), "Defined");
    });
    click("smtActions", "QV");
    closeHidden();
    open();
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS"), 0);
    EXPECT_FALSE(tool("smtActions", "QV").enabled());
    EXPECT_EQ(tool("smtReady", "DESCFLAG").tip(), "Missing Task Description.");
}

TEST_F(NewTaskCommands, StoreFaultTakesTheErrorPath) {
    seed();
    fireTimer();
    then([this] { exec("DROP TABLE TaskKeywords"); });
    typeDescription("Half written");
    click("smtActions", "QV");
    open();
    ASSERT_FALSE(reporter().faults().empty());
    EXPECT_EQ(reporter().faults().front().procedure, "GetDataKEY");
    EXPECT_FALSE(form().loaded()) << "the error path unloads the dialog";
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS"), 1) << "nothing is rolled back";
    EXPECT_EQ(count("NewTask"), 0);
}

}  // namespace qv
