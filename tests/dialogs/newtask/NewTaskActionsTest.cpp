// Closing, cancelling and clearing the New Task dialog, and a store fault
// on the way to a save.

#include <functional>

#include "dialogs/newtask/NewTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"

namespace qv {

using NewTaskCommands = Seeded<NewTaskFixture>;

TEST_F(NewTaskCommands, EachWayOutAsksOnTheDirtyDialogAndNoKeepsIt) {
    // How to leave, how many DoCloseTaskForm exactly (0: at least one), the Done caption after.
    struct Way {
        std::string name;
        std::function<void()> leave;
        int closes;
        std::string doneAfter;
    };
    const std::vector<Way> ways = {
        {"Escape", [this] { form().keyDown(vbKeyEscape); }, 0, "C&ancel"},
        {"Done tool", [this] { sheet("smtActions").click(tool("smtActions", "DONE")); }, 0, "Done"},
        {"close box", [this] { form().requestClose(); }, 1, "C&ancel"}};
    for (const auto& [name, leave, closes, doneAfter] : ways) {
        SCOPED_TRACE(name);
        scriptedUi().clearMessages();
        events_.clear();
        fireTimer();
        then([this, leave] {
            scriptedUi().queueAnswer(vbNo);
            leave();
            EXPECT_TRUE(form().visible()) << "No keeps the dialog";
            EXPECT_EQ(tool("smtActions", "DONE").caption(), "C&ancel");
            scriptedUi().queueAnswer(vbYes);
            leave();
        });
        open();
        ASSERT_EQ(scriptedUi().messages().size(), 2u);
        EXPECT_EQ(scriptedUi().lastMessage().text, "Cancel creating the current task?");
        EXPECT_EQ(scriptedUi().lastMessage().style, vbYesNo);
        EXPECT_EQ(tool("smtActions", "DONE").caption(), doneAfter);
        EXPECT_FALSE(form().loaded());
        EXPECT_GE(count("DoCloseTaskForm"), 1);
        if (closes) {
            EXPECT_EQ(count("DoCloseTaskForm"), closes);
        }
        EXPECT_EQ(count("NewTask") + count("TaskCanceled"), 0);
    }

    // Right after a save the Done tool closes at once; keys and clicks wait
    // out the save, so none meets the dialog half reset.
    scriptedUi().clearMessages();
    bool heldAtNewTask = false;
    const auto watch = task_.Raised.connect(
        [&](const HostEvent& e) { heldAtNewTask |= e.name == "NewTask" && scriptedUi().inputHeld(); });
    fireTimer();
    typeDescription("Quick one");
    click("smtActions", "QV");
    then([this] { EXPECT_FALSE(scriptedUi().inputHeld()); });
    click("smtActions", "DONE");
    open();
    task_.Raised.disconnect(watch);
    EXPECT_TRUE(heldAtNewTask);
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS"), 1);
    EXPECT_FALSE(form().loaded());
}

TEST_F(NewTaskCommands, ClearEmptiesWithoutACheckAndAnAddThenRefuses) {
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
