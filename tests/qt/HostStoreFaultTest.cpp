// The desktop host on a store that can't be used: one report, no dialog,
// the window still there; pointed at another folder, it works again.
#include <QTemporaryDir>
#include <fstream>

#include "HostFixture.h"
#include "view/HostSession.h"
#include "view/HostStore.h"

namespace qv {
namespace {

TEST_F(HostFixture, ABrokenStoreIsToldOnceAndTheHostCanMoveToAnotherFolder) {
    {
        std::ofstream junk(folder() + "/QuorvelData.mdb", std::ios::binary | std::ios::trunc);
        junk << std::string(4096, 'x');
    }
    StepRunner steps(3000);
    steps.when("no dialog comes", [] { return true; }, [] {});
    openNewTask(steps);
    EXPECT_TRUE(host().session().ended());
    EXPECT_FALSE(shown("frmTask3"));
    const QString log = HostFixture::log();
    EXPECT_EQ(log.count("Fault:"), 1) << log.toStdString();
    EXPECT_TRUE(log.contains("is not a Quorvel data file")) << log.toStdString();
    EXPECT_EQ(log.count("GotErrExitNow"), 1) << log.toStdString();

    QTemporaryDir other;
    host().session().useFolder(other.path().toStdString());
    EXPECT_EQ(host().store().folder(), other.path().toStdString());
    EXPECT_FALSE(host().session().ended());
    StepRunner again;
    again.when("New Task is shown", [] { return shown("frmTask3"); },
               [] { StepRunner::clickTool("frmTask3", "smtActions.DONE"); }, kStartTimerSettleMs);
    openNewTask(again);
    EXPECT_TRUE(ranAll(again));
    EXPECT_FALSE(host().session().ended());
}

}  // namespace
}  // namespace qv
