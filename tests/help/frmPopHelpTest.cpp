#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "help/HelpTopics.h"
#include "help/SurfaceHelpPrinter.h"
#include "help/TourPreference.h"
#include "help/frmPopHelp.h"
#include "session/globals/SessionGlobals.h"
#include "support/PrintPorts.h"
#include "support/TestEnv.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"

namespace qv {
namespace {

struct RecordingPrinter : HelpPrinter {
    void print(const HelpPrintJob& job) override {
        if (fail) throw std::runtime_error("printer jammed");
        printed.push_back(job);
    }
    void preview(const HelpPrintJob& job) override { previewed.push_back(job); }
    std::vector<HelpPrintJob> printed, previewed;
    bool fail = false;
};

struct MemoryTour : TourPreference {
    [[nodiscard]] bool showTourAtStart() const override { return show; }
    void setShowTourAtStart(bool s) override {
        show = s;
        ++writes;
    }
    bool show = true;
    int writes = 0;
};

// A full print settings string, as Page Setup writes one.
constexpr const char* kSettings =
    "PRINTER=Office\tPAPER=Landscape\tCOPIES=2\tPAGESWIDE=1\tPRINTCOLOR=Yes\tTOP=1.5\tBOTTOM=1\tRIGHT=0.5\t"
    "LEFT=2\tHCOLOR=255\tHFONT=Serif\tHSIZE=16\tHEADING=Tasks\tFCOLOR=128\tFFONT=Sans\tFSIZE=8\t"
    "FLEFT=--Short Date--\tFRIGHT=<#>\t";

class PopHelpTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        pop = std::make_shared<frmPopHelp>(&printer, &tour);
        pop->helpLocation.connect([this](const std::string& l) { locations.push_back(l); });
        pop->closePop.connect([this] { ++closes; });
    }
    Tool& tool(const char* key) { return pop->smtAction.tool(key); }
    void click(const char* key) { pop->smtAction.click(tool(key)); }
    std::string page(const char* name) { return folder() + "/help/" + name; }

    RecordingPrinter printer;
    MemoryTour tour;
    std::shared_ptr<frmPopHelp> pop;
    std::vector<std::string> locations;
    int closes = 0;
};

TEST(HelpTopicsTable, NumbersTitlesAndTheSettledOddities) {
    for (int32_t t = 0; t <= 7; ++t) EXPECT_EQ(HelpTopics::find(t)->page, "help/POP-MetricsQV.htm") << t;
    const std::pair<int32_t, const char*> titles[] = {
        {8, "Quorvel: Keywords"},  {600, "Quorvel: Creating New Tasks"}, {601, "Quorvel: Working With Existing Tasks"},
        {700, "Quorvel: Working with Task Appointments"}, {6000, "Quorvel Strategies"},
        {99, "Quorvel: Task Catalog"}, {250, "Quorvel: Outlook Task Import"}};
    for (const auto& [topic, title] : titles) EXPECT_EQ(HelpTopics::find(topic)->title, title) << topic;
    // Topic 10 shows its own page but keeps the catalog's for printing; 99 is the help page
    // under the catalog's title.
    const std::pair<int32_t, const char*> pages[] = {
        {800, "help/POP-ADDPROJECT.htm"}, {7000, "help/QV-TOUR1.htm"}, {10, "help/POP-QVIMPORT.htm"},
        {99, "help/POP-HELP.htm"}};
    for (const auto& [topic, page] : pages) EXPECT_EQ(HelpTopics::find(topic)->page, page) << topic;
    EXPECT_EQ(HelpTopics::find(10)->keptPath, "help/POP-TASKCAT.htm");
    for (int32_t unknown : {-1, 11, 22, 24, 501, 602, 7001, 100000}) EXPECT_FALSE(HelpTopics::find(unknown)) << unknown;
    EXPECT_EQ(HelpTopics::pageFiles().size(), 26u);
}

