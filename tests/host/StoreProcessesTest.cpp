// The store shared with other processes, through the scenario driver: saves
// killed at random instants leave whole tasks (QV_KILL_RUNS runs, default
// 30), and another process's write lock delays a save or ends it cleanly.

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "host/ChildScript.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "script/ScriptRunner.h"
#include "store/Connection.h"
#include "support/RunCount.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

const char* const kKeywords[] = {"AAAAAAAA-0000-0000-0000-000000000001",
                                 "AAAAAAAA-0000-0000-0000-000000000002",
                                 "AAAAAAAA-0000-0000-0000-000000000003"};
constexpr const char* kProject = "11111111-2222-3333-4444-555555555555";
constexpr int kSavesPerChild = 400;

// Lines that open New Task on the folder's store with the project, an
// importance and the three keywords chosen.
std::vector<std::string> newTaskWithKeywords(const std::string& folder) {
    std::vector<std::string> lines{"home \"" + folder + "\"", "setup 0", "advance 600",
                                   std::string("click smtProj.") + kProject, "click smtImp.IMP-3"};
    for (const char* key : kKeywords) lines.push_back(std::string("click smtKeywords.") + key);
    return lines;
}

std::string freshFolder() {
    auto pattern = (fs::temp_directory_path() / "quorvel-kill-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    installApplicationFolder(pattern);
    StoreFile store(pattern + "/QuorvelData.mdb");
    store.exec(std::string("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('") + kProject +
               "', 'Garden')");
    for (const char* key : kKeywords)
        store.exec(std::string("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES ('") + key +
                   "', 'Errands', 'Word " + key[35] + "')");
    return pattern;
}

// The child: New Task with three keywords ticked, then save after save.
[[noreturn]] void saveUntilKilled(const std::string& folder) {
    std::vector<std::string> lines = newTaskWithKeywords(folder);
    for (int i = 0; i < kSavesPerChild; ++i) {
        lines.push_back("type spellTask \"Task " + std::to_string(i) + "\"");
        lines.push_back("click smtActions.QV");
    }
    lines.push_back("key escape");
    runScriptAndExit(lines);
}

struct Tally {
    int64_t tasks = 0;
    int64_t halfTasks = 0;    // tasks without all three keyword rows
    int64_t orphanLinks = 0;  // keyword rows of no task
    std::string integrity;
};

Tally inspect(const std::string& folder) {
    StoreFile store(folder + "/QuorvelData.mdb");
    const auto count = [&](const std::string& sql) { return std::stoll(store.firstValue(sql).value_or("0")); };
    Tally t;
    t.integrity = store.firstValue("PRAGMA integrity_check").value_or("");
    t.tasks = count("SELECT COUNT(*) FROM TASKS");
    t.halfTasks = count(
        "SELECT COUNT(*) FROM TASKS WHERE (SELECT COUNT(*) FROM TaskKeywords WHERE ktTASKGUID=tskGUIDID) <> 3");
    t.orphanLinks =
        count("SELECT COUNT(*) FROM TaskKeywords WHERE ktTASKGUID NOT IN (SELECT tskGUIDID FROM TASKS)");
    return t;
}

// Both are about the store file: not repeated in the server pass.
bool onServerPass() { return std::getenv("QV_STORE_URI") != nullptr; }

TEST(KillSave, EveryTaskOfAKilledSaverIsWhole) {
    if (onServerPass()) GTEST_SKIP() << "about the store file";
    const int runs = runCount("QV_KILL_RUNS", 30);
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<int> instant(30, 700);  // ms after the start
    int whole = 0;
    int runsWithSaves = 0;
    int64_t saved = 0;
    for (int run = 0; run < runs; ++run) {
        const std::string folder = freshFolder();
        Connection::releaseAll();  // nothing of this process's store crosses the fork
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) saveUntilKilled(folder);
        ::usleep(static_cast<useconds_t>(instant(random)) * 1000);
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);

        const Tally t = inspect(folder);
        EXPECT_EQ(t.integrity, "ok") << "run " << run;
        EXPECT_EQ(t.halfTasks, 0) << "run " << run << ": of " << t.tasks << " tasks";
        EXPECT_EQ(t.orphanLinks, 0) << "run " << run;
        if (t.integrity == "ok" && t.halfTasks == 0 && t.orphanLinks == 0) ++whole;
        if (t.tasks > 0) ++runsWithSaves;
        saved += t.tasks;
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    std::cout << "[ kill runs ] whole " << whole << "/" << runs << " (" << runsWithSaves
              << " killed after saving, " << saved << " tasks in all)\n";
    // The instants must reach into the saving, or the test proves nothing.
    EXPECT_GT(runsWithSaves, runs / 3);
}

