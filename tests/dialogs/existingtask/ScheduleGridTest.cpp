#include "dialogs/existingtask/ScheduleGrid.h"

#include "dialogs/DialogExpect.h"
#include "dialogs/shared/TaskRecord.h"
#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"
#include "values/settings/Settings.h"
#include "values/settings/TimeValues.h"

namespace qv {
namespace {

constexpr const char* kTask = "TTTTTTTT-0000-0000-0000-000000000001";
constexpr double kJan15 = 45306.0;  // 2024-01-15

class ScheduleGridTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        ASSERT_TRUE(LoadSettings());
        g().CurrentTaskGUID = kTask;
        about.add(ttTextBox, "PROJECT").setText("Garden");
        about.tool("PROJECT").setTag("P1");
        about.add(ttTextBox, "SCHEDULED").setText("9:99");
        skedTimes.add(ttButton, "COPYTA");
        skedTimes.add(ttTextBox, "SPENT");
        times.add(ttTextBox, "TIMESPENT").setText("0:00");
        record.Imp = 3;
        record.Diff = 1;
        record.Desc = "Paint the fence";
        sked = std::make_unique<ScheduleGrid>(about, skedTimes, times,
                                              ScheduleGrid::Hooks{[this]() -> const TaskRecord& { return record; },
                                                                  [this] { ++validations; },
                                                                  [this](int32_t n) { counted = n; },
                                                                  {}});
        sked->gridSked().setExtentWidth(10000);
    }
    // An appointment of the task: start "2024-01-15T09:00:00.000" and so on.
    void addAppt(const std::string& key, const std::string& start, const std::string& end, int minutes = -1,
                 const std::string& task = kTask) const {
        exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taWasWorked, taTimeWorked, "
             "taImp, taDifficulty) VALUES ('" + key + "', '" + task + "', '2024-01-15T" + start + ":00.000', "
             "'2024-01-15T" + end + ":00.000', 0, " + (minutes < 0 ? "NULL" : std::to_string(minutes)) + ", 1, 1)");
    }
    Grid& grid() { return sked->gridSked(); }
    int c(const char* key) { return grid().columnOf(key); }
    std::string shown(int row, const char* key) { return grid().displayText(row, c(key)); }
    std::string width(const std::string& key) { return std::to_string(grid().column(c(key.c_str())).width); }
    void expectCells(int row, Expected cases) {
        expectEach([this, row](const std::string& key) { return grid().cell(row, c(key.c_str())); }, cases);
    }

    Sheet about{"smtABOUT"}, skedTimes{"smtSkedTimes"}, times{"smtTimes"};
    TaskRecord record;
    int validations = 0;
    int32_t counted = -1;
    std::unique_ptr<ScheduleGrid> sked;
};

TEST_F(ScheduleGridTest, BindsNewestFirstWithItsColumnsAndCounts) {
    addAppt("A", "09:00", "10:30", 45);
    addAppt("B", "13:00", "12:00");  // ends before it starts
    addAppt("OTHER", "08:00", "09:00", 5, "another task");
    sked->initSked();

    EXPECT_EQ(grid().caption(), "Task Appointments: 2");
    EXPECT_EQ(sked->SkedRowCount(), 2);
    ASSERT_EQ(grid().rowCount(), 2);
    EXPECT_EQ(grid().cell(0, c("taGUIDID")), "B") << "newest start first";

    // Shown columns, in their places, with headers, styles and layout widths.
    std::vector<std::string> headers;
    for (int col : grid().shownColumns()) headers.push_back(grid().column(col).caption);
    EXPECT_EQ(headers, (std::vector<std::string>{"Done?", "Start", "End", "Duration", ">>", "Actual Time Spent"}));
    EXPECT_EQ(grid().column(c("taWasWorked")).style, Grid::CellStyle::CheckBox);
    EXPECT_EQ(grid().column(c("BtnColumn")).style, Grid::CellStyle::Button);
    EXPECT_EQ(grid().column(c("taTimeWorked")).caption, "Time Spent");
    EXPECT_FALSE(grid().column(c("taTimeWorked")).visible);
    EXPECT_EQ(c("fakeColumn"), c("FakeColumn")) << "keys are found whatever their case";
    const auto widths = [this](const std::string& k) { return width(k); };
    expectEach(widths, {{"taStartTime", "2750"}, {"BtnColumn", "500"}});
    sked->applyResizeWidths();  // which leaves Done? alone
    expectEach(widths, {{"taStartTime", "2500"}, {"BtnColumn", "1200"}, {"taWasWorked", "600"}});

    // Unbound cells; times outside edit mode, the date while editing.
    EXPECT_EQ(grid().cell(0, c("CalcColumn")), SetTimeFormat(-60)) << "an end before the start";
    expectCells(1, {{"CalcColumn", "1:30"}, {"BtnColumn", ">>>"}, {"FakeColumn", "0:45"}, {"taTimeWorked", "45"}});
    g().ScheduleTouched = false;
    EXPECT_EQ(shown(1, "taStartTime"), "09:00");
    EXPECT_TRUE(g().ScheduleTouched);
    grid().beginEdit(1, c("taStartTime"));
    EXPECT_EQ(shown(1, "taStartTime"), "1/15/2024 9:00:00 AM");
    EXPECT_EQ(shown(1, "taEndTime"), "10:30");
    grid().cancelEdit();

    // The sum of the planned durations as the Duration texts read.
    sked->CountUpSked();
    EXPECT_EQ(about.tool("SCHEDULED").text(), SetTimeFormat(90 + FormatCTasTime(SetTimeFormat(-60))));
    EXPECT_EQ(sked->SkedRowCount(), 2);
}

