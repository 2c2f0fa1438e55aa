// The shared print flow with a dialog that has a schedule.

#include <gtest/gtest.h>

#include "reports/FooterFormat.h"
#include "reports/FooterText.h"
#include "reports/PrintSettings.h"
#include "reports/ReportSource.h"
#include "reports/TaskReport.h"
#include "session/globals/SessionGlobals.h"
#include "support/PrintPorts.h"
#include "support/TestEnv.h"
#include "toolkit/Ports.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"

namespace qv {

namespace {

struct ScheduleSource : ReportSource {
    TextEditor checklist{"spellCK"}, notes{"SpellNotes"};
    int appointments = 3;
    bool grid = true;
    ReportRows taskRows() override {
        ReportRows r(2, 1);
        r.at(0, 0) = "Task Description:";
        r.at(1, 0) = "Weed";
        return r;
    }
    const TextEditor& checklistEditor() const override { return checklist; }
    const TextEditor& notesEditor() const override { return notes; }
    bool hasSchedule() const override { return true; }
    std::optional<ReportRows> scheduleRows() override {
        if (!grid) return std::nullopt;
        ReportRows r(5, appointments);
        for (int32_t i = 0; i < appointments; ++i) r.at(0, i) = "start" + std::to_string(i);
        return r;
    }
};

class TaskReportTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        ports().print = &surface_;
        ports().locale = &locale_;
        g().DialogNum = 1;
    }
    void settings(const char* key, const char* value) {
        CStringBag bag;
        bag.setContents(g().TaskPrintDialog.empty() ? PrintSettings::defaults(1) : g().TaskPrintDialog);
        // Values replaced in place keep "LEFT" ahead of "FLEFT".
        const std::string item = std::string(key) + "=" + bag.ReadItem(key) + "\t";
        std::string text = bag.Contents();
        text.replace(text.find(item), item.size(), std::string(key) + "=" + value + "\t");
        g().TaskPrintDialog = text;
    }

    ScheduleSource source_;
    RecordingSurface surface_;
    FixedLocale locale_;
};

}  // namespace

TEST_F(TaskReportTest, ScheduleRowsAllShownThroughTheSpareRow) {
    settings("PNOTES", "False");
    TaskReport report(TaskReport::kExistingTask, source_, "frmExistingTask");
    const std::string html = *report.MakeHTML();
    for (int i = 0; i < 3; ++i)
        EXPECT_NE(html.find(">start" + std::to_string(i) + "<"), std::string::npos) << i;
    EXPECT_NE(html.find("<b>Time Spent</b>"), std::string::npos);
    EXPECT_NE(html.find("No Checklist."), std::string::npos);
    EXPECT_EQ(html.find("Notes:"), std::string::npos);

    source_.grid = false;
    EXPECT_NE(report.MakeHTML()->find("Schedule:</span></font></h2><BR>No Schedule."), std::string::npos);
    settings("PSCHEDULE", "False");
    EXPECT_NE(report.MakeHTML()->find("pt\"></span></font></h2><BR>No Schedule."), std::string::npos)
        << "a schedule not asked for still shows its (untitled) heading";
    // Another dialog's string: "PSCHEDULE" is not read.
    settings("PSCHEDULE", "True");
    source_.grid = true;
    g().DialogNum = 2;
    EXPECT_NE(report.MakeHTML()->find("No Schedule."), std::string::npos);

    // No task table: the schedule has no first headings and says so.
    g().DialogNum = 1;
    settings("PTASK", "False");
    scriptedUi().queueAnswer(vbOK);
    const std::string noTask = *report.MakeHTML();
    EXPECT_EQ(scriptedUi().lastMessage().text, "Column Header details not mentioned!");
    EXPECT_EQ(noTask.find("<table"), std::string::npos);
}

TEST_F(TaskReportTest, TheExistingTaskPrintsAnOlderTitleAsStored) {
    settings("FLEFT", "Quorvel - Version 1.02");
    for (int i = 0; i < 4; ++i) scriptedUi().queueAnswer(vbYes);
    TaskReport existing(TaskReport::kExistingTask, source_, "frmExistingTask");
    existing.DoPrint();
    existing.DoPrintPreview();
    TaskReport appointment(TaskReport::kTaskAppointment, source_, "frmTAS2");
    appointment.DoPrint();
    ASSERT_EQ(surface_.printed.size(), 2u);
    EXPECT_EQ(surface_.printed[0].footer, "{newline}{line}{Left}Quorvel - Version 1.02{Right}{PageNum}");
    EXPECT_EQ(surface_.previewed.at(0).footer, "{newline}{line}{Left}Quorvel - Version 1.14{Right}{PageNum}");
    EXPECT_EQ(surface_.printed[1].footer, "{newline}{line}{Left}Quorvel - Version 1.14{Right}{PageNum}");
    EXPECT_EQ(surface_.printed[1].file, folder() + "/Quorvel Reports/TaskAppointment.htm");
    EXPECT_EQ(scriptedUi().messages()[2].text,
              "Print this Task Appointment? It may take a moment or two to prepare.");
    EXPECT_EQ(scriptedUi().messages()[0].text, "Print this Task? It may take a moment or two to prepare.");
}

TEST(FooterFormat, MarkersMakeRuledLinesWithTwoSidesAndThePageNumber) {
    auto lines = FooterFormat::lines("{newline}{line}{Left}Quorvel - Version 1.14{Right}Page {PageNum}", 7);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].rule);
    EXPECT_EQ(lines[0].left, "Quorvel - Version 1.14");
    EXPECT_EQ(lines[0].right, "Page 7");

    lines = FooterFormat::lines("{Left}{PageNum}{Right}{newline}{Right}--Page Number--", 12);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_FALSE(lines[0].rule);
    EXPECT_EQ(lines[0].left, "12");
    EXPECT_EQ(lines[0].right, "");
    EXPECT_EQ(lines[1].right, "--Page Number--");
    // Braces that are no marker stay as they are.
    EXPECT_EQ(FooterFormat::lines("{x}", 1).at(0).left, "{x}");

    // What the footer picks turn into at print time.
    const std::pair<const char*, const char*> picks[] = {
        {"<#>", "{PageNum}"},         {"Page Number", "{PageNum}"},          {"--Page Number--", "--Page Number--"},
        {"--Short Date--", "3/15/2023"}, {"--Date Time--", "3/15/2023 12:00"}, {"Quorvel", "Quorvel"}};
    for (const auto& [pick, printed] : picks) EXPECT_EQ(FooterText::forPrint(pick, 45000.5), printed) << pick;
}

}  // namespace qv
