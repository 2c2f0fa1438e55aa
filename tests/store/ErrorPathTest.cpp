#include <stdexcept>

#include "session/globals/SessionGlobals.h"
#include "store/ConsoleReporter.h"
#include "store/ErrorPath.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"

namespace qv {
namespace {

class LoggedForm : public Form {
public:
    LoggedForm(std::string name, std::vector<std::string>& log) : Form(std::move(name)), log_(log) {}

protected:
    void Form_Unload() override { log_.push_back(name()); }

private:
    std::vector<std::string>& log_;
};

TEST_F(TestEnv, ReportErrorTellsTheReporterAndUnloadsTheMainFormLast) {
    std::vector<std::string> unloaded;
    auto main = std::make_shared<LoggedForm>("frmMain", unloaded);
    auto task = std::make_shared<LoggedForm>("frmExistingTask", unloaded);
    main->load();
    task->load();
    g().UStuff = {"a", "b", "c", "d", "e", "f"};

    ReportError("QuorvelTask2", "m_Task", "SaveTask", "Overflow", 6, 12, g().UStuff);

    ASSERT_EQ(reporter().faults().size(), 1u);
    const auto& fault = reporter().faults()[0];
    EXPECT_EQ(fault.module, "m_Task");
    EXPECT_EQ(fault.procedure, "SaveTask");
    EXPECT_EQ(fault.number, 6);
    EXPECT_EQ(fault.line, 12);
    EXPECT_EQ(fault.ustuff[5], "f");
    EXPECT_EQ(fault.profile, "");  // "NONE" means no profile
    EXPECT_EQ(unloaded, (std::vector<std::string>{"frmExistingTask", "frmMain"}));
    EXPECT_TRUE(Form::openForms().empty());

    g().OutlookProfile = "Work";
    ReportError("QuorvelTask2", "m", "p", "d", 1, 0, g().UStuff);
    EXPECT_EQ(reporter().faults().back().profile, "Work");
    g().OutlookProfile = "";
    ReportError("QuorvelTask2", "m", "p", "d", 1, 0, g().UStuff);
    EXPECT_EQ(reporter().faults().back().profile, "");
}

TEST_F(TestEnv, TrapReportsAndGivesTheDefaultResult) {
    EXPECT_EQ(trap("m_Task", "Sum", [] { return 7; }), 7);
    EXPECT_TRUE(trap("m_Task", "Nothing", [] {}));
    EXPECT_TRUE(reporter().faults().empty());

    EXPECT_EQ(trap("m_Task", "Count", []() -> int { throw Failure(err::Overflow, "Overflow"); }), 0);
    EXPECT_EQ(trap("m_Task", "Name", []() -> std::string { throw std::out_of_range("slot 6"); }), "");
    EXPECT_FALSE(trap("frmTask3", "Click", [] { throw 42; }));

    const auto& faults = reporter().faults();
    ASSERT_EQ(faults.size(), 3u);
    EXPECT_EQ(faults[0].project, "QuorvelTask2");
    EXPECT_EQ(faults[0].procedure, "Count");
    EXPECT_EQ(faults[0].number, err::Overflow);
    EXPECT_EQ(faults[0].description, "Overflow");
    EXPECT_EQ(faults[1].number, err::SubscriptOutOfRange);
    EXPECT_EQ(faults[2].module, "frmTask3");
    EXPECT_FALSE(faults[2].description.empty());
}

TEST_F(TestEnv, ConsoleReporterLogsInTheProgramFolderAndEndsTheSession) {
    ports().reporter = nullptr;  // the default reporter takes over
    ConsoleReporter console;
    int exits = 0;
    console.GotErrExitNow.connect([&] { ++exits; });
    console.report({"QuorvelTask2", "clsSettings", "GetData", "disk full", 3000, 0, {}, ""});
    ReportError("QuorvelTask2", "m_Task", "LoadSettings", "Type mismatch", 13, 0, g().UStuff);

    EXPECT_EQ(exits, 1);
    const auto log = readFile(folder() + "/QuorvelErrors.log");
    EXPECT_NE(log.find("clsSettings.GetData error 3000 at line 0: disk full"), std::string::npos);
    EXPECT_NE(log.find("m_Task.LoadSettings error 13"), std::string::npos);
}

}  // namespace
}  // namespace qv
