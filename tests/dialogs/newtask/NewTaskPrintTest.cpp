// Printing the New Task dialog: the report written, the questions, the
// footer and margins handed to the print engine, Page Setup.

#include <filesystem>

#include "dialogs/newtask/NewTaskFixture.h"
#include "reports/PrintSettings.h"
#include "session/globals/SessionGlobals.h"
#include "support/PrintPorts.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"

namespace qv {

namespace {

class NewTaskPrint : public NewTaskFixture {
protected:
    void SetUp() override {
        NewTaskFixture::SetUp();
        ports().print = &surface_;
        ports().locale = &locale_;
        seed();
    }
    void openWith(const std::string& printString) {
        task_.SetupTask(0, {}, {"u0", "u1", "u2", "u3", "u4", "u5"}, 0, printString, "", kAlpha);
    }
    // The defaults with some values changed, keys kept in their order.
    static std::string with(std::initializer_list<std::pair<std::string, std::string>> items) {
        CStringBag defaults, bag;
        defaults.setContents(PrintSettings::defaults(0));
        std::vector<std::string> keys(PrintSettings::kToolKeys.begin(), PrintSettings::kToolKeys.end());
        keys.insert(keys.end(), {"FLEFT", "FRIGHT", "PTASK", "PCHECKLIST", "PNOTES"});
        for (const auto& key : keys) {
            std::string value = defaults.ReadItem(key);
            for (const auto& [k, v] : items)
                if (k == key) value = v;
            bag.WriteItem(key, value);
        }
        return bag.Contents();
    }
    [[nodiscard]] std::string reportFile() const { return folder() + "/Quorvel Reports/NewTask.htm"; }
    void print(int32_t answer, const char* key = "PRINT") {
        then([this, answer] { scriptedUi().queueAnswer(answer); });
        click("smtActions", key);
    }

    // Escape on the changed dialog, and Yes to its question.
    void leave() {
        then([this] { scriptedUi().queueAnswer(vbYes); });
        key(vbKeyEscape);
    }

