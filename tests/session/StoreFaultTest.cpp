// A store that can't be opened or read, through SetupTask: one report, one
// GotErrExitNow, every dialog and timer gone, nothing written.

#include <sys/stat.h>

#include <filesystem>

#include "dialogs/newtask/frmTask3.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "store/Connection.h"
#include "support/TestEnv.h"
#include "toolkit/Form.h"
#include "toolkit/Timer.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kUStuff(6);

class StoreFaultTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        QV_FILE_STORE_ONLY();
        task.setTempErrReport(std::shared_ptr<Reporter>(&reporter(), [](Reporter*) {}));
        task.GotErrExitNow.connect([this] { ++exits; });
    }
    void TearDown() override {
        fs::permissions(folder(), fs::perms::owner_all, fs::perm_options::add);
        if (fs::exists(storePath()))
            fs::permissions(storePath(), fs::perms::owner_read | fs::perms::owner_write,
                            fs::perm_options::add);
        TestEnv::TearDown();
    }

    // Opens New Task; the user, if the dialog comes up, closes it by Escape.
    void openAndClose() {
        scriptedUi().queueAction([this] {
            if (task.frm() && task.frm()->loaded()) task.frm()->keyDown(vbKeyEscape);
        });
        task.SetupTask(0, {}, kUStuff, 1, {});
        Connection::releaseAll();
    }

    // The one report of the session, which names the store and says what.
    void expectOneReport(const std::string& what) {
        ASSERT_EQ(reporter().faults().size(), 1u)
            << (reporter().faults().empty() ? std::string("no report")
                                            : reporter().faults().back().description);
        const auto& d = reporter().faults()[0].description;
        EXPECT_NE(d.find("\"" + storePath() + "\""), std::string::npos) << d;
        EXPECT_NE(d.find(what), std::string::npos) << d;
        EXPECT_EQ(exits, 1);
        EXPECT_TRUE(Form::openForms().empty());
        EXPECT_EQ(Timer::activeCount(), 0) << "a timer of a closed dialog still runs";
        EXPECT_FALSE(fs::exists(storePath() + "-wal") && fs::file_size(storePath() + "-wal") > 0);
    }

    void nextSession() {
        reporter().clear();
        exits = 0;
    }

    clsTask2 task;
    int exits = 0;
};

TEST_F(StoreFaultTest, AFileThatIsNoStoreGivesOneReportAndStaysAsItWas) {
    // An empty file is not turned into a store either.
    for (const std::string& junk : {std::string(4096, '\x5a'), std::string()}) {
        SCOPED_TRACE(junk.size());
        writeFile(storePath(), junk);
        openAndClose();
        expectOneReport("is not a Quorvel data file");
        EXPECT_EQ(readFile(storePath()), junk);
        EXPECT_TRUE(scriptedUi().messages().empty());
        // The next session is told again, once.
        nextSession();
        openAndClose();
        expectOneReport("is not a Quorvel data file");
        nextSession();
    }
}

TEST_F(StoreFaultTest, AReadOnlyFileIsReadAndRefusesTheCloseWriteOnce) {
    exec("UPDATE Settings SET SetSettingValue='-5' WHERE SetSettingSection='TASKWINDOW'");
    const std::string before = readFile(storePath());
    fs::permissions(storePath(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    openAndClose();
    expectOneReport("is read-only");
    EXPECT_EQ(readFile(storePath()), before);
}

TEST_F(StoreFaultTest, AReadOnlyFolderGivesOneReport) {
    const std::string before = readFile(storePath());
    // Judged by the permission bits, so this holds for root too.
    ::chmod(folder().c_str(), 0555);
    openAndClose();
    expectOneReport("is read-only");
    EXPECT_EQ(readFile(storePath()), before);
}

TEST_F(StoreFaultTest, AMissingTableOrColumnIsNamedAndNoGeometryIsWritten) {
    exec("DROP TABLE KEYWORDS");
    const auto geometry = [this] {
        return readOne(
            "SELECT group_concat(SetSettingValue) FROM Settings WHERE SetSettingSection='TASKWINDOW'");
    };
    const std::string stored = geometry();
    openAndClose();
    expectOneReport("is missing the table KEYWORDS");
    EXPECT_EQ(geometry(), stored) << "the window's geometry was written over";

    nextSession();
    exec("DROP TABLE Settings");
    openAndClose();
    expectOneReport("is missing the table Settings");

    nextSession();
    exec("DROP INDEX IF EXISTS idxProjectsName; ALTER TABLE PROJECTS DROP COLUMN prjProject");
    exec("CREATE TABLE Settings (SetUser TEXT)");
    openAndClose();
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_NE(reporter().faults()[0].description.find("is missing the column"), std::string::npos)
        << reporter().faults()[0].description;
}

TEST_F(StoreFaultTest, ALostStoreWithNoDefaultIsToldOnceAfterTheLocationMessages) {
    fs::remove(storePath());
    scriptedUi().queueAnswer(vbOK);
    scriptedUi().queueAnswer(vbOK);
    openAndClose();
    // The location check's own two messages, then the one report.
    ASSERT_EQ(scriptedUi().messages().size(), 2u);
    EXPECT_NE(scriptedUi().messages()[0].text.find("could not be found"), std::string::npos);
    expectOneReport("is missing");
    EXPECT_FALSE(fs::exists(storePath())) << "a missing store is never created";
}

}  // namespace
}  // namespace qv
