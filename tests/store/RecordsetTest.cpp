#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <vector>

#include "store/Connection.h"
#include "store/JetDialect.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/WriteConflict.h"
#include "support/FailureOf.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

// A fresh folder (with a blank and a ";" in its name, as a user's path may
// have) holding an SQLite file with a few tables made here.
class RecordsetTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::string tmpl = (fs::temp_directory_path() / "qv rs;XXXXXX").string();
        ASSERT_NE(::mkdtemp(tmpl.data()), nullptr);
        dir_ = tmpl;
        path_ = (fs::path(dir_) / "QuorvelData.mdb").string();
        conn_ = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path_ + ";";
        exec(
            "CREATE TABLE TYPES (tKey TEXT, tNull TEXT, tBool BOOLEAN, tInt16 SMALLINT, "
            "tInt32 INTEGER, tDouble DOUBLE, tDate DATETIME, tText TEXT);"
            "CREATE TABLE TASKS (tskGUIDID TEXT NOT NULL UNIQUE, tskDesc TEXT, tskProjectKey TEXT, "
            "tskImp SMALLINT, tskTimeSpent INTEGER, tskCurrent BOOLEAN, tskDeadline DATETIME);"
            "CREATE TABLE TASKAPPTS (taGUIDID TEXT, taTaskGUIDID TEXT, taProject TEXT, "
            "taProjectGUIDID TEXT, taStartTime DATETIME, taEndTime DATETIME, taTaskDesc TEXT, "
            "taImp SMALLINT, taDifficulty SMALLINT, taWasWorked BOOLEAN, taTimeWorked INTEGER, "
            "taDuration INTEGER);"
            "INSERT INTO TASKS VALUES ('T1', 'First', 'P1', 2, 30, 1, '2001-04-19T00:00:00.000');"
            "INSERT INTO TASKS VALUES ('T2', 'Second', 'P2', 3, 0, 0, NULL);"
            "INSERT INTO TASKS VALUES ('T3', 'Third', 'P1', 1, 15, 1, NULL);");
    }

    void TearDown() override {
        Connection::release(path_);
        std::error_code ec;
        fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(dir_, ec);
    }

    // Direct access to the file, past the Recordset.
    void exec(const std::string& sql) const {
        sqlite3* db = nullptr;
        ASSERT_EQ(sqlite3_open_v2(path_.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr),
                  SQLITE_OK);
        char* msg = nullptr;
        const int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &msg);
        EXPECT_EQ(rc, SQLITE_OK) << (msg ? msg : "") << " in " << sql;
        sqlite3_free(msg);
        sqlite3_close(db);
    }

    std::string readOne(const std::string& sql) const {
        sqlite3* db = nullptr;
        sqlite3_open_v2(path_.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_stmt* st = nullptr;
        std::string out = "<error>";
        if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr) == SQLITE_OK) {
            out = "<no row>";
            if (sqlite3_step(st) == SQLITE_ROW) {
                const auto* t = sqlite3_column_text(st, 0);
                out = t ? reinterpret_cast<const char*>(t) : "<null>";
            }
        }
        sqlite3_finalize(st);
        sqlite3_close(db);
        return out;
    }

    // The engine's plan of a text, its steps joined by ";".
    std::string queryPlan(const std::string& sql) const {
        sqlite3* db = nullptr;
        sqlite3_open_v2(path_.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_stmt* st = nullptr;
        std::string out;
        if (sqlite3_prepare_v2(db, ("EXPLAIN QUERY PLAN " + sql).c_str(), -1, &st, nullptr) == SQLITE_OK)
            while (sqlite3_step(st) == SQLITE_ROW)
                out += (out.empty() ? "" : ";") +
                       std::string(reinterpret_cast<const char*>(sqlite3_column_text(st, 3)));
        sqlite3_finalize(st);
        sqlite3_close(db);
        return out;
    }

    static std::string fileBytes(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }

    // A store failure whose description names each of the parts.
    static void expectStoreFailure(const Failure& f, std::initializer_list<std::string> parts) {
        EXPECT_EQ(f.number(), err::StoreFailure);
        for (const auto& part : parts) EXPECT_NE(f.description().find(part), std::string::npos) << f.description();
    }

    RecordsetPtr open(const Query& sql, int32_t lock = adLockBatchOptimistic) const {
        auto rs = std::make_shared<Recordset>();
        rs->CursorLocation = adUseClient;
        rs->CursorType = adOpenStatic;
        rs->LockType = lock;
        rs->Open(sql, conn_, adOpenStatic, lock, adCmdText);
        return rs;
    }

    std::string dir_;
    std::string path_;
    std::string conn_;
};

TEST_F(RecordsetTest, ConnStringGivesThePathAsItStands) {
    EXPECT_EQ(pathFromConnString(conn_), path_);
    EXPECT_EQ(pathFromConnString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\a b;c\\Q.mdb;"),
              "C:\\a b;c\\Q.mdb");
    EXPECT_EQ(pathFromConnString("Provider=MSDataShape; Data Provider=Microsoft.Jet.OLEDB.4.0;"
                                 "Data Source=/x/y.mdb;"),
              "/x/y.mdb");
    EXPECT_EQ(pathFromConnString(""), "");
    // One connection per path.
    EXPECT_EQ(Connection::forConnString(conn_), Connection::forPath(path_));
    const Failure f = failureOf([] {
        Recordset rs;
        rs.Open("SELECT * from TASKS", "");
    });
    EXPECT_EQ(f.number(), err::StoreFailure);
}

