#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "ToolkitFixture.h"
#include "toolkit/Form.h"
#include "toolkit/ScriptedUi.h"

namespace qv {

namespace {
class CountingForm : public Form {
public:
    using Form::Form;
    int unloads = 0;

protected:
    void Form_Unload() override { ++unloads; }
};
}  // namespace

using ScriptedUiTest = ToolkitFixture;

TEST_F(ScriptedUiTest, AnswersAreQueuedAndMessagesRecorded) {
    ui_.queueAnswer(vbYes);
    ui_.queueAnswer(vbNo);
    EXPECT_EQ(ui_.msgBox("Save?", vbYesNo + vbQuestion, "T"), vbYes);
    EXPECT_EQ(ui_.msgBox("Really?", vbYesNo, "T2"), vbNo);
    ASSERT_EQ(ui_.messages().size(), 2u);
    EXPECT_EQ(ui_.messages()[0].style, vbYesNo + vbQuestion);
    EXPECT_EQ(ui_.lastMessage().text, "Really?");
    EXPECT_EQ(ui_.lastMessage().title, "T2");
    try {
        (void)ui_.msgBox("Unexpected", vbOKOnly, "T");
        FAIL() << "an unanswered message box must throw";
    } catch (const std::logic_error& e) {
        EXPECT_NE(std::string(e.what()).find("Unexpected"), std::string::npos);
    }
    ui_.clearMessages();
    EXPECT_THROW((void)ui_.lastMessage(), std::logic_error);
}

TEST_F(ScriptedUiTest, NestedModalFormsTakeTheFollowingActions) {
    auto outer = std::make_shared<CountingForm>("frmOuter");
    auto inner = std::make_shared<CountingForm>("frmInner");
    std::vector<std::string> trace;
    ui_.queueAction([&] {
        trace.push_back("outer 1");
        inner->showModal(outer.get());
        trace.push_back("inner closed");
    });
    ui_.queueAction([&] {
        EXPECT_TRUE(inner->visible());
        trace.push_back("inner 1");
    });
    ui_.queueAction([&] { inner->unload(); });
    ui_.queueAction([&] { outer->hide(); });
    outer->showModal();

    EXPECT_EQ(trace, (std::vector<std::string>{"outer 1", "inner 1", "inner closed"}));
    EXPECT_EQ(ui_.shown(), (std::vector<std::string>{"frmOuter", "frmInner"}));
    EXPECT_FALSE(outer->visible());
    EXPECT_TRUE(outer->loaded());
    EXPECT_FALSE(inner->loaded());
    EXPECT_EQ(inner->unloads, 1);
    EXPECT_EQ(inner->owner(), outer.get());
    EXPECT_EQ(ui_.pendingActions(), 0u);
    EXPECT_EQ(ui_.modalDepth(), 0);
    outer->unload();
}

TEST_F(ScriptedUiTest, RunningOutOfActionsThrowsInsteadOfHanging) {
    auto form = std::make_shared<CountingForm>("frmTask3");
    ui_.queueAction([] {});
    try {
        form->showModal();
        FAIL() << "the script ran out";
    } catch (const std::logic_error& e) {
        EXPECT_STREQ(e.what(), "script ran out while frmTask3 is shown");
    }
    EXPECT_EQ(ui_.scriptErrors(), (std::vector<std::string>{"script ran out while frmTask3 is shown"}));
    EXPECT_EQ(ui_.modalDepth(), 0);
    form->unload();
}

TEST_F(ScriptedUiTest, UnloadedFormLivesUntilTheOutermostWaitReturns) {
    auto outer = std::make_shared<CountingForm>("frmOuter");
    auto doomed = std::make_shared<CountingForm>("frmDoomed");
    std::weak_ptr<CountingForm> watch = doomed;
    ui_.queueAction([&] {
        doomed->showModal(outer.get());
        EXPECT_FALSE(watch.expired()) << "the outer wait still runs";
    });
    ui_.queueAction([&] {
        doomed->unload();
        doomed.reset();
    });
    ui_.queueAction([&] { outer->unload(); });
    outer->showModal();
    EXPECT_TRUE(watch.expired()) << "released once the outermost wait returned";
}

TEST_F(ScriptedUiTest, DoEventsMovesTheFakeClockAndShowIsNotModal) {
    const uint32_t t0 = clock_.tickCount();
    ui_.doEvents();
    EXPECT_EQ(clock_.tickCount() - t0, 10u);
    ui_.setDoEventsStep(25);
    ui_.doEvents();
    EXPECT_EQ(clock_.tickCount() - t0, 35u);

    auto f = std::make_shared<CountingForm>("frmHelp");
    ui_.show(*f);
    EXPECT_TRUE(f->visible());
    ui_.hide(*f);
    EXPECT_FALSE(f->visible());
}

}  // namespace qv
