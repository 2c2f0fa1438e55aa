#include "store/clsTaskSchedule.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"

namespace qv {
namespace {

class TaskSchedule : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        schedule.SetSQL("SELECT * from TASKAPPTS WHERE taTaskGUIDID = 'T1'");
    }
    bool open() { return schedule.GetDataKEY(rst); }
    void addRow(const std::string& key) {
        exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taImp) VALUES ('" + key + "', 'T1', 2)");
    }
    int64_t rows() const { return readInt("SELECT COUNT(*) FROM TASKAPPTS"); }

    clsTaskSchedule schedule;
    RecordsetPtr rst;
};

TEST_F(TaskSchedule, AddTAReadsImportanceFirstAndDifficultyLast) {
    ASSERT_TRUE(open());
    const Date start{45306.375}, end{45306.4375};
    EXPECT_TRUE(schedule.AddTA("A1", "T1", "Home", "P1", start, end, "Paint the fence", "31"));
    EXPECT_TRUE(schedule.AddTA("A2", "T1", "Home", "P1", start, end, "Paint the fence", "3"));
    EXPECT_EQ(schedule.GetRowCount(), 2);  // the set was requeried

    EXPECT_EQ(readOne("SELECT taImp || '/' || taDifficulty || '/' || taWasWorked || '/' || taProjectGUIDID || "
                      "'/' || taTaskDesc FROM TASKAPPTS WHERE taGUIDID='A1'"),
              "3/1/0/P1/Paint the fence");
    EXPECT_EQ(readOne("SELECT taImp || '/' || taDifficulty FROM TASKAPPTS WHERE taGUIDID='A2'"), "3/3");
    EXPECT_EQ(readOne("SELECT taStartTime FROM TASKAPPTS WHERE taGUIDID='A1'").substr(0, 16),
              "2024-01-15T09:00");
    EXPECT_EQ(readOne("SELECT taTimeWorked FROM TASKAPPTS WHERE taGUIDID='A1'"), "");

    // Ends that are not digits fail before anything is written.
    EXPECT_FALSE(schedule.AddTA("A3", "T1", "Home", "P1", start, end, "x", "x1"));
    EXPECT_FALSE(schedule.AddTA("A4", "T1", "Home", "P1", start, end, "x", ""));
    EXPECT_EQ(rows(), 2);
    ASSERT_EQ(reporter().faults().size(), 2u);
    EXPECT_EQ(reporter().faults()[0].module + "." + reporter().faults()[0].procedure, "clsTaskSchedule.AddTA");
    EXPECT_EQ(reporter().faults()[0].number, err::TypeMismatch);
}

TEST_F(TaskSchedule, KillTARemovesEveryRowOfTheKey) {
    addRow("K");
    addRow("OTHER");
    addRow("K");
    ASSERT_TRUE(open());
    EXPECT_FALSE(schedule.KillTA("k"));  // keys compare exactly
    EXPECT_TRUE(schedule.KillTA("K"));
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(readOne("SELECT taGUIDID FROM TASKAPPTS"), "OTHER");
    EXPECT_EQ(schedule.GetRowCount(), 1);
    EXPECT_FALSE(schedule.KillTA("K"));
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TaskSchedule, WorkWithoutAnOpenSetIsReportedAndRelayed) {
    int exits = 0;
    schedule.setTempErrReport(&reporter());
    schedule.GotErrExitNow.connect([&] { ++exits; });
    EXPECT_FALSE(schedule.KillTA("K"));
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "KillTA");
    EXPECT_EQ(reporter().faults()[0].number, err::ObjectRequired);
    EXPECT_EQ(exits, 1);
}

}  // namespace
}  // namespace qv
