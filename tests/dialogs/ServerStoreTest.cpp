// What only a server store meets: the server ends the session while the
// Existing Task dialog is up, another program changes the tables, and sets
// that read only the columns their query text has used.

#include <libpq-fe.h>

#include <string>

#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "installer/StoreFile.h"
#include "store/PgConnection.h"
#include "store/Recordset.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {

class ServerStore : public ExistingTaskFixture {
protected:
    void SetUp() override {
        if (!onServerStore()) GTEST_SKIP() << "about a server store";
        ExistingTaskFixture::SetUp();
        seed();
        addTask();
    }

    // Ends the component's own session on the server.
    void dropConnection() const {
        const std::string uri = storeLocationOf(folder());
        const int pid = PQbackendPID(PgConnection::forUri(uri)->handle());
        PGconn* other = PQconnectdb(uri.c_str());
        ASSERT_EQ(PQstatus(other), CONNECTION_OK) << PQerrorMessage(other);
        const std::string sql = "SELECT pg_terminate_backend(" + std::to_string(pid) + ")";
        PQclear(PQexec(other, sql.c_str()));
        PQfinish(other);
    }
};

}  // namespace

TEST_F(ServerStore, AConnectionLostMidSaveNamesTheServer) {
    then([this] {
        dropConnection();
        eform().editor("SpellNotes")->userEdit("Three coats");
    });
    click("smtActions", "UPDATE");
    openTask();
    ASSERT_EQ(reporter().faults().size(), 1u);
    const std::string& d = reporter().faults()[0].description;
    EXPECT_EQ(d.rfind("The Quorvel data server \"" + serverName(storeLocationOf(folder())) +
                          "\" can't be reached: ",
                      0),
              0u)
        << d;
    EXPECT_EQ(d.find("SELECT"), std::string::npos) << d;
    EXPECT_EQ(d.find("writing the changes"), std::string::npos) << d;
}

// Another program adds a column while the session keeps its statements:
// one open says so, the next one reads the new shape.
TEST_F(ServerStore, TablesChangedByAnotherProgramFailOnceThenOpenAgain) {
    look([] {});
    exec("ALTER TABLE TASKS ADD COLUMN tskExtra TEXT DEFAULT 'x'");
    look([] {});
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_NE(reporter().faults()[0].description.find("had its tables changed by another program: open it again"),
              std::string::npos)
        << reporter().faults()[0].description;
    reporter().clear();
    look([this] { EXPECT_EQ(eform().fields().record().Desc, "Paint the fence"); });
    EXPECT_TRUE(reporter().faults().empty());
}

// A set of a text whose sets used only the description copies only that;
// a column asked later reads the rows again once, and a write is still
// checked against what the set read.
TEST_F(ServerStore, AColumnALoadLeftOutIsReadWhenFirstAsked) {
    const std::string conn = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + storeLocationOf(folder()) + ";";
    const Query all = "SELECT * from TASKS";
    const auto open = [&] {
        auto rs = std::make_shared<Recordset>();
        rs->Open(all, conn, adOpenStatic, adLockBatchOptimistic);
        return rs;
    };
    {
        auto first = open();
        for (; !first->EOF_(); first->MoveNext()) (void)first->Fields("tskDesc").value();
    }
    auto rs = open();
    ASSERT_FALSE(rs->EOF_());
    exec(std::string("UPDATE TASKS SET tskNotes='Three coats' WHERE tskGUIDID='") + kTask + "'");
    EXPECT_EQ(rs->Fields("tskDesc").value(), Value("Paint the fence"));
    EXPECT_EQ(rs->Fields("tskNotes").value(), Value("Three coats"));  // what stands when first asked
    exec(std::string("UPDATE TASKS SET tskImp=4 WHERE tskGUIDID='") + kTask + "'");
    rs->Fields("tskImp") = Value(int16_t{1});
    EXPECT_THROW(rs->UpdateBatch(), Failure) << "another user's change since the read";
}

// The server keeps rows where it likes (an update moves one to the end);
// a set gives them in the order they were added, with an order or without.
TEST_F(ServerStore, RowsComeInTheOrderTheyWereAddedAfterAnUpdate) {
    for (const char* key : {"T2", "T3"})
        exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskImp) VALUES ('") + key + "', 'x', 2)");
    exec(std::string("UPDATE TASKS SET tskNotes='moved', tskImp=2 WHERE tskGUIDID='") + kTask + "'");
    const std::string conn = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + storeLocationOf(folder()) + ";";
    for (const char* text : {"SELECT tskGUIDID from TASKS", "SELECT * from TASKS ORDER BY tskImp"}) {
        SCOPED_TRACE(text);
        Recordset rs;
        rs.Open(Query(text), conn, adOpenStatic, adLockBatchOptimistic);
        std::vector<std::string> keys;
        for (; !rs.EOF_(); rs.MoveNext()) keys.push_back(rs.Fields("tskGUIDID").value().toText());
        EXPECT_EQ(keys, (std::vector<std::string>{kTask, "T2", "T3"}));
    }
}

}  // namespace qv
