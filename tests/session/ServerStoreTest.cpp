// The store on a PostgreSQL server, behind the same Recordset: these run in
// the "server" pass of the suite (QV_STORE_URI names a throw-away server).

#include <cstdlib>

#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/PgConnection.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "support/TestEnv.h"
#include "support/FailureOf.h"
#include "toolkit/Form.h"
#include "values/types/DateSerial.h"

namespace qv {
namespace {

constexpr const char* kTask = "AAAAAAAA-1111-2222-3333-444444444444";

class ServerStoreTest : public TestEnv {
protected:
    void SetUp() override {
        const char* server = std::getenv("QV_STORE_URI");
        if (!server || !*server) GTEST_SKIP() << "no server store: the \"server\" pass of ctest starts one";
        TestEnv::SetUp();
        ASSERT_TRUE(ADOTest());
        ASSERT_TRUE(isServerUri(g().DBLocation)) << g().DBLocation;
    }

    RecordsetPtr open(const Query& sql, int32_t lock = adLockBatchOptimistic) {
        auto rs = std::make_shared<Recordset>();
        rs->Open(sql, g().ConnString, adOpenStatic, lock);
        return rs;
    }

    void addTask(const std::string& key, const std::string& desc) {
        auto rs = open("SELECT * from TASKS WHERE tskImp= 6");
        rs->AddNew();
        rs->Fields("tskGUIDID") = key;
        rs->Fields("tskDesc") = desc;
        rs->Fields("tskImp") = int16_t{3};
        rs->Fields("tskTimeSpent") = int32_t{90};
        rs->Fields("tskCurrent") = true;
        rs->Fields("tskDeadline") = Value(Date{dateserial::fromCivil(2026, 11, 24, 10, 30, 15, 250)});
        rs->Update();
        rs->UpdateBatch(adAffectAllChapters);
    }
};

// Keys go in bound: quotes and a statement of their own find their row and
// change nothing else; a NUL, which no server text holds, is refused by name
// rather than cut short to another row's key.
TEST_F(ServerStoreTest, BoundKeysFindTheirOwnRowOnly) {
    const std::string quoted = "say \"hi\"; DROP TABLE TASKS; --";
    for (const std::string& key : {std::string("O'Brien"), quoted, std::string("A")}) addTask(key, "k");
    for (const std::string& key : {std::string("O'Brien"), quoted}) {
        auto rs = open(queries::taskByKey(key));
        ASSERT_EQ(rs->RecordCount(), 1) << key;
        EXPECT_EQ(rs->Fields("tskGUIDID").value().toText(), key);
        EXPECT_EQ(open(queries::keywordLinksOfTask(key))->RecordCount(), 0);
    }
    const std::string told =
        failureOf([&] { (void)open(queries::taskByKey(std::string("A\0B", 3)))->RecordCount(); }).description();
    EXPECT_NE(told.find("can't hold a text with a NUL character"), std::string::npos) << told;
    EXPECT_EQ(open("SELECT * from TASKS")->RecordCount(), 3);
}

TEST_F(ServerStoreTest, RowsComeBackWithTheirTypesAndTheHiddenIdentityStaysHidden) {
    addTask(kTask, "Plant \"tulips\" in O'Brien's garden");
    auto rs = open("SELECT * from TASKS WHERE tskGUIDID = \"" + std::string(kTask) + "\"");
    ASSERT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Fields("tskDesc").value().toText(), "Plant \"tulips\" in O'Brien's garden");
    EXPECT_EQ(rs->Fields("tskImp").value().kind(), Value::Kind::Int16);
    EXPECT_EQ(rs->Fields("tskTimeSpent").value().toInt32(), 90);
    EXPECT_EQ(rs->Fields("tskCurrent").value().kind(), Value::Kind::Bool);
    EXPECT_EQ(rs->Fields("tskCurrent").value().toInt32(), -1);  // true is -1 to the logic
    EXPECT_DOUBLE_EQ(rs->Fields("tskDeadline").value().toDate().serial,
                     dateserial::fromCivil(2026, 11, 24, 10, 30, 15, 250));
    EXPECT_TRUE(rs->Fields("tskDoneDate").value().isNull());
    EXPECT_THROW((void)rs->Fields("qv_rowid"), Failure);
    // The same columns as the file store's TASKS, in their order.
    EXPECT_EQ(rs->FieldCount(), 27);
    EXPECT_TRUE(FieldCodec::equalsNoCase(rs->FieldAt(0).Name(), "tskGUIDID"));
    // The documented query texts: TRUE, dates between #, "..." literals.
    EXPECT_EQ(open("SELECT tskGUIDID from TASKS WHERE tskCURRENT=TRUE")->RecordCount(), 1);
    EXPECT_EQ(open("SELECT tskGUIDID from TASKS WHERE tskDeadline > #11/23/2026#")->RecordCount(), 1);
    EXPECT_EQ(open("SELECT tskGUIDID from TASKS WHERE tskDeadline > #11/25/2026#")->RecordCount(), 0);
    EXPECT_EQ(readOne("SELECT tskDeadline FROM TASKS"), "2026-11-24T10:30:15.250");
    EXPECT_EQ(readOne("SELECT tskCurrent FROM TASKS"), "1");
    // A read-only set refuses writes, as on the file store.
    auto ro = open("SELECT * from TASKS", adLockReadOnly);
    EXPECT_THROW(ro->Fields("tskDesc") = "x", Failure);
}

TEST_F(ServerStoreTest, NamesCompareAndSortWithoutRegardToCaseKeysExactly) {
    exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES ('k1', 'Errands', 'email'), "
         "('k2', 'errands', 'Bank'), ('K3', 'Work', 'call')");
    EXPECT_EQ(open("SELECT * FROM KEYWORDS WHERE keyKeyword = 'EMAIL'")->RecordCount(), 1);
    EXPECT_EQ(open("SELECT * FROM KEYWORDS WHERE keySubject = 'ERRANDS'")->RecordCount(), 2);
    EXPECT_EQ(open("SELECT * FROM KEYWORDS WHERE keyGUIDID = 'k3'")->RecordCount(), 0);
    auto rs = open("SELECT keyKeyword FROM KEYWORDS ORDER BY keyKeyword");
    std::string order;
    for (; !rs->EOF_(); rs->MoveNext()) order += rs->Fields("keyKeyword").value().toText() + " ";
    EXPECT_EQ(order, "Bank call email ");
}

