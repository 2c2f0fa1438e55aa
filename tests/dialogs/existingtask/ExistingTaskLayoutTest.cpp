#include "dialogs/existingtask/ExistingTaskLayout.h"

#include <filesystem>
#include <tuple>

#include "dialogs/existingtask/ScheduleGrid.h"
#include "dialogs/shared/TaskRecord.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TabStrip.h"
#include "toolkit/Timer.h"

namespace qv {
namespace {

class LayoutTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        g().AppVersion = 14.0f;
        for (const char* name : {"About", "Notes", "Task", "Tabs", "Spare", "Times", "Keywords", "Actions"})
            split.addPane(name);
    }
    // Heights of the panes of a column, added up.
    int32_t column(std::initializer_list<int32_t> panes) const {
        int32_t sum = 0;
        for (int32_t p : panes) sum += split.pane(p).height;
        return sum;
    }

    Form form{"frmExistingTask"};
    Splitter split{"splitTask"};
    TabStrip tabs{"Tabs1", {"&Checklist", "&Task Schedule"}};
    int16_t visibleTab = 0;
    Sheet about{"smtABOUT"}, skedTimes{"smtSkedTimes"}, times{"smtTimes"};
    TaskRecord record;
    ScheduleGrid sked{about, skedTimes, times, {[this]() -> const TaskRecord& { return record; }, {}, {}, {}}};
    ExistingTaskLayout layout{form, split, tabs, sked, visibleTab};
};

TEST_F(LayoutTest, LimitsAndTheResetWithItsSums) {
    layout.load();
    // Pane, minimum width and height.
    for (const auto& [pane, width, height] :
         {std::tuple{paneAbout, 1500, 1500}, std::tuple{paneTabs, 1500, 0}, std::tuple{paneTimes, 400, 1905},
          std::tuple{paneKeywordList, 0, 1500}}) {
        if (width) { EXPECT_EQ(split.pane(pane).minWidth, width) << pane; }
        if (height) { EXPECT_EQ(split.pane(pane).minHeight, height) << pane; }
    }
    EXPECT_TRUE(split.pane(paneActions).lockHeight);
    EXPECT_EQ(split.pane(paneActions).height, 400);
    EXPECT_FALSE(std::filesystem::exists(ExistingTaskLayout::layoutFile()));

    form.move(0, 0, 9000, 7400);
    layout.resetLayout();
    const int32_t body = 7400 - 400;
    EXPECT_EQ(column({paneSpare, paneTimes, paneKeywordList}), body);
    EXPECT_EQ(split.pane(paneAbout).height, 3930);
    EXPECT_EQ(split.pane(paneNotes).height, body - 3915);
    EXPECT_EQ(split.pane(paneNotes).width, 2805);
    EXPECT_EQ(split.pane(paneSpare).width, 2025);
    EXPECT_NEAR(column({paneTaskText, paneTabs}), body, 1);
    EXPECT_EQ(split.pane(paneTimes).minHeight, 1905) << "the limits come back";
    EXPECT_EQ(split.pane(paneSpare).minHeight, 100);
    EXPECT_FALSE(layout.ResettingLayout());
    EXPECT_TRUE(std::filesystem::exists(ExistingTaskLayout::layoutFile())) << "the reset saves the layout";

    // A window under 2680 twips overflows, down the error path.
    form.move(0, 0, 9000, 2600);
    EXPECT_FALSE(trap("frmExistingTask", "smtActions_Click", [&] { layout.resetLayout(); }));
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].number, err::Overflow);
}

TEST_F(LayoutTest, TheLayoutFileComesBackOnlyForALaterVersion) {
    split.setLayoutState("arrangement one");
    EXPECT_TRUE(layout.SaveSplit());
    split.setLayoutState({});
    g().AppVersion = 9.0f;
    layout.load();
    EXPECT_EQ(split.layoutState(), "");
    g().AppVersion = 14.0f;
    layout.load();
    EXPECT_EQ(split.layoutState(), "arrangement one");
    EXPECT_TRUE(split.pane(paneActions).lockHeight) << "limits also after a loaded layout";
}

TEST_F(LayoutTest, TabsAndTheScheduleWidths) {
    layout.Form_Load();
    EXPECT_EQ(tabs.current(), tabChecklist);
    tabs.Switching.connect([&](int32_t t) { layout.Tabs1_Switching(t); });
    tabs.userSwitch(tabSchedule);
    EXPECT_EQ(visibleTab, tabSchedule);
    EXPECT_EQ(tabs.current(), tabSchedule);

    // Dragging a bar keeps the tab and rewrites the file.
    layout.splitTask_SplitterEndDrag();
    EXPECT_EQ(tabs.current(), tabSchedule);
    EXPECT_TRUE(std::filesystem::exists(ExistingTaskLayout::layoutFile()));

    // The schedule panel's resize sets the grid's widths by its factors.
    g().CurrentTaskGUID = "T1";
    sked.initSked();
    Grid& grid = sked.gridSked();
    EXPECT_EQ(grid.column(grid.columnOf("taStartTime")).width, 0) << "no width before the view has one";
    // The grid's first width lays it out; each later one is a resize.
    grid.Resized.connect([&] { layout.gridSked_Resized(); });
    grid.userResized(8000);
    EXPECT_EQ(grid.column(grid.columnOf("taStartTime")).width, 2200);
    layout.SSResizer1_ResizeComplete(3);
    EXPECT_EQ(grid.column(grid.columnOf("taStartTime")).width, 2200);
    layout.SSResizer1_ResizeComplete(4);
    EXPECT_EQ(grid.column(grid.columnOf("taStartTime")).width, 2000);
    EXPECT_EQ(grid.column(grid.columnOf("BtnColumn")).width, 960);
}

}  // namespace
}  // namespace qv