TEST_F(RecordsetTest, EveryColumnTypeRoundTrips) {
    const std::string text = "Grüße, 日本 — \"quoted\" and 'single' ✓";
    {
        auto rs = open("SELECT * from TYPES WHERE tInt16= 6");
        EXPECT_EQ(rs->RecordCount(), 0);
        rs->AddNew();
        rs->Fields("tKey") = Value("A");
        rs->Fields("tNull") = Value();
        rs->Fields("tBool") = Value(true);
        rs->Fields("tInt16") = Value(int16_t{-5});
        rs->Fields("tInt32") = Value(int32_t{123456});
        rs->Fields("tDouble") = Value(1.5);
        rs->Fields("tDate") = Value(Date{37000.5});
        rs->Fields("tText") = Value(text);
        rs->Update();
        rs->AddNew();
        rs->Fields("tKey") = Value("B");
        rs->Fields("tBool") = Value(false);
        rs->Fields("tDate") = Value(Date{-1.25});
        rs->Fields("tInt32") = Value("1,234");  // text into a whole-number column converts
        rs->Fields("tDouble") = Value(int32_t{7});
        rs->Update();
        rs->UpdateBatch(adAffectAllChapters);
        rs->Close();
    }
    // As stored: booleans 0/1, dates ISO text with milliseconds.
    EXPECT_EQ(readOne("SELECT tBool || '|' || typeof(tBool) || '|' || tDate || '|' || (tNull IS NULL) FROM TYPES "
                      "WHERE tKey='A'"),
              "1|integer|2001-04-19T12:00:00.000|1");
    EXPECT_EQ(readOne("SELECT tBool || '|' || tDate FROM TYPES WHERE tKey='B'"), "0|1899-12-29T06:00:00.000");
    EXPECT_EQ(readOne("SELECT tText FROM TYPES WHERE tKey='A'"), text);

    auto rs = open("SELECT * from TYPES ORDER BY tKey", adLockReadOnly);
    ASSERT_EQ(rs->RecordCount(), 2);
    ASSERT_FALSE(rs->EOF_());
    EXPECT_TRUE(rs->Fields("tNull").value().isNull());
    const auto expectRow = [&](std::initializer_list<std::pair<const char*, Value>> fields) {
        for (const auto& [name, v] : fields) EXPECT_EQ(rs->Fields(name).value(), v) << name;
    };
    expectRow({{"tBool", Value(true)}, {"tInt16", Value(int16_t{-5})}, {"tInt32", Value(int32_t{123456})},
               {"tDouble", Value(1.5)}, {"tDate", Value(Date{37000.5})}, {"tText", Value(text)}});
    EXPECT_EQ(rs->Fields("tBool").value().toInt32(), -1);
    EXPECT_EQ(rs->Fields("tText").value().kind(), Value::Kind::Text);
    rs->MoveNext();
    expectRow({{"tBool", Value(false)}, {"tDate", Value(Date{-1.25})}, {"tInt32", Value(int32_t{1234})},
               {"tDouble", Value(7.0)}});
    EXPECT_TRUE(rs->Fields("tInt16").value().isNull());
    EXPECT_TRUE(rs->Fields("tText").value().isNull());
    rs->MoveNext();
    EXPECT_TRUE(rs->EOF_());
    EXPECT_EQ(rs->FieldCount(), 8);  // the rowid that the set adds is no field
    EXPECT_EQ(rs->FieldAt(0).Name(), "tKey");
}

TEST_F(RecordsetTest, AWrongValueFailsBeforeAnythingIsWritten) {
    auto rs = open("SELECT * from TASKS WHERE tskGUIDID='T1'");
    rs->Fields("tskDesc") = Value("changed");
    const Failure f = failureOf([&] { rs->Fields("tskTimeSpent") = Value("lots"); });
    EXPECT_EQ(f.number(), err::TypeMismatch);
    EXPECT_EQ(failureOf([&] { rs->Fields("tskImp") = Value(int32_t{70000}); }).number(), err::Overflow);
    EXPECT_EQ(failureOf([&] { rs->Fields("tskDeadline") = Value("someday"); }).number(), err::TypeMismatch);
    EXPECT_EQ(readOne("SELECT tskDesc || tskTimeSpent FROM TASKS WHERE tskGUIDID='T1'"), "First30");
    EXPECT_EQ(rs->Fields("tskTimeSpent").value(), Value(int32_t{30}));
    rs->CancelUpdate();
    EXPECT_EQ(rs->Fields("tskDesc").value(), Value("First"));
    rs->UpdateBatch();
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS WHERE tskGUIDID='T1'"), "First");
}