// Another process: takes the write lock, says so through the pipe, holds it.
pid_t holdWriteLock(const std::string& folder, int holdMs) {
    int ready[2];
    if (::pipe(ready) != 0) return -1;
    const pid_t child = fork();
    if (child == 0) {
        ::close(ready[0]);
        try {
            StoreFile store(folder + "/QuorvelData.mdb");
            store.exec("BEGIN IMMEDIATE; INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('HOLDER-" +
                       std::to_string(::getpid()) + "', 'Held')");
            const char byte = 1;
            (void)!::write(ready[1], &byte, 1);
            ::usleep(static_cast<useconds_t>(holdMs) * 1000);
            store.exec("COMMIT");
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    ::close(ready[1]);
    char byte = 0;
    const bool held = ::read(ready[0], &byte, 1) == 1;
    ::close(ready[0]);
    return held ? child : -1;
}

// New Task with three keywords, saved once while another process holds the lock.
std::string saveOnce(const std::string& folder, int holdMs) {
    std::vector<std::string> lines = newTaskWithKeywords(folder);
    lines.push_back("type spellTask \"Saved under a lock\"");
    lines.push_back("click smtActions.QV");
    lines.push_back("key escape");
    Connection::releaseAll();
    const pid_t holder = holdWriteLock(folder, holdMs);
    EXPECT_GT(holder, 0);
    std::ostringstream out;
    {
        ScriptRunner runner(out);
        runner.run(lines);
    }
    int status = 0;
    if (holder > 0) ::waitpid(holder, &status, 0);
    Connection::releaseAll();
    return out.str();
}

TEST(StoreLock, AShortLockDelaysTheSaveAndALongOneEndsItWithNothingHalfWritten) {
    if (onServerPass()) GTEST_SKIP() << "about the store file";
    // In WAL, as installed, and in the rollback journal of an older store.
    for (const char* journal : {"WAL", "DELETE"}) {
        const std::string folder = freshFolder();
        StoreFile(folder + "/QuorvelData.mdb").exec(std::string("PRAGMA journal_mode=") + journal);
        const std::string shortHold = saveOnce(folder, 2000);
        EXPECT_NE(shortHold.find("event NewTask"), std::string::npos) << journal << "\n" << shortHold;
        EXPECT_EQ(shortHold.find("fault"), std::string::npos) << journal << "\n" << shortHold;
        Tally t = inspect(folder);
        EXPECT_EQ(t.tasks, 1) << journal;
        EXPECT_EQ(t.halfTasks, 0) << journal;

        const std::string longHold = saveOnce(folder, 6500);
        EXPECT_NE(longHold.find("is busy"), std::string::npos) << journal << "\n" << longHold;
        EXPECT_NE(longHold.find("GotErrExitNow"), std::string::npos) << journal << "\n" << longHold;
        EXPECT_EQ(longHold.find("event NewTask"), std::string::npos) << journal << "\n" << longHold;
        size_t faults = 0;
        for (size_t at = longHold.find("fault "); at != std::string::npos;
             at = longHold.find("fault ", at + 1))
            ++faults;
        EXPECT_EQ(faults, 1u) << journal << "\n" << longHold;
        t = inspect(folder);
        EXPECT_EQ(t.tasks, 1) << journal << ": the refused save left a row";
        EXPECT_EQ(t.orphanLinks, 0) << journal;
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
}

}  // namespace
}  // namespace qv
