#include <stdexcept>

#include "session/globals/SessionGlobals.h"
#include "store/ConsoleReporter.h"
#include "store/ADOCode.h"
#include "store/ErrorPath.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Timer.h"

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
    EXPECT_EQ(fault.module + "." + fault.procedure, "m_Task.SaveTask");
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

// A dialog whose unload logic faults, as one saving its settings on a broken store does.
class FaultingForm : public Form {
public:
    FaultingForm() : Form("frmTask3") { addControl("startTimer", tick); }
    Timer tick;
    int unloads = 0;

protected:
    void Form_Unload() override {
        ++unloads;
        trap("m_Task", "SaveSettings", [] { throw Failure(err::StoreFailure, "still broken"); });
    }
};

TEST_F(TestEnv, AFaultWhileTheErrorPathRunsIsDroppedAndEveryFormStillGoes) {
    auto form = std::make_shared<FaultingForm>();
    form->load();
    form->tick.setInterval(500);
    form->tick.setEnabled(true);
    int ticks = 0;
    form->tick.Tick.connect([&] { ++ticks; });

    ReportError("QuorvelTask2", "clsSettings", "GetData", "not a store", err::StoreFailure, 0, g().UStuff);
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "GetData");
    EXPECT_EQ(form->unloads, 1);
    EXPECT_FALSE(form->loaded());
    EXPECT_TRUE(Form::openForms().empty());
    fakeClock().advance(2000);
    EXPECT_EQ(ticks, 0) << "the closed dialog's timer still fires";

    // Outside a host session each fault is its own; inside one, only the first is told.
    EXPECT_FALSE(trap("m", "p", [] { throw Failure(1, "second"); }));
    EXPECT_EQ(reporter().faults().size(), 2u);
    {
        FaultSession session;
        EXPECT_FALSE(errorPathTaken());
        EXPECT_FALSE(trap("m", "first", [] { throw Failure(1, "first"); }));
        EXPECT_TRUE(errorPathTaken());
        EXPECT_FALSE(trap("m", "after", [] { throw Failure(1, "caused by the first"); }));
        EXPECT_THROW(locateSessionStore(), Failure);  // the store is left alone
    }
    EXPECT_FALSE(errorPathTaken());
    ASSERT_EQ(reporter().faults().size(), 3u);
    EXPECT_EQ(reporter().faults()[2].procedure, "first");
}

TEST_F(TestEnv, TheErrorPathEndsOpenSavesBeforeItTells) {
    ASSERT_TRUE(ADOTest());
    int64_t rowsWhenTold = -1;
    RecordingReporter watching;
    ports().reporter = &watching;
    auto count = [this] { return readInt("SELECT COUNT(*) FROM PROJECTS"); };
    auto addProject = [](const std::string& key) {
        Recordset rs;
        rs.Open("SELECT * from PROJECTS WHERE prjGUIDID='none'", g().ConnString, adOpenStatic, adLockBatchOptimistic);
        rs.AddNew();
        rs.Fields("prjGUIDID") = Value(key);
        rs.Update();
        rs.UpdateBatch();
    };
    watching.GotErrExitNow.connect([&] { rowsWhenTold = count(); });
    trap("frmTask3", "SaveTask", [&] {
        SaveTransaction save;
        addProject("KEPT");
        save.keepSoFar();
        addProject("UNDONE");
        // A failure trapped inside the save: the report comes while it is open.
        ReportError("QuorvelTask2", "clsNewTask", "GetDataKEY", "gone", err::StoreFailure, 0, g().UStuff);
        save.commit();  // already settled: nothing more happens
    });
    ports().reporter = &reporter();
    EXPECT_EQ(rowsWhenTold, 1) << "the save still held the lock, or kept too much, when the user was told";
    EXPECT_EQ(readOne("SELECT COUNT(*) FROM PROJECTS"), "1");
    EXPECT_EQ(readOne("SELECT prjGUIDID FROM PROJECTS"), "KEPT");
}

}  // namespace
}  // namespace qv