// Another writer's change to another column is a case of the write-back
// table below; here the names and the row the write-back touches.
TEST_F(RecordsetTest, FieldNamesAreCaseBlindAndAWriteTouchesItsRowAlone) {
    auto rs = open("SELECT * from TASKS WHERE tskGUIDID='T1'");
    rs->Fields("tskImp") = Value(int16_t{4});
    rs->Fields("tskCURRENT") = Value(false);
    rs->Update();
    rs->UpdateBatch(adAffectAllChapters);
    EXPECT_EQ(readOne("SELECT tskImp || '/' || tskCurrent FROM TASKS WHERE tskGUIDID='T1'"), "4/0");
    EXPECT_EQ(readOne("SELECT group_concat(tskImp) FROM TASKS WHERE tskGUIDID<>'T1'"), "3,1");
    rs->Requery(-1);
    EXPECT_EQ(rs->Fields("tskdesc").value(), Value("First"));
    EXPECT_EQ(rs->Fields("TSKCURRENT").value(), Value(false));
    const Failure f = failureOf([&] { (void)rs->Fields("tskNoSuchColumn"); });
    EXPECT_EQ(f.number(), 3265);
    EXPECT_EQ(f.description(),
              "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

// Keys go in bound: quotes, a statement of their own and a NUL byte find
// their row and change nothing else.
TEST_F(RecordsetTest, AKeyWithQuotesOrNulChangesNothingElse) {
    const std::string obrien = "O'Brien";
    const std::string quoted = "say \"hi\"; DROP TABLE TASKS; --";
    const std::string nul("A\0B", 3);
    exec(
        "INSERT INTO TASKS (tskGUIDID, tskDesc, tskImp) VALUES ('O''Brien', 'irish', 1);"
        "INSERT INTO TASKS (tskGUIDID, tskDesc, tskImp) VALUES "
        "('say \"hi\"; DROP TABLE TASKS; --', 'quoted', 1);"
        "INSERT INTO TASKS (tskGUIDID, tskDesc, tskImp) VALUES (CAST(X'410042' AS TEXT), 'nul', 1);"
        "INSERT INTO TASKS (tskGUIDID, tskDesc, tskImp) VALUES ('A', 'prefix', 1);");

    for (const std::string& key : {obrien, quoted, nul}) {
        auto rs = open(queries::taskByKey(key));
        ASSERT_EQ(rs->RecordCount(), 1) << key;
        EXPECT_EQ(rs->Fields("tskGUIDID").value(), Value(key));
        rs->Fields("tskImp") = Value(int16_t{5});
        rs->Update();
        rs->UpdateBatch();
        EXPECT_EQ(open(queries::appointmentsOfTask(key))->RecordCount(), 0);
    }
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKS"), "7");
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKS WHERE tskImp=5"), "3");
    EXPECT_EQ(readOne("SELECT tskImp FROM TASKS WHERE tskGUIDID='A'"), "1");
    EXPECT_EQ(readOne("SELECT group_concat(tskGUIDID, '|') FROM TASKS WHERE tskImp=5 AND tskDesc<>'nul' "
                      "ORDER BY tskGUIDID"),
              "O'Brien|" + quoted);
    EXPECT_EQ(readOne("SELECT group_concat(tskImp) FROM (SELECT tskImp FROM TASKS WHERE "
                      "tskGUIDID IN ('T1','T2','T3') ORDER BY tskGUIDID)"),
              "2,3,1");
}

TEST_F(RecordsetTest, JetTextsRunUnchanged) {
    exec(
        "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taTaskDesc, taWasWorked, "
        "taDuration) VALUES ('A1', 'T1', '2001-04-19T09:00:00.000', 'one', 0, 60),"
        "('A2', 'T1', '2001-04-20T09:00:00.000', 'two', 1, 30),"
        "('A3', 'T2', '2001-04-21T09:00:00.000', 'other', 0, 5);");
    {
        auto rs = open("SELECT tskGUIDID from TASKS WHERE tskCURRENT=TRUE", adLockReadOnly);
        EXPECT_EQ(rs->RecordCount(), 2);
        auto off = open("SELECT tskGUIDID from TASKS WHERE tskCurrent=FALSE", adLockReadOnly);
        EXPECT_EQ(off->RecordCount(), 1);
        EXPECT_EQ(off->Fields("tskGUIDID").value(), Value("T2"));
    }
    {
        auto rs = open("SELECT tskGUIDID from TASKS WHERE tskProjectKey = \"P1\"", adLockReadOnly);
        EXPECT_EQ(rs->RecordCount(), 2);
    }
    {
        const std::string grid =
            "SELECT TASKAPPTS.taStartTime, TASKAPPTS.taEndTime, TASKAPPTS.taWasWorked, TASKAPPTS.taTimeWorked, "
            "TASKAPPTS.taTaskGUIDID, TASKAPPTS.taGUIDID, TASKAPPTS.taTaskDesc, TASKAPPTS.taProjectGUIDID, "
            "TASKAPPTS.taProject, TASKAPPTS.taImp, TASKAPPTS.taDifficulty From TASKAPPTS Where "
            "(((TASKAPPTS.taTaskGUIDID) = \"T1\")) ORDER BY TASKAPPTS.taStartTime DESC;";
        auto rs = open(grid, adLockBatchOptimistic);
        EXPECT_EQ(rs->RecordCount(), 2);
        EXPECT_EQ(rs->FieldCount(), 11);
        EXPECT_EQ(rs->Fields("taGUIDID").value(), Value("A2"));
        EXPECT_EQ(rs->Fields("taStartTime").value(), Value(Date{37001.375}));
        EXPECT_EQ(rs->Fields("taWasWorked").value(), Value(true));
        rs->MoveNext();
        EXPECT_EQ(rs->Fields("taGUIDID").value(), Value("A1"));
        // The grid's set writes back too.
        rs->Fields("taTimeWorked") = Value(int32_t{45});
        rs->Update();
        rs->UpdateBatch();
        EXPECT_EQ(readOne("SELECT taTimeWorked FROM TASKAPPTS WHERE taGUIDID='A1'"), "45");
    }
    {
        auto rs =
            open("SELECT SUM(taDuration) as QVTOTAL from TASKAPPTS WHERE taTaskGUIDID ='T1'", adLockReadOnly);
        EXPECT_EQ(rs->RecordCount(), 1);
        EXPECT_EQ(rs->Fields("QVTOTAL").value(), Value(int32_t{90}));
        auto none = open("SELECT SUM(taDuration) as QVTOTAL from TASKAPPTS WHERE taTaskGUIDID =\"none\"",
                         adLockBatchOptimistic);
        EXPECT_TRUE(none->Fields("qvtotal").value().isNull());
        // An aggregate set is read-only in effect.
        EXPECT_EQ(failureOf([&] { none->Fields("QVTOTAL") = Value(int32_t{1}); }).number(), 3251);
    }
    {
        auto rs = open("SELECT prjX.tskGUIDID, tskDesc from TASKS prjX order by tskDesc", adLockReadOnly);
        EXPECT_EQ(rs->Fields("tskDesc").value(), Value("First"));
        auto dated = open("SELECT tskGUIDID from TASKS WHERE tskDeadline = #4/19/2001#", adLockReadOnly);
        EXPECT_EQ(dated->RecordCount(), 1);
    }
    // The translation itself.
    EXPECT_EQ(jet::translate("a = \"O'B\"\"x\" and b = 'say \"hi\"'"), "a = 'O''B\"x' and b = 'say \"hi\"'");
    EXPECT_EQ(jet::translate("[we\"ird] = #2001-04-19 12:00:00#"), "[we\"ird] = '2001-04-19T12:00:00.000'");
    const std::string sql = "SELECT tskGUIDID from TASKS WHERE x=1 ORDER BY tskDesc;";
    const auto shape = jet::analyse(sql);
    EXPECT_TRUE(shape.singleTable);
    EXPECT_EQ(jet::countQuery(sql, shape), "SELECT COUNT(*) FROM (SELECT tskGUIDID from TASKS WHERE x=1 ) AS qv_counted");
    for (const char* several : {"SELECT a from T, U", "SELECT a from T JOIN U ON T.x=U.x", "SELECT DISTINCT a from T",
                                "SELECT a from (SELECT a FROM T)"})
        EXPECT_FALSE(jet::analyse(several).singleTable) << several;
}

// A store made before the schedule's index gets it when first opened for
// writing, and a task's appointments come as a sort gave them: newest first,
// rows of the same start (or of none, or of a number) in the order they were
// added, whether the sort kept them in memory or wrote them out in runs.
TEST_F(RecordsetTest, TheScheduleIndexKeepsTheOrderASortGave) {
    const Query schedule = queries::scheduleOfTask("T1");
    for (const int rows : {40, 30000}) {
        Connection::release(path_);
        exec("DROP INDEX IF EXISTS idxApptsTaskStart; DELETE FROM TASKAPPTS;"
             "CREATE INDEX IF NOT EXISTS idxApptsTask ON TASKAPPTS (taTaskGUIDID);"
             "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " +
             std::to_string(rows) +
             ") INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taTaskDesc) SELECT 'A' || i, "
             "CASE WHEN i % 3 = 0 THEN 'T2' ELSE 'T1' END, CASE WHEN i % 7 = 0 THEN NULL WHEN i % 11 = 0 "
             "THEN i % 4 WHEN i % 13 = 0 THEN 1.5 ELSE printf('2001-04-%02dT09:00:00.000', i % 5 + 1) END, "
             "printf('%0200d', i) FROM n");
        const std::string sorted = readOne(
            "SELECT group_concat(taGUIDID) FROM (SELECT taGUIDID, taTaskDesc FROM TASKAPPTS "
            "WHERE taTaskGUIDID = 'T1' ORDER BY taStartTime DESC)");
        auto rs = open(schedule);
        EXPECT_EQ(readOne("SELECT count(*) FROM sqlite_master WHERE name = 'idxApptsTaskStart'"), "1");
        std::string read;
        for (; !rs->EOF_(); rs->MoveNext())
            read += (read.empty() ? "" : ",") + rs->Fields("taGUIDID").value().toText();
        EXPECT_TRUE(read == sorted) << rows << " rows: " << read.substr(0, 200);
    }
    // Read through the index, with no sort of its own.
    EXPECT_EQ(queryPlan(jet::translate(schedule.text)),
              "SEARCH TASKAPPTS USING INDEX idxApptsTaskStart (taTaskGUIDID=?)");
}

// A set of a text whose earlier sets used a few of its columns has only those
// read; its rows, their order (ties included) and their values stay as a
// whole read gives them, whatever the text selects and sorts by.
TEST_F(RecordsetTest, ASetThatReadsFewColumnsReadsTheSameRows) {
    exec("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < 3000) "
         "INSERT INTO TASKS (tskGUIDID, tskDesc, tskProjectKey, tskImp, tskTimeSpent) SELECT 'K' || i, "
         "printf('%0100d', i % 7), 'P' || (i % 3), i % 5, i FROM n");
    const char* texts[] = {
        "SELECT * from TASKS ORDER BY tskImp",
        "SELECT tskGUIDID, tskImp, tskDesc from TASKS WHERE tskProjectKey = 'P1' ORDER BY tskDesc DESC",
        "SELECT tskDesc, tskGUIDID, tskImp from TASKS ORDER BY 1, 3",
        "SELECT tskImp AS tskDesc, tskGUIDID, tskDesc AS tskImp from TASKS ORDER BY tskDesc",
        "SELECT tskGUIDID, tskImp * 2 AS twice, tskTimeSpent, tskImp from TASKS ORDER BY twice DESC",
        "SELECT DISTINCT tskGUIDID, tskImp, tskDesc from TASKS ORDER BY tskImp",
        "SELECT T.tskGUIDID, T.tskImp, tskDesc from TASKS T WHERE tskImp > 1 ORDER BY tskImp DESC LIMIT 900",
    };
    // The rows' key and importance in order, then, when asked, every value of
    // the first row (read after the walk).
    const auto walk = [&](const char* text, bool firstRow) {
        auto rs = open(text, adLockReadOnly);
        std::string out;
        for (; !rs->EOF_(); rs->MoveNext())
            out += rs->Fields("tskGUIDID").value().toText() + ":" + rs->Fields("tskImp").value().toText() + ";";
        if (!firstRow) return out;
        rs->MoveFirst();
        for (int c = 0; c < rs->FieldCount() && !rs->EOF_(); ++c) out += rs->FieldAt(c).value().toText() + "|";
        return out;
    };
    for (const char* text : texts) {
        Connection::release(path_);
        const std::string taught = walk(text, false);  // the first set reads every column
        const std::string few = walk(text, true);      // the next reads two, then the rest of one row
        Connection::release(path_);
        const std::string whole = walk(text, true);
        EXPECT_TRUE(few.starts_with(taught)) << text;
        EXPECT_EQ(few, whole) << text;
    }
}

TEST_F(RecordsetTest, AReadOnlySetRefusesWrites) {
    auto rs = open("SELECT * from TASKS WHERE tskGUIDID='T1'", adLockReadOnly);
    const Failure f = failureOf([&] { rs->Fields("tskDesc") = Value("no"); });
    EXPECT_EQ(f.number(), 3251);
    EXPECT_EQ(f.description(),
              "Current Recordset does not support updating. This may be a limitation of the "
              "provider, or of the selected locktype.");
    EXPECT_EQ(failureOf([&] { rs->AddNew(); }).number(), 3251);
    EXPECT_EQ(failureOf([&] { rs->Delete(adAffectCurrent); }).number(), 3251);
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS WHERE tskGUIDID='T1'"), "First");

    // The open call's lock wins over the property; -1 leaves the property.
    Recordset a;
    a.LockType = adLockBatchOptimistic;
    a.Open("SELECT * from TASKS", conn_, adOpenStatic, adLockReadOnly);
    EXPECT_EQ(a.LockType, adLockReadOnly);
    EXPECT_EQ(failureOf([&] { a.AddNew(); }).number(), 3251);
    Recordset b;
    b.LockType = adLockBatchOptimistic;
    b.Open("SELECT * from TASKS", conn_, -1, -1);
    b.Fields("tskDesc") = Value("writable");
    b.CancelUpdate();
    Recordset c;
    c.Open("SELECT * from TASKS", conn_);  // the default lock is read-only
    EXPECT_EQ(failureOf([&] { c.Fields("tskDesc") = Value("no"); }).number(), 3251);
}

TEST_F(RecordsetTest, AddNewOnAnEmptySetQuery) {
    auto rs = open("SELECT * from TASKS WHERE tskImp= 6");
    EXPECT_EQ(rs->RecordCount(), 0);
    EXPECT_TRUE(rs->EOF_());
    EXPECT_TRUE(rs->BOF_());
    rs->AddNew();
    EXPECT_FALSE(rs->EOF_());
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_TRUE(rs->Fields("tskDesc").value().isNull());
    rs->Fields("tskGUIDID") = Value("NEW");
    rs->Fields("tskDesc") = Value("added");
    rs->Fields("tskImp") = Value(int16_t{2});
    rs->Fields("tskDeadline") = Value(Date{38000});
    rs->Update();
    rs->UpdateBatch(adAffectAllChapters);
    EXPECT_EQ(readOne("SELECT tskDesc || '|' || tskImp || '|' || tskDeadline || '|' || "
                      "ifnull(tskTimeSpent, 'null') FROM TASKS WHERE tskGUIDID='NEW'"),
              "added|2|2004-01-14T00:00:00.000|null");
    // The row knows its identity now: a second change updates it, no second row.
    rs->Fields("tskTimeSpent") = Value(int32_t{12});
    rs->Update();
    rs->UpdateBatch();
    EXPECT_EQ(readOne("SELECT count(*) || '|' || max(tskTimeSpent) FROM TASKS WHERE "
                      "tskGUIDID='NEW'"),
              "1|12");
    rs->Requery(-1);
    EXPECT_EQ(rs->RecordCount(), 0);
    EXPECT_TRUE(rs->EOF_());

    // AddNew then CancelUpdate leaves nothing.
    rs->AddNew();
    rs->Fields("tskGUIDID") = Value("DROPPED");
    rs->CancelUpdate();
    EXPECT_EQ(rs->RecordCount(), 0);
    EXPECT_TRUE(rs->EOF_());
    rs->UpdateBatch();
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKS WHERE tskGUIDID='DROPPED'"), "0");
}

TEST_F(RecordsetTest, ABatchIsAllOrNothing) {
    auto rs = open("SELECT * from TASKS WHERE tskImp= 6");
    rs->AddNew();
    rs->Fields("tskGUIDID") = Value("FRESH");
    rs->Update();
    rs->AddNew();
    rs->Fields("tskGUIDID") = Value("T1");  // the key is unique: this one fails
    rs->Update();
    expectStoreFailure(failureOf([&] { rs->UpdateBatch(); }), {"UNIQUE", path_});
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKS"), "3");
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKS WHERE tskGUIDID='FRESH'"), "0");
}

TEST_F(RecordsetTest, DeletesTwoRowsWithTheSameKeyInATableWithoutKey) {
    exec(
        "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taDuration) VALUES "
        "('DUP', 'T1', 1), ('KEEP', 'T1', 2), ('DUP', 'T1', 3);");
    auto rs = open("SELECT * from TASKAPPTS WHERE taTaskGUIDID='T1'");
    // The walk of KillTA.
    rs->Requery(-1);
    int removed = 0;
    ASSERT_EQ(rs->RecordCount(), 3);
    while (!rs->EOF_()) {
        if (rs->Fields("taGUIDID").value() == Value("DUP")) {
            rs->Delete(adAffectCurrent);
            rs->Update();
            rs->UpdateBatch(adAffectAllChapters);
            ++removed;
            EXPECT_EQ(failureOf([&] { (void)rs->Fields("taGUIDID").value(); }).number(), 3021);
        }
        rs->MoveNext();
    }
    EXPECT_EQ(removed, 2);
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(readOne("SELECT group_concat(taGUIDID) FROM TASKAPPTS"), "KEEP");
    rs->Requery(-1);
    EXPECT_EQ(rs->RecordCount(), 1);

    // A pending delete drops out of the count before it is written.
    exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID) VALUES ('X', 'T1');");
    rs->Requery(-1);
    rs->MoveFirst();
    rs->Delete(adAffectCurrent);
    EXPECT_EQ(rs->RecordCount(), 1);
    rs->MoveNext();
    EXPECT_FALSE(rs->EOF_());
    rs->MoveNext();
    EXPECT_TRUE(rs->EOF_());
    EXPECT_EQ(failureOf([&] { rs->MoveNext(); }).number(), 3021);
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKAPPTS"), "2");
    rs->UpdateBatch();
    EXPECT_EQ(readOne("SELECT count(*) FROM TASKAPPTS"), "1");
}

TEST_F(RecordsetTest, RecordCountDoesNotLoadTheRows) {
    auto rs = open("SELECT tskGUIDID from TASKS ORDER BY tskGUIDID;", adLockReadOnly);
    EXPECT_EQ(rs->RecordCount(), 3);
    // Rows that come after the count are there when the set is first walked:
    // counting read none.
    exec("INSERT INTO TASKS (tskGUIDID) VALUES ('T4');");
    int walked = 0;
    for (; !rs->EOF_(); rs->MoveNext()) ++walked;
    EXPECT_EQ(walked, 4);
    EXPECT_EQ(rs->RecordCount(), 4);
    // From now on the count is of the rows in hand.
    exec("INSERT INTO TASKS (tskGUIDID) VALUES ('T5');");
    EXPECT_EQ(rs->RecordCount(), 4);
    rs->Requery();
    EXPECT_EQ(rs->RecordCount(), 5);
}

TEST_F(RecordsetTest, AFileThatIsNoDatabaseFailsClearly) {
    Connection::release(path_);
    const std::string junk = "This is a text file, not a store.\n";
    {
        std::ofstream out(path_, std::ios::binary | std::ios::trunc);
        out << junk;
    }
    expectStoreFailure(failureOf([&] { open("SELECT * from TASKS"); }), {"is not a Quorvel data file", path_});
    EXPECT_EQ(fileBytes(path_), junk);
    EXPECT_FALSE(fs::exists(path_ + "-wal"));

    // A missing file is a failure too, and is not created.
    const std::string missing = dir_ + "/Missing.mdb";
    Recordset rs;
    expectStoreFailure(failureOf([&] {
                           rs.Open("SELECT * from TASKS",
                                   "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + missing + ";");
                       }),
                       {missing});
    EXPECT_FALSE(fs::exists(missing));
    EXPECT_EQ(rs.State(), adStateClosed);
}

TEST_F(RecordsetTest, AReadOnlyFileFailsClearlyAndStaysUnchanged) {
    Connection::release(path_);
    fs::permissions(path_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    const std::string before = fileBytes(path_);

    auto rs = open("SELECT * from TASKS WHERE tskGUIDID='T1'");
    EXPECT_EQ(rs->Fields("tskDesc").value(), Value("First"));  // reading works
    rs->Fields("tskDesc") = Value("changed");
    rs->Update();
    expectStoreFailure(failureOf([&] { rs->UpdateBatch(); }), {"read", path_});

    auto add = open("SELECT * from TASKS WHERE tskImp= 6");
    add->AddNew();
    add->Fields("tskGUIDID") = Value("NEW");
    add->Update();
    EXPECT_EQ(failureOf([&] { add->UpdateBatch(); }).number(), err::StoreFailure);
    EXPECT_EQ(fileBytes(path_), before);
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS WHERE tskGUIDID='T1'"), "First");
}

TEST_F(RecordsetTest, StateAndAClosedSet) {
    Recordset rs;
    EXPECT_EQ(rs.State(), adStateClosed);
    const Failure f = failureOf([&] { (void)rs.RecordCount(); });
    EXPECT_EQ(f.number(), 3704);
    EXPECT_EQ(f.description(), "Operation is not allowed when the object is closed.");
    for (const auto& call : std::vector<std::function<void()>>{
             [&] { (void)rs.EOF_(); }, [&] { (void)rs.Fields("tskDesc"); }, [&] { rs.MoveNext(); },
             [&] { rs.UpdateBatch(); }})
        EXPECT_EQ(failureOf(call).number(), 3704);
    rs.Open("SELECT * from TASKS ORDER BY tskGUIDID", conn_, adOpenStatic, adLockBatchOptimistic);
    EXPECT_EQ(rs.State(), adStateOpen);
    EXPECT_EQ(rs.Source(), "SELECT * from TASKS ORDER BY tskGUIDID");
    EXPECT_EQ(failureOf([&] { rs.Open("SELECT * from TASKS", conn_); }).number(), 3705);
    Field desc = rs.Fields("tskDesc");
    EXPECT_EQ(desc.value(), Value("First"));
    rs.MoveNext();
    EXPECT_EQ(desc.value(), Value("Second"));  // a field follows the current row
    rs.MoveFirst();
    EXPECT_EQ(desc.value(), Value("First"));
    rs.Close();
    EXPECT_EQ(rs.State(), adStateClosed);
    EXPECT_EQ(failureOf([&] { rs.Close(); }).number(), 3704);
    EXPECT_EQ(failureOf([&] { (void)desc.value(); }).number(), 3704);
    // A query the store can't run fails with the store's words and the query.
    expectStoreFailure(failureOf([&] { rs.Open("SELECT * from NOSUCH", conn_); }), {"is missing the table NOSUCH"});
    EXPECT_EQ(rs.State(), adStateClosed);
}

// Another writer between the read and the write-back, case by case: what
// the set writes, what it refuses, and what it tells.
TEST_F(RecordsetTest, AWriteBackChecksThatItsFieldsStillHoldWhatWasRead) {
    struct Case {
        const char* name;
        std::string host;                        // the other writer, after the read
        std::function<void(Recordset&)> assign;  // the set's changes
        std::vector<std::string> conflict;       // the fields a WriteConflict names
        std::string row;                         // T1's desc|imp|spent|deadline after
    };
    const std::vector<Case> cases = {
        {"the same values write nothing",
         "",
         [](Recordset& rs) {
             rs.Fields("tskDesc") = Value("First");
             rs.Fields("tskImp") = Value(int32_t{2});
             rs.Fields("tskDeadline") = Value(Date{37000.0});
         },
         {},
         "First|2|30|2001-04-19T00:00:00.000"},
        {"another field: both stay",
         "UPDATE TASKS SET tskDesc='Host' WHERE tskGUIDID='T1'",
         [](Recordset& rs) { rs.Fields("tskImp") = Value(int16_t{4}); },
         {},
         "Host|4|30|2001-04-19T00:00:00.000"},
        {"the same field: refused and named",
         "UPDATE TASKS SET tskDesc='Host', tskImp=3 WHERE tskGUIDID='T1'",
         [](Recordset& rs) {
             rs.Fields("tskDesc") = Value("Mine");
             rs.Fields("tskImp") = Value(int16_t{3});  // the same change by both is no conflict
             rs.Fields("tskTimeSpent") = Value(int32_t{31});
         },
         {"tskDesc"},
         "Host|3|30|2001-04-19T00:00:00.000"},
        {"a field written unchecked",
         "UPDATE TASKS SET tskTimeSpent=99 WHERE tskGUIDID='T1'",
         [](Recordset& rs) {
             rs.WriteUnchecked("tskTimeSpent");
             rs.Fields("tskTimeSpent") = Value(int32_t{5});
         },
         {},
         "First|2|5|2001-04-19T00:00:00.000"},
        {"a null read checks as null",
         "UPDATE TASKS SET tskDeadline=NULL WHERE tskGUIDID='T1'",
         [](Recordset& rs) { rs.Fields("tskDeadline") = Value(Date{37001.0}); },
         {"tskDeadline"},
         "First|2|30|"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        exec(
            "UPDATE TASKS SET tskDesc='First', tskImp=2, tskTimeSpent=30, "
            "tskDeadline='2001-04-19T00:00:00.000' WHERE tskGUIDID='T1'");
        auto rs = open("SELECT * from TASKS WHERE tskGUIDID='T1'");
        ASSERT_FALSE(rs->EOF_());
        if (!c.host.empty()) exec(c.host);
        c.assign(*rs);
        rs->Update();
        std::vector<std::string> named;
        try {
            rs->UpdateBatch();
        } catch (const WriteConflict& e) {
            named = e.fields();
            EXPECT_NE(e.description().find("TASKS"), std::string::npos);
        }
        EXPECT_EQ(named, c.conflict);
        EXPECT_EQ(readOne("SELECT tskDesc || '|' || tskImp || '|' || tskTimeSpent || '|' || "
                          "coalesce(tskDeadline, '') FROM TASKS WHERE tskGUIDID='T1'"),
                  c.row);
        if (named.empty()) continue;
        // Told yes: the set's values go over the other writer's.
        rs->OverwriteStored();
        rs->UpdateBatch();
        EXPECT_EQ(readOne("SELECT tskTimeSpent FROM TASKS WHERE tskGUIDID='T1'"),
                  c.name == std::string("the same field: refused and named") ? "31" : "30");
    }
}

TEST_F(RecordsetTest, AMergeTakesOtherWritersFieldsAndARowGoneIsTold) {
    auto rs = open("SELECT * from TASKS WHERE tskGUIDID='T1'");
    ASSERT_EQ(rs->Fields("tskDesc").value(), Value("First"));
    exec("UPDATE TASKS SET tskDesc='Host', tskImp=4 WHERE tskGUIDID='T1'");
    rs->Fields("tskImp") = Value(int16_t{2});  // as read: no change, so the host's 4 comes in
    rs->Fields("tskTimeSpent") = Value(int32_t{40});
    EXPECT_EQ(rs->MergeStored(), (std::vector<std::string>{"tskDesc", "tskImp"}));
    EXPECT_EQ(rs->Fields("tskDesc").value(), Value("Host"));
    EXPECT_EQ(rs->Fields("tskImp").value(), Value(int16_t{4}));
    rs->UpdateBatch();
    EXPECT_EQ(readOne("SELECT tskDesc || tskImp || tskTimeSpent FROM TASKS WHERE tskGUIDID='T1'"), "Host440");

    // Nothing to write while another connection holds the write lock: no wait.
    sqlite3* host = nullptr;
    ASSERT_EQ(sqlite3_open_v2(path_.c_str(), &host, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(host, "BEGIN IMMEDIATE; DELETE FROM TASKS WHERE tskGUIDID='T1'", nullptr, nullptr,
                           nullptr),
              SQLITE_OK);
    rs->Fields("tskTimeSpent") = Value(int32_t{40});
    EXPECT_NO_THROW(rs->UpdateBatch());
    ASSERT_EQ(sqlite3_exec(host, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(host);

    rs->Fields("tskTimeSpent") = Value(int32_t{41});
    expectStoreFailure(failureOf([&] { rs->UpdateBatch(); }), {"deleted by another user", "TASKS"});
}

// A text's sets teach its later sets which columns they use: those load
// only these, and read any other column of their rows when first asked.
TEST_F(RecordsetTest, AColumnALoadLeftOutIsReadWhenFirstAskedAndWrittenWithItsCheck) {
    const Query all = "SELECT * from TASKS";
    {
        auto first = open(all);
        for (; !first->EOF_(); first->MoveNext()) (void)first->Fields("tskDesc").value();
    }
    auto rs = open(all);
    ASSERT_FALSE(rs->EOF_());  // loaded
    exec("UPDATE TASKS SET tskImp=9, tskTimeSpent=70 WHERE tskGUIDID='T1';"
         "UPDATE TASKS SET tskTimeSpent=5 WHERE tskGUIDID='T2';"
         "DELETE FROM TASKS WHERE tskGUIDID='T3';"
         "INSERT INTO TASKS VALUES ('T4', 'Fourth', 'P2', 1, 0, 0, NULL)");
    EXPECT_EQ(rs->Fields("tskDesc").value(), Value("First"));  // as loaded
    // A merge has nothing to take for a column the set never read.
    EXPECT_EQ(rs->MergeStored(), std::vector<std::string>{});
    EXPECT_EQ(rs->Fields("tskImp").value(), Value(int16_t{9}));  // what stands when first asked
    rs->Fields("tskImp") = Value(int16_t{7});
    EXPECT_NO_THROW(rs->UpdateBatch());
    EXPECT_EQ(readOne("SELECT tskImp || tskTimeSpent FROM TASKS WHERE tskGUIDID='T1'"), "770");
    rs->MoveNext();
    EXPECT_EQ(rs->Fields("tskTimeSpent").value(), Value(int32_t{5}));
    rs->MoveNext();
    EXPECT_EQ(rs->Fields("tskDesc").value(), Value("Third"));
    rs->MoveNext();
    EXPECT_TRUE(rs->EOF_());  // the row added since is not in the set
    rs->Close();

    // Another program adds a column: the kept statement's old shape is not
    // read as the new one; the next open sees the new shape.
    exec("ALTER TABLE TASKS ADD COLUMN tskExtra TEXT DEFAULT 'x'");
    expectStoreFailure(failureOf([&] { (void)open(all)->EOF_(); }), {"tables changed by another program"});
    auto after = open(all);
    EXPECT_EQ(after->Fields("tskExtra").value(), Value("x"));
    EXPECT_EQ(after->Fields("tskDesc").value(), Value("First"));
}

}  // namespace
}  // namespace qv