// Rows get their texts when first read; the count-up makes none of them,
// and a row already made counts with its own Duration text.
TEST_F(ScheduleGridTest, TheCountUpReadsRowsNotYetShown) {
    addAppt("A", "09:00", "10:30", 45);
    addAppt("B", "13:00", "13:20");
    sked->initSked();
    sked->CountUpSked();
    EXPECT_EQ(about.tool("SCHEDULED").text(), SetTimeFormat(110));
    EXPECT_FALSE(grid().rowMade(0));
    EXPECT_FALSE(grid().rowMade(1));
    grid().setCell(0, c("CalcColumn"), "1:00");
    sked->CountUpSked();
    EXPECT_EQ(about.tool("SCHEDULED").text(), SetTimeFormat(150));
    EXPECT_FALSE(grid().rowMade(1));
    expectCells(1, {{"CalcColumn", "1:30"}, {"FakeColumn", "0:45"}, {"taGUIDID", "A"}});
}

// A row not yet shown takes its values from the set when first made, in
// whatever order the rows are asked for; an edit (which walks the set) and
// a delete that fails after the set was read again misplace none.
TEST_F(ScheduleGridTest, RowsMadeLateShowTheirOwnValues) {
    addAppt("A", "09:00", "09:30");
    addAppt("B", "10:00", "10:45", 20);
    addAppt("C", "11:00", "12:00");
    addAppt("D", "12:00", "12:15", 5);
    sked->initSked();
    const auto key = [this](int row) { return grid().cell(row, c("taGUIDID")); };
    EXPECT_EQ(key(2), "B");
    grid().updateCell(2, c("taWasWorked"), "True");
    EXPECT_EQ(key(1), "C");
    expectCells(3, {{"taGUIDID", "A"}, {"taTaskGUIDID", kTask}, {"taImp", "1"}, {"CalcColumn", "0:30"}});
    grid().selectRows({1});
    exec("ALTER TABLE TASKAPPTS RENAME TO TASKAPPTS_GONE");
    Sheet btns{"smtSkedBtns"};
    btns.add(ttButton, "DELETE");
    sked->smtSkedBtns_Click(btns.tool("DELETE"));
    EXPECT_FALSE(reporter().faults().empty()) << "the delete fails";
    ASSERT_EQ(grid().rowCount(), 4);
    expectCells(0, {{"taGUIDID", "D"}, {"CalcColumn", "0:15"}, {"FakeColumn", "0:05"}});
    EXPECT_EQ(readOne("SELECT taWasWorked FROM TASKAPPTS_GONE WHERE taGUIDID = 'B'"), "1");
}

TEST_F(ScheduleGridTest, AnEmptyScheduleLeavesTheSumAlone) {
    sked->initSked();
    EXPECT_EQ(grid().caption(), "Task Appointments: 0");
    EXPECT_EQ(grid().rowCount(), 0);
    sked->CountUpSked();
    EXPECT_EQ(about.tool("SCHEDULED").text(), "9:99");
}