TEST_F(ServerStoreTest, ALargeSetIsCountedWithoutReadingASmallOneComesWhole) {
    exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) SELECT 'k' || lpad(i::text, 5, '0'), "
         "'Bulk', 'Keyword ' || i FROM generate_series(1, 2500) AS i");
    auto large = open("SELECT keyGUIDID from KEYWORDS WHERE keySubject = 'Bulk' ORDER BY keyGUIDID");
    EXPECT_EQ(large->RecordCount(), 2500);
    // Counting read none of the rows: one added now is there when the set is walked.
    exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES ('k99999', 'Bulk', 'Last')");
    // Asked again before reading, the set keeps its count.
    EXPECT_EQ(large->RecordCount(), 2500);
    int walked = 0;
    std::string last;
    for (; !large->EOF_(); large->MoveNext(), ++walked) last = large->Fields("keyGUIDID").value().toText();
    EXPECT_EQ(walked, 2501);
    EXPECT_EQ(last, "k99999");
    EXPECT_EQ(large->RecordCount(), 2501);

    // A set the size of a list comes whole with its count, in order.
    auto small = open("SELECT keyGUIDID from KEYWORDS WHERE keyGUIDID < 'k00004' ORDER BY keyGUIDID DESC");
    EXPECT_EQ(small->RecordCount(), 3);
    exec("DELETE FROM KEYWORDS WHERE keyGUIDID = 'k00002'");
    EXPECT_EQ(small->Fields("keyGUIDID").value().toText(), "k00003");
    small->MoveNext();
    EXPECT_EQ(small->Fields("keyGUIDID").value().toText(), "k00002");
    small->Requery();
    EXPECT_EQ(small->RecordCount(), 2);
    EXPECT_EQ(open("SELECT keyGUIDID from KEYWORDS WHERE keyGUIDID = 'none'")->RecordCount(), 0);
}