TEST_F(PopHelpTest, SetupShowsTheTopicAndAnUnknownOneAnEmptyPaneWithoutAMessage) {
    EXPECT_TRUE(pop->Setup(601));
    EXPECT_EQ(pop->caption(), "Quorvel: Working With Existing Tasks");
    EXPECT_EQ(pop->browsePWindow.LocationURL(), page("POP-EXISTINGTASKDIALOG.htm"));
    EXPECT_EQ(pop->helpPath(), "help/POP-EXISTINGTASKDIALOG.htm");
    EXPECT_EQ(locations, std::vector<std::string>{page("POP-EXISTINGTASKDIALOG.htm")});
    EXPECT_FALSE(tool("NOSHOW").visible());
    EXPECT_FALSE(tool("S1").visible());
    EXPECT_EQ(pop->rememberedTopic(), 0);

    auto blank = std::make_shared<frmPopHelp>();
    EXPECT_TRUE(blank->Setup(4242));
    EXPECT_EQ(blank->browsePWindow.LocationURL(), HelpBrowser::kNoLocation);
    EXPECT_FALSE(blank->browsePWindow.hasPage());
    EXPECT_EQ(blank->helpPath(), "");
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_TRUE(reporter().faults().empty());

    // A folder given with its trailing separator gets no second one.
    g().AppPath = folder() + "/";
    auto slash = std::make_shared<frmPopHelp>();
    slash->Setup(10);
    EXPECT_EQ(slash->browsePWindow.LocationURL(), page("POP-QVIMPORT.htm"));
    EXPECT_EQ(slash->helpPath(), "help/POP-TASKCAT.htm");
}

TEST_F(PopHelpTest, TheTourToolShowsForTheTourAloneAndCloseKeepsItsState) {
    tour.show = true;
    pop->Setup(kTourTopic);
    EXPECT_TRUE(tool("NOSHOW").visible() && tool("S1").visible() && tool("NOSHOW").checked());
    click("NOSHOW");
    EXPECT_FALSE(tool("NOSHOW").checked());
    EXPECT_EQ(tour.writes, 0);
    click("CLOSE");
    EXPECT_EQ(closes, 1);
    EXPECT_FALSE(tour.show);

    // The close box tells the owner but leaves the state alone.
    auto again = std::make_shared<frmPopHelp>(&printer, &tour);
    again->Setup(kTourTopic);
    EXPECT_FALSE(again->smtAction.tool("NOSHOW").checked());
    again->smtAction.tool("NOSHOW").setChecked(true);
    int closed = 0;
    again->closePop.connect([&] { ++closed; });
    again->load();
    again->requestClose();
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(tour.writes, 1);
    EXPECT_FALSE(again->loaded());

    // Any other topic never touches it, and Escape leaves like Close.
    auto other = std::make_shared<frmPopHelp>(&printer, &tour);
    other->Setup(600);
    other->closePop.connect([&] { ++closed; });
    other->keyDown(vbKeyEscape);
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(tour.writes, 1);
}

TEST_F(PopHelpTest, BackReturnsAlongTheLinksFollowed) {
    pop->Setup(5000);
    click("BACK");  // nothing before the first page
    EXPECT_EQ(pop->browsePWindow.LocationURL(), page("helpindex.htm"));
    pop->browsePWindow.followed(page("POP-KEYWORDS.htm"));
    pop->browsePWindow.followed(page("POP-TASKCAT.htm"));
    click("BACK");
    EXPECT_EQ(pop->browsePWindow.LocationURL(), page("POP-KEYWORDS.htm"));
    click("BACK");
    EXPECT_EQ(pop->browsePWindow.LocationURL(), page("helpindex.htm"));
    EXPECT_FALSE(pop->browsePWindow.canGoBack());
}

TEST_F(PopHelpTest, PrintAsksFirstAndLaysThePageOutFromThePrintSettings) {
    FixedLocale us;
    us.system = 1;
    ports().locale = &us;
    fakeClock().setNow(45306.75);  // 15 January 2024, 18:00
    pop->setHelpPrinterSettings(kSettings);
    pop->Setup(8);

    scriptedUi().queueAnswer(vbNo);
    click("PRINT");
    EXPECT_EQ(scriptedUi().lastMessage().text, "Print this help topic? It may take a moment or two to prepare.");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbYesNo + vbQuestion);
    EXPECT_EQ(scriptedUi().lastMessage().title, kProgramTitle);
    EXPECT_TRUE(printer.printed.empty());

    scriptedUi().queueAnswer(vbYes);
    click("PRINT");
    ASSERT_EQ(printer.printed.size(), 1u);
    const HelpPrintJob& job = printer.printed[0];
    EXPECT_EQ(job.page, page("POP-KEYWORDS.htm"));
    EXPECT_EQ(job.baseFolder, folder() + "/help/");
    EXPECT_EQ(std::vector<std::string>({job.printer, job.paper, job.headingFont, job.footerFont}),
              std::vector<std::string>({"Office", "Landscape", "Serif", "Sans"}));
    // Copies; margins top, bottom, right, left; heading and footer size and colour.
    EXPECT_EQ(std::vector<int32_t>({job.copies, job.marginTop, job.marginBottom, job.marginRight, job.marginLeft,
                                    job.headingSize, job.headingColor, job.footerSize, job.footerColor}),
              std::vector<int32_t>({2, 2160, 1440, 720, 2880, 16, 255, 8, 128}));
    EXPECT_EQ(job.heading, "Quorvel: Keywords");  // not "Quorvel -": kept whole
    EXPECT_EQ(job.footer, "{newline}{line}{Left}1/15/2024{Right}{PageNum}");

    scriptedUi().queueAnswer(vbYes);
    click("PRINTPREVIEW");
    EXPECT_EQ(scriptedUi().lastMessage().text,
              "Print Preview this help topic? It may take a moment or two to prepare.");
    ASSERT_EQ(printer.previewed.size(), 1u);
    EXPECT_EQ(printer.printed.size(), 1u);
    ports().locale = nullptr;
}