    RecordingSurface surface_;
    FixedLocale locale_;
};

}  // namespace

TEST_F(NewTaskPrint, TheReportOfATaskNotYetSaved) {
    fireTimer();
    typeDescription("Plant <b>tulips</b>");
    then([this] { form().controls().ctDeadline.userSetValue(46000.0); });
    then([this] { form().controls().SpellNotes.userEdit("Before the frost"); });
    print(vbYes);
    leave();
    openWith(with({{"HEADING", "Garden"}, {"HFONT", "Verdana"}, {"HSIZE", "12"}, {"HCOLOR", "255"},
                   {"PCHECKLIST", "False"}}));

    EXPECT_EQ(scriptedUi().messages().at(0).text, "Print this Task? It may take a moment or two to prepare.");
    EXPECT_EQ(scriptedUi().messages().at(0).style, vbYesNo);
    const std::string html = readFile(reportFile());
    const std::string heading =
        "<h1><font face=Verdana color=4><span style= \"font-size:16pt\">Garden</span></font></h1>";
    EXPECT_EQ(html.rfind(heading, 0), 0u) << html;
    const std::string value =
        "<td width=\"60%\"align=\"left\" bgcolor=\"#FFFFFF\"><font face=\"Verdana\" color=\"255\" "
        "size=\"2\">";
    for (const std::string& v :
         {std::string("Plant <b>tulips</b>"), std::string("Not yet saved."), std::string("False"),
          std::string("46000"), std::string("Alpha"), g().ImportanceList[0], g().DifficultyList[0]})
        EXPECT_NE(html.find(value + v + "</font></td>"), std::string::npos) << v << "\n" << html;
    EXPECT_NE(html.find("Task Information:"), std::string::npos);
    EXPECT_NE(html.find("Notes:</span></font></h2><BR>\r\n"), std::string::npos);
    EXPECT_NE(html.find("Before the frost"), std::string::npos);
    EXPECT_EQ(html.find("Checklist:"), std::string::npos);
    EXPECT_EQ(html.find("Schedule:"), std::string::npos) << "the New Task report has no schedule";
    EXPECT_EQ(html.substr(html.size() - 14), "</body></html>");

    ASSERT_EQ(surface_.printed.size(), 1u);
    const PrintJob& job = surface_.printed[0];
    EXPECT_EQ(job.footer, "{newline}{line}{Left}Quorvel - Version 1.14{Right}{PageNum}");
    EXPECT_EQ(job.header, "");
    EXPECT_EQ(job.footerFont, "Arial");
    EXPECT_EQ(job.footerSize, 8);
    EXPECT_EQ(job.marginLeft, 1440) << "2.54 cm in twips";
    EXPECT_EQ(job.marginTop, 1440);
    EXPECT_EQ(job.file, reportFile());
    EXPECT_FALSE(scriptedUi().waitCursor());
}

TEST_F(NewTaskPrint, QuestionsFootersAndMargins) {
    fireTimer();
    print(vbNo);
    then([this] { EXPECT_FALSE(std::filesystem::exists(reportFile())) << "No writes no file"; });
    print(vbYes, "PRINTPREVIEW");
    leave();
    locale_.system = 1;
    openWith(with({{"FLEFT", "Quorvel - Version 1.03"}, {"FRIGHT", "Page Number"}, {"LEFT", "0.5"},
                   {"PTASK", "False"}, {"PCHECKLIST", ""}, {"PNOTES", "False"}, {"HEADING", "Only this"}}));
    EXPECT_EQ(scriptedUi().messages().at(1).text,
              "Print Preview this Task? It may take a moment or two to prepare.");
    EXPECT_TRUE(surface_.printed.empty());
    ASSERT_EQ(surface_.previewed.size(), 1u);
    EXPECT_EQ(surface_.previewed[0].footer, "{newline}{line}{Left}Quorvel - Version 1.14{Right}{PageNum}");
    EXPECT_EQ(surface_.previewed[0].marginLeft, 720) << "half an inch";
    EXPECT_EQ(readFile(reportFile()),
              "<h1><font face=Arial color=4><span style= \"font-size:16pt\">Only this</span></font></h1>"
              "</body></html>");

    // "--Page Number--" is not translated; a report left before is overwritten.
    fireTimer();
    print(vbYes);
    leave();
    openWith(with({{"FLEFT", "--Page Number--"}, {"FRIGHT", "<#>"}, {"HEADING", "Second"}}));
    EXPECT_EQ(surface_.printed.at(0).footer, "{newline}{line}{Left}--Page Number--{Right}{PageNum}");
    EXPECT_NE(readFile(reportFile()).find("Second"), std::string::npos);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(NewTaskPrint, AMissingReportsFolderOrAPartStringTakesTheErrorPath) {
    std::filesystem::remove_all(folder() + "/Quorvel Reports");
    fireTimer();
    print(vbYes);
    openWith(PrintSettings::defaults(0));
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "DoPrint");
    EXPECT_EQ(reporter().faults()[0].number, 76);
    EXPECT_TRUE(surface_.printed.empty());
    EXPECT_FALSE(form().loaded());

    reporter().clear();
    std::filesystem::create_directories(folder() + "/Quorvel Reports");
    fireTimer();
    print(vbYes);
    openWith("HEADING=x\t");
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "MakeHTML");
    EXPECT_FALSE(std::filesystem::exists(reportFile()));
}

TEST_F(NewTaskPrint, PageSetupKeepsTheStringInTheSessionOnly) {
    fireTimer();
    click("smtActions", "PAGESETUP");
    then([this] {
        for (const auto& f : Form::openForms())
            if (f->name() == "frmPageSetup") {
                Tool& heading = f->sheet("smtPrinting(1)")->tool("HEADING");
                heading.sheet()->userEdit(heading, "Renamed");
                Sheet& bar = *f->sheet("smtActions");
                bar.click(bar.tool("OK"));
            }
    });
    print(vbYes);
    leave();
    openWith(PrintSettings::defaults(0));
    CStringBag bag;
    bag.setContents(g().TaskPrintDialog);
    EXPECT_EQ(bag.ReadItem("HEADING"), "Renamed");
    EXPECT_EQ(count("updateMainPrintInfo"), 0) << "only the Existing Task dialog tells the host";
    EXPECT_NE(readFile(reportFile()).find(">Renamed</span>"), std::string::npos);
    EXPECT_FALSE(g().SettingUp);
}

}  // namespace qv