TEST_F(ServerStoreTest, AWriteBackTouchesOnlyTheAssignedFieldsOfItsRow) {
    addTask(kTask, "Mine");
    addTask("BBBBBBBB-1111-2222-3333-444444444444", "Other");
    auto rs = open("SELECT * from TASKS WHERE tskGUIDID = '" + std::string(kTask) + "'");
    ASSERT_FALSE(rs->EOF_());
    // Another user changes another column of the same row meanwhile.
    exec(std::string("UPDATE TASKS SET tskTimeSpent = 500 WHERE tskGUIDID = '") + kTask + "'");
    rs->Fields("tskDesc") = "Mine, changed";
    rs->Update();
    rs->UpdateBatch();
    EXPECT_EQ(readOne(std::string("SELECT tskDesc FROM TASKS WHERE tskGUIDID = '") + kTask + "'"),
              "Mine, changed");
    EXPECT_EQ(readOne(std::string("SELECT tskTimeSpent FROM TASKS WHERE tskGUIDID = '") + kTask + "'"),
              "500");
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS WHERE tskGUIDID LIKE 'BBBB%'"), "Other");
    // A row that another user removed can't be written back: told, not lost silently.
    exec(std::string("DELETE FROM TASKS WHERE tskGUIDID = '") + kTask + "'");
    rs->Fields("tskDesc") = "Too late";
    rs->Update();
    EXPECT_THROW(rs->UpdateBatch(), Failure);
    // Tables without a key write back by the hidden identity: one of two equal rows goes.
    exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskDesc) VALUES ('twin', 'a'), ('twin', 'a')");
    auto appts = open("SELECT * FROM TASKAPPTS WHERE taGUIDID = 'twin'");
    appts->Delete(adAffectCurrent);
    appts->UpdateBatch();
    EXPECT_EQ(readOne("SELECT COUNT(*) FROM TASKAPPTS"), "1");
}

// Whole-or-absent and nesting run in the store tests' server pass; here what
// the server's own transactions add.
TEST_F(ServerStoreTest, ASaveKeepsItsMarkAndBeginsAtItsFirstStatement) {
    {
        SaveTransaction save;
        addTask(kTask, "Kept");
        save.keepSoFar();
        // A failing statement inside the save: the part before the mark stays.
        EXPECT_THROW(open("SELECT nosuchcolumn FROM TASKS"), Failure);
    }
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS"), "Kept");
    // A save that wrote nothing leaves no transaction behind, and the next one is whole again.
    auto conn = PgConnection::forUri(g().DBLocation);
    {
        SaveTransaction empty;
        EXPECT_TRUE(conn->inTransaction());
        empty.commit();
    }
    EXPECT_FALSE(conn->inTransaction());
    EXPECT_EQ(PQtransactionStatus(conn->handle()), PQTRANS_IDLE);
    {
        SaveTransaction save;
        addTask("EEEEEEEE-1111-2222-3333-444444444444", "Undone");
        EXPECT_EQ(PQtransactionStatus(conn->handle()), PQTRANS_INTRANS);
    }
    EXPECT_FALSE(conn->inTransaction());
    EXPECT_EQ(readOne("SELECT COUNT(*) FROM TASKS"), "1");
}

TEST_F(ServerStoreTest, InstallingAgainDropsNothing) {
    addTask(kTask, "Stays");
    const std::string settings = readOne("SELECT COUNT(*) FROM Settings");
    EXPECT_NE(settings, "0");
    installServerStore(storeLocationOf(folder()));
    EXPECT_EQ(readOne("SELECT COUNT(*) FROM Settings"), settings);
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS"), "Stays");
}

TEST_F(ServerStoreTest, AnUnreachableServerIsToldOnceByNameAndReason) {
    writeSettingsFile(folder(), "postgresql:///quorvel?host=/nonexistent/qv-socket");
    resetGlobals();
    g().AppPath = folder();
    // The reporter outlives the session that listens to it.
    RecordingReporter reporter;
    clsTask2 task;
    int exits = 0;
    task.setTempErrReport(std::shared_ptr<Reporter>(&reporter, [](Reporter*) {}));
    task.GotErrExitNow.connect([&] { ++exits; });
    task.SetupTask(0, {}, std::vector<std::string>(6), 1, {});
    ASSERT_EQ(reporter.faults().size(), 1u);
    const std::string& d = reporter.faults()[0].description;
    EXPECT_NE(d.find("The Quorvel data server \"quorvel on /nonexistent/qv-socket\" can't be reached: "),
              std::string::npos)
        << d;
    EXPECT_NE(d.find("No such file or directory"), std::string::npos) << d;
    EXPECT_EQ(exits, 1);
    EXPECT_TRUE(Form::openForms().empty());
    EXPECT_TRUE(scriptedUi().messages().empty()) << "no repair message for a server";
}

}  // namespace
}  // namespace qv
