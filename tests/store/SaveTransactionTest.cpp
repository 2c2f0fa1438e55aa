#include <stdexcept>

#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "support/TestEnv.h"

namespace qv {
namespace {

class SaveTransactionTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        ASSERT_TRUE(ADOTest());
    }
    // One keyword row through a Recordset with its own UpdateBatch.
    void addKeywordRow(const std::string& task, const std::string& keyword) {
        Recordset rs;
        rs.Open("SELECT * from TaskKeywords WHERE ktTASKGUID= 'none'", g().ConnString, adOpenStatic,
                adLockBatchOptimistic);
        rs.AddNew();
        rs.Fields("ktTASKGUID") = Value(task);
        rs.Fields("ktKeyword") = Value(keyword);
        rs.Update();
        rs.UpdateBatch();
        rs.Close();
    }
    int64_t rowsOf(const std::string& task) {
        return readInt("SELECT COUNT(*) FROM TaskKeywords WHERE ktTASKGUID='" + task + "'");
    }
};

TEST_F(SaveTransactionTest, SavesAreWholeOrAbsentAndNest) {
    {
        SaveTransaction save;
        EXPECT_TRUE(save.outermost());
        addKeywordRow("A", "one");
        addKeywordRow("A", "two");
        // Not yet visible to another connection.
        EXPECT_EQ(rowsOf("A"), 0);
        save.commit();
    }
    EXPECT_EQ(rowsOf("A"), 2);

    try {
        SaveTransaction save;
        addKeywordRow("B", "one");
        throw std::runtime_error("fault midway");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(rowsOf("B"), 0) << "an uncommitted save leaves nothing";

    // An inner save undone keeps what the outer one wrote before it.
    {
        SaveTransaction save;
        addKeywordRow("C", "task row");
        {
            SaveTransaction inner;
            EXPECT_FALSE(inner.outermost());
            addKeywordRow("C", "keyword");
        }
        {
            SaveTransaction inner;
            addKeywordRow("C", "kept");
            inner.commit();
        }
        EXPECT_EQ(rowsOf("C"), 0) << "an inner commit is not yet the save";
        save.commit();
    }
    EXPECT_EQ(rowsOf("C"), 2);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords WHERE ktKeyword='keyword'"), 0);

    // The next save is outermost again.
    SaveTransaction after;
    EXPECT_TRUE(after.outermost());
    after.commit();
    after.commit();  // a second commit is harmless
    EXPECT_TRUE(after.committed());
}

}  // namespace
}  // namespace qv
