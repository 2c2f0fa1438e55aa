// The desktop host's own lists on whichever store its folder names: in the
// server pass of the suite the folder's settings file holds a server URI.
#ifdef QV_HOST_VIEW

#include <gtest/gtest.h>

#include <sstream>

#include "installer/StoreFile.h"
#include "script/ScriptRunner.h"
#include "store/StoreBackend.h"
#include "view/HostRows.h"
#include "view/HostStore.h"
#include "view/TaskTableModel.h"

namespace qv {
namespace {

constexpr const char* kProject = "11111111-2222-3333-4444-555555555555";

std::vector<std::string> addTaskScript() {
    return {
        std::string("sql \"INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('") + kProject +
            "', 'Garden')\"",
        "sql \"INSERT INTO TASKSCAT (tskGUIDID, tskDesc) VALUES ('C1', 'Water the lawn')\"",
        "setup 0",
        "advance 600",
        "type spellTask \"Plant the tulip bulbs\"",
        std::string("click smtProj.") + kProject,
        "click smtImp.IMP-3",
        "click smtDiff.DIF-1",
        "click smtTimeNeeded.TIM-1",
        "click smtActions.QV",
        "expect event NewTask",
        "key escape",
        "expect form none",
    };
}

TEST(HostStoreLists, ShowTaskSavedByTheComponentAndRemoveItsRows) {
    std::ostringstream out;
    ScriptRunner runner(out);
    ASSERT_EQ(runner.run(addTaskScript()), 0) << out.str();
    const std::string location = storeLocationOf(runner.folder());
    HostStore store(runner.folder());
    EXPECT_EQ(store.location(), location);
    EXPECT_EQ(isServerUri(location), std::getenv("QV_STORE_URI") != nullptr) << location;

    // The host's list shows the task the component saved.
    TaskTableModel list;
    list.setRows(store.tasks(false), {});
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.data(list.index(0, TaskTableModel::Desc)).toString(), "Plant the tulip bulbs");
    EXPECT_EQ(list.data(list.index(0, TaskTableModel::Project)).toString(), "Garden");
    const std::string key = list.rowAt(0)->guid;
    EXPECT_EQ(list.rowAt(0)->projectKey, kProject);
    EXPECT_EQ(list.rowAt(0)->imp, 3);
    EXPECT_EQ(store.tasks(false, kProject).size(), 1u);
    EXPECT_TRUE(store.tasks(false, "no such project").empty());

    // The other lists of the host come from the same store.
    ASSERT_EQ(store.projects().size(), 1u);
    EXPECT_EQ(store.projects()[0].name, "Garden");
    ASSERT_EQ(store.catalog().size(), 1u);
    EXPECT_EQ(store.catalog()[0].name, "Water the lawn");
    EXPECT_FALSE(store.statusList().empty());

    // A date reads as the file keeps it, on either store.
    StoreFile(location).exec(
        "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taWasWorked) "
        "VALUES ('A1', '" +
        key + "', '2026-03-15T09:00:00.000', '2026-03-15T10:30:00.000', 'Bulbs', 1)");
    const auto appts = store.appointments(key);
    ASSERT_EQ(appts.size(), 1u);
    EXPECT_EQ(appts[0].start, "2026-03-15T09:00:00.000");
    EXPECT_EQ(appts[0].end, "2026-03-15T10:30:00.000");
    EXPECT_TRUE(appts[0].worked);
    EXPECT_TRUE(store.appointments("O'Brien ? \"x\"").empty());

    // A number column holding anything else is told, not read as 0 (a file store takes such a cell).
    if (!isServerUri(location)) {
        StoreFile(location).exec("UPDATE TASKS SET tskImp='lots'");
        std::string told;
        try {
            (void)store.tasks(false);
        } catch (const std::runtime_error& e) {
            told = e.what();
        }
        EXPECT_NE(told.find("\"lots\" in tskImp"), std::string::npos) << told;
    }

    // The task and its appointments go together.
    store.deleteTask(key);
    EXPECT_TRUE(store.tasks(false).empty());
    EXPECT_TRUE(store.appointments(key).empty());
}

TEST(HostStoreLists, PlaceholdersAreNumberedOutsideQuotesOnly) {
    EXPECT_EQ(HostRows::numbered("SELECT a FROM T WHERE b=? AND c='?' AND d=\"?\" AND e=?"),
              "SELECT a FROM T WHERE b=$1 AND c='?' AND d=\"?\" AND e=$2");
}

}  // namespace
}  // namespace qv

#endif
