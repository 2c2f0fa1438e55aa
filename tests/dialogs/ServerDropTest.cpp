// The server ends the session while the Existing Task dialog is up: Update
// ends in one report naming the server, without the engine's words.

#include <libpq-fe.h>

#include <string>

#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "installer/StoreFile.h"
#include "store/PgConnection.h"

namespace qv {

namespace {

class ServerDrop : public ExistingTaskFixture {
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

TEST_F(ServerDrop, AConnectionLostMidSaveNamesTheServer) {
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
TEST_F(ServerDrop, TablesChangedByAnotherProgramFailOnceThenOpenAgain) {
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

}  // namespace qv