TEST_F(ScheduleGridTest, CellRulesReachTheStore) {
    addAppt("A", "09:00", "10:30");
    sked->initSked();
    const std::string startBefore = readOne("SELECT taStartTime FROM TASKAPPTS");

    // A start that is not a date is refused without a word.
    grid().beginEdit(0, c("taStartTime"));
    EXPECT_FALSE(grid().commitEdit("tomorrow-ish"));
    EXPECT_EQ(grid().cell(0, c("taStartTime")), "1/15/2024 9:00:00 AM");
    EXPECT_EQ(readOne("SELECT taStartTime FROM TASKAPPTS"), startBefore);
    EXPECT_TRUE(scriptedUi().messages().empty());

    // A new start is stored and the Duration follows.
    grid().beginEdit(0, c("taStartTime"));
    EXPECT_TRUE(grid().commitEdit("1/15/2024 8:00:00 AM"));
    EXPECT_EQ(readOne("SELECT substr(taStartTime, 1, 16) FROM TASKAPPTS"), "2024-01-15T08:00");
    EXPECT_EQ(grid().cell(0, c("CalcColumn")), "2:30");

    // ">>" makes the planned duration the time spent, stored in minutes.
    grid().clickCellButton(0, c("BtnColumn"));
    EXPECT_EQ(readOne("SELECT taTimeWorked FROM TASKAPPTS"), "150");
    EXPECT_EQ(grid().cell(0, c("FakeColumn")), "2:30");

    // Typed time spent; text that reads as no time stores 0.
    grid().beginEdit(0, c("FakeColumn"));
    grid().commitEdit("1:15");
    EXPECT_EQ(readOne("SELECT taTimeWorked FROM TASKAPPTS"), "75");
    grid().updateCell(0, c("FakeColumn"), "soon");
    EXPECT_EQ(readOne("SELECT taTimeWorked FROM TASKAPPTS"), "0");

    // The Done? box changes taWasWorked only.
    grid().updateCell(0, c("taWasWorked"), "True");
    EXPECT_EQ(readOne("SELECT taWasWorked || '/' || taTimeWorked FROM TASKAPPTS"), "1/0");
    EXPECT_EQ(readOne("SELECT substr(taStartTime, 1, 16) FROM TASKAPPTS"), "2024-01-15T08:00");
}

TEST_F(ScheduleGridTest, AddDeleteAndTheSumButton) {
    addAppt("OLD", "09:00", "10:00");
    sked->initSked();
    sked->CountUpSked();
    fakeClock().setNow(kJan15 + 1.5);  // the next day at noon

    Sheet btns{"smtSkedBtns"};
    btns.add(ttButton, "DELETE");
    btns.add(ttButton, "ADD");
    sked->smtSkedBtns_Click(btns.tool("ADD"));
    EXPECT_EQ(validations, 1);
    EXPECT_EQ(grid().caption(), "Task Appointments: 2");
    ASSERT_EQ(grid().rowCount(), 2);
    EXPECT_NE(grid().cell(0, c("taGUIDID")), "OLD") << "the new slot is the newest";
    EXPECT_EQ(grid().cell(0, c("CalcColumn")), "1:00");
    EXPECT_EQ(readOne("SELECT taProject || '/' || taProjectGUIDID || '/' || taImp || taDifficulty || '/' || "
                      "taTaskDesc FROM TASKAPPTS WHERE taGUIDID <> 'OLD'"),
              "Garden/P1/31/Paint the fence");
    EXPECT_EQ(about.tool("SCHEDULED").text(), "1:00") << "the sum keeps its value of load";

    // Nothing selected: nothing goes. Two selected: the first goes, unasked.
    Tool& del = btns.tool("DELETE");
    sked->smtSkedBtns_Click(del);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKAPPTS"), 2);
    grid().selectRows({1, 0});
    sked->smtSkedBtns_Click(del);
    EXPECT_EQ(readOne("SELECT taGUIDID FROM TASKAPPTS WHERE taGUIDID = 'OLD'"), "");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKAPPTS"), 1);
    EXPECT_EQ(grid().caption(), "Task Appointments: 1");
    EXPECT_EQ(sked->SkedRowCount(), 1);
    EXPECT_EQ(counted, 1) << "the dialog hears the count";
    EXPECT_EQ(validations, 2);

    // "COPYTA" does nothing on the strip as designed, and copies once the
    // strip carries a "SCHEDULED".
    sked->smtSkedTimes_Click(skedTimes.tool("COPYTA"));
    EXPECT_EQ(times.tool("TIMESPENT").text(), "0:00");
    skedTimes.add(ttTextBox, "SCHEDULED").setText("2:00");
    sked->smtSkedTimes_Click(skedTimes.tool("COPYTA"));
    EXPECT_EQ(times.tool("TIMESPENT").text(), "2:00");
    EXPECT_EQ(skedTimes.tool("SPENT").text(), "2:00");
}

}  // namespace
}  // namespace qv
