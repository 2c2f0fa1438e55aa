// The task tables of the Existing Task and Task Appointment reports, read
// by position, and the schedule from a grid through the whole report.

#include <gtest/gtest.h>

#include "reports/DialogReportSource.h"
#include "reports/PrintSettings.h"
#include "reports/TaskReport.h"
#include "reports/TaskReportRows.h"
#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/DateBox.h"
#include "toolkit/Grid.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"
#include "values/settings/Settings.h"

namespace qv {

namespace {

class TaskReportRowsTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        LoadSettings();  // durations are written in the store's formats
        spellTask.setText("Prune the roses");
        const char* captions[] = {
            "Status:",  "Current:",    "General",     "Deadline", "Date:",      "Time:",      "Details",
            "Project:", "Importance:", "Difficulty:", "Needed:",  "Scheduled:", "Time Spent:"};
        const char* keys[] = {"STATUS",  "ISCURRENT", "T2",   "T3",     "DEADLINE",  "DEADTIME", "T6",
                              "PROJECT", "IMP",       "DIFF", "NEEDED", "SCHEDULED", "SPENT"};
        int n = 0;
        for (const char* c : captions) {
            Tool& t = about.add(ttTextBox, keys[n], c);
            t.setText("v" + std::to_string(++n));
        }
        ready.add(ttTextBox, "POINTS").setText("42");
    }

    static std::string column(const ReportRows& rows, int c) {
        std::string out;
        for (int32_t r = 0; r < rows.rows(); ++r) out += rows.at(c, r) + "|";
        return out;
    }

    TextEditor spellTask{"spellTask"}, checklist{"spellCK"}, notes{"SpellNotes"};
    Sheet about{"smtABOUT"}, ready{"smtReady"};
    DateBox deadline{"ctDeadline"};
};

}  // namespace

TEST_F(TaskReportRowsTest, ExistingTaskAndAppointmentTablesByPosition) {
    ReportRows rows = TaskReportRows::existingTask(spellTask, about, deadline, ready);
    EXPECT_EQ(
        column(rows, 0),
        "Task Description:|Status:|Current:|Deadline Date:|Deadline Time:|Project:|Importance:|Difficulty:|"
        "Needed:|Scheduled:|Time Spent:|Possible Points:|");
    EXPECT_EQ(column(rows, 1), "Prune the roses|v1|v2|No Deadline|No Deadline|v8|v9|v10|v11|v12|v13|42|");
    deadline.setValue(46000.75);
    rows = TaskReportRows::existingTask(spellTask, about, deadline, ready);
    EXPECT_EQ(rows.at(1, 3), "46000");
    EXPECT_EQ(rows.at(1, 4), "v6");

    about.tool("DEADLINE").setText("");
    rows = TaskReportRows::appointment(spellTask, about, ready);
    EXPECT_EQ(
        column(rows, 0),
        "Task Description:|Status:|Current:|Deadline:|Project:|Importance:|Difficulty:|Possible Points:|");
    EXPECT_EQ(column(rows, 1), "Prune the roses|v1|v2|No Deadline|v8|v9|v10|42|");
    about.tool("DEADLINE").setText("3/1/2026");
    EXPECT_EQ(TaskReportRows::appointment(spellTask, about, ready).at(1, 3), "3/1/2026");
}

TEST_F(TaskReportRowsTest, TheScheduleFromTheGridThroughTheWholeReport) {
    Grid grid("gridSked");
    EXPECT_FALSE(TaskReportRows::schedule(grid).has_value()) << "no rows: No Schedule.";
    for (const char* field :
         {"taGUIDID", "taStartTime", "taEndTime", "CalcColumn", "taWasWorked", "taTimeWorked"})
        grid.addColumn(field, field);
    grid.addRow({"k1", "3/1/2026 9:00", "3/1/2026 9:30", "0:30", "True", "95"});
    grid.addRow({"k2", "3/2/2026 9:00", "3/2/2026 10:00", "1:00", "False", "0"});
    const auto rows = TaskReportRows::schedule(grid);
    ASSERT_TRUE(rows.has_value());
    EXPECT_EQ(rows->rows(), 2);
    EXPECT_EQ(rows->at(0, 1), "3/2/2026 9:00");
    EXPECT_EQ(rows->at(4, 0), "1:35") << "minutes worked as a duration";

    g().DialogNum = 1;
    g().TaskPrintDialog = PrintSettings::defaults(1);
    DialogReportSource source(
        checklist, notes, [this] { return TaskReportRows::existingTask(spellTask, about, deadline, ready); },
        [&grid] { return TaskReportRows::schedule(grid); });
    TaskReport report(TaskReport::kExistingTask, source, "frmExistingTask");
    const std::string html = report.MakeHTML().value_or("");
    // The last appointment is shown too.
    for (const char* cell : {">Prune the roses</font>", ">3/1/2026 9:00</font>", ">3/2/2026 10:00</font>", ">1:35</font>"})
        EXPECT_NE(html.find(cell), std::string::npos) << cell;
    EXPECT_EQ(html.find("k1"), std::string::npos);
    EXPECT_TRUE(reporter().faults().empty());
}

}  // namespace qv
