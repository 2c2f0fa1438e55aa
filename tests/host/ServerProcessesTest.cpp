// Two users at once on one server store: two processes, each with its own
// program folder naming the same server, save new tasks through New Task
// and write back, again and again, different columns of one shared task
// and a column of a task of their own. Nothing of either may be lost.
// Runs in the server pass of the suite (QV_STORE_URI).

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "script/ScriptRunner.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/PgConnection.h"
#include "store/Recordset.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

constexpr const char* kShared = "55555555-0000-0000-0000-000000000000";
constexpr const char* kProject = "11111111-2222-3333-4444-555555555555";
constexpr int kNewTasks = 15;
constexpr int kEdits = 60;

std::string ownKey(char who) {
    return std::string(8, who) + "-0000-0000-0000-000000000000";
}

void writeColumn(const std::string& key, const char* column, const Value& v) {
    Recordset rs;
    rs.Open("SELECT * from TASKS WHERE tskGUIDID='" + key + "'", g().ConnString, adOpenStatic,
            adLockBatchOptimistic);
    if (rs.EOF_()) throw std::runtime_error("no task " + key);
    rs.Fields(column) = v;
    rs.Update();
    rs.UpdateBatch(adAffectAllChapters);
    rs.Close();
}

// One user: tasks through New Task, then edits. Exits 0 when all went in.
[[noreturn]] void work(const std::string& folder, char who) {
    try {
        std::vector<std::string> lines{"home \"" + folder + "\"", "setup 0", "advance 600",
                                       std::string("click smtProj.") + kProject, "click smtImp.IMP-3"};
        for (int i = 0; i < kNewTasks; ++i) {
            lines.push_back(std::string("type spellTask \"") + who + " task " + std::to_string(i) + "\"");
            lines.push_back("click smtActions.QV");
        }
        lines.push_back("key escape");
        std::ostringstream out;
        {
            ScriptRunner runner(out);
            if (runner.run(lines) != 0) {
                std::cerr << out.str();
                _exit(2);
            }
        }
        resetGlobals();
        g().AppPath = folder;
        if (!ADOTest()) _exit(3);
        for (int i = 1; i <= kEdits; ++i) {
            // The same task, a different column each; and a task of its own.
            if (who == 'A')
                writeColumn(kShared, "tskDesc", std::string("A edit ") + std::to_string(i));
            else
                writeColumn(kShared, "tskTimeSpent", int32_t{i});
            writeColumn(ownKey(who), "tskNotes", std::string(1, who) + " note " + std::to_string(i));
        }
    } catch (const std::exception& e) {
        std::cerr << who << ": " << e.what() << "\n";
        _exit(1);
    }
    _exit(0);
}

TEST(ServerStoreUsers, TwoProcessesEditAtOnceAndNothingIsLost) {
    const char* server = std::getenv("QV_STORE_URI");
    if (!server || !*server) GTEST_SKIP() << "no server store: the \"server\" pass of ctest starts one";
    const std::string uri = makeScratchServerStore(server);
    std::vector<std::string> folders;
    for (const char* name : {"a", "b"}) {
        std::string tmpl =
            (fs::temp_directory_path() / ("quorvel-user-" + std::string(name) + "-XXXXXX")).string();
        ASSERT_NE(::mkdtemp(tmpl.data()), nullptr);
        installServerApplicationFolder(tmpl, uri);
        folders.push_back(tmpl);
    }
    {
        StoreFile store(uri);
        store.exec(std::string("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('") + kProject +
                   "', 'Garden')");
        for (const std::string& key : {std::string(kShared), ownKey('A'), ownKey('B')})
            store.exec("INSERT INTO TASKS (tskGUIDID, tskDesc, tskTimeSpent, tskImp) VALUES ('" + key +
                       "', 'start', 0, 1)");
    }
    PgConnection::releaseAll();  // nothing of this process's connection crosses the fork
    std::vector<pid_t> children;
    for (char who : {'A', 'B'}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) work(folders[who == 'A' ? 0 : 1], who);
        children.push_back(child);
    }
    for (pid_t child : children) {
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a user's process failed: " << status;
    }
    StoreFile store(uri);
    for (const std::string who : {"A", "B"}) {
        EXPECT_EQ(store.firstValue("SELECT COUNT(*) FROM TASKS WHERE tskDesc LIKE '" + who + " task %'"),
                  std::to_string(kNewTasks));
        EXPECT_EQ(store.firstValue("SELECT tskNotes FROM TASKS WHERE tskGUIDID='" + ownKey(who[0]) + "'"),
                  who + " note " + std::to_string(kEdits));
    }
    const std::string shared = std::string(" FROM TASKS WHERE tskGUIDID='") + kShared + "'";
    EXPECT_EQ(store.firstValue("SELECT tskDesc" + shared), "A edit " + std::to_string(kEdits));
    EXPECT_EQ(store.firstValue("SELECT tskTimeSpent" + shared), std::to_string(kEdits));
    dropScratchServerStore(uri);
    for (const auto& f : folders) {
        std::error_code ec;
        fs::remove_all(f, ec);
    }
}

}  // namespace
}  // namespace qv