TEST_F(PopHelpTest, PrintFollowsThePaneAndSettlesMetricMarginsAndMissingSettings) {
    FixedLocale metric;
    ports().locale = &metric;
    fakeClock().setNow(45306.75);
    pop->setHelpPrinterSettings("TOP=2.54\tFLEFT=Page Number\tFRIGHT=--Page Number--\t");
    pop->Setup(10);
    pop->browsePWindow.followed(page("strategies.htm") + "#goals");
    const HelpPrintJob job = pop->MakeHelpHTML();
    EXPECT_EQ(job.page, page("strategies.htm"));
    EXPECT_EQ(job.marginTop, 1440);
    EXPECT_EQ(job.marginLeft, 567);  // missing: one unit
    EXPECT_EQ(job.copies, 1);
    EXPECT_EQ(job.footer, "{newline}{line}{Left}{PageNum}{Right}--Page Number--");

    // Nothing shown: nothing to print, and no fault either.
    auto blank = std::make_shared<frmPopHelp>(&printer, &tour);
    blank->Setup(11);
    scriptedUi().queueAnswer(vbYes);
    blank->smtAction.click(blank->smtAction.tool("PRINT"));
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_TRUE(reporter().faults().empty());
    ports().locale = nullptr;
}

TEST_F(PopHelpTest, AFaultIsReportedUnderTheFormsOwnProjectName) {
    printer.fail = true;
    pop->Setup(8);
    int ended = 0;
    pop->GotErrExitNow.connect([&] { ++ended; });
    scriptedUi().queueAnswer(vbYes);
    click("PRINT");
    ASSERT_EQ(reporter().faults().size(), 1u);
    const auto& fault = reporter().faults()[0];
    EXPECT_EQ(fault.project + "." + fault.module + "." + fault.procedure, "QuorvelExportExcel.frmPopHelp.smtAction_Click");
    EXPECT_EQ(ended, 1);
}

// A help page reaches the one print engine with its file, heading, footer
// and margins; with no engine installed nothing happens.
TEST(SurfaceHelpPrinterTest, HandsThePageToThePrintEngine) {
    SurfaceHelpPrinter printer;
    HelpPrintJob job;
    job.page = "/home/u/help/POP-KEYWORDS.htm";
    job.heading = "Quorvel: Keywords";
    job.footer = "{newline}{line}{Left}x{Right}{PageNum}";
    job.footerFont = "Sans";
    job.footerSize = 8;
    std::tie(job.marginLeft, job.marginRight, job.marginTop, job.marginBottom) = std::tuple(1, 2, 3, 4);
    printer.print(job);  // no engine: nothing, no fault

    RecordingSurface surface;
    ports().print = &surface;
    printer.print(job);
    printer.preview(job);
    ports().print = nullptr;
    ASSERT_EQ(surface.printed.size(), 1u);
    ASSERT_EQ(surface.previewed.size(), 1u);
    const PrintJob& p = surface.printed[0];
    EXPECT_EQ(std::tie(p.file, p.header, p.footer, p.footerFont),
              std::tie(job.page, job.heading, job.footer, job.footerFont));
    EXPECT_EQ(std::tuple(p.footerSize, p.marginLeft, p.marginRight, p.marginTop, p.marginBottom),
              std::tuple(8, 1, 2, 3, 4));
}

}  // namespace
}  // namespace qv
