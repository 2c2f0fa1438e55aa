// A draft outlives its process: a child types into the Existing Task
// dialog through the scenario driver, waits a moment, and is killed with
// SIGKILL; the next open of the task offers the typing back, Yes fills it
// in and the save stores it. QV_DRAFT_RUNS sets the number of runs
// (default 3).

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "dialogs/shared/DraftFile.h"
#include "host/ChildScript.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "script/ScriptRunner.h"
#include "store/Connection.h"
#include "support/RunCount.h"
#include "support/ScopedEnv.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

constexpr const char* kTask = "T0000000-0000-0000-0000-000000000001";

std::string freshFolder() {
    auto pattern = (fs::temp_directory_path() / "quorvel-draft-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    installApplicationFolder(pattern);
    StoreFile(pattern + "/QuorvelData.mdb")
        .exec(std::string(
                  "INSERT INTO TASKS (tskGUIDID, tskDesc, tskNotes, tskProject, tskProjectKey, tskStatus, "
                  "tskImp, tskDifficulty, tskTimeNeeded, tskTimeSpent, tskTimeScheduled, tskCurrent) VALUES "
                  "('") +
              kTask + "', 'Stored text', 'Stored notes', '', 'NOPROJECT', 1, 2, 1, 90, 0, 0, 0)");
    return pattern;
}

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (char c : text) out += c == '\n' ? std::string("\\n") : std::string(1, c);
    return out + "\"";
}

// The child: types, lets the draft be written, then idles until killed.
[[noreturn]] void typeAndIdle(const std::string& folder, const std::string& desc, const std::string& notes) {
    const std::vector<std::string> lines{"home \"" + folder + "\"",
                                         std::string("setup 1 task=") + kTask,
                                         "type spellTask " + quoted(desc),
                                         "type SpellNotes " + quoted(notes),
                                         "advance 1000",
                                         "sleep 60000"};
    runScriptAndExit(lines);
}

TEST(KillDraft, TheTypingOfAKilledDialogIsOfferedBackAndSaved) {
    if (std::getenv("QV_STORE_URI")) GTEST_SKIP() << "one process's store file";
    const int runs = runCount("QV_DRAFT_RUNS", 3);
    int restored = 0;
    for (int run = 0; run < runs; ++run) {
        const std::string folder = freshFolder();
        ScopedEnv state;
        state.set("XDG_STATE_HOME", (folder + "/state").c_str());
        const std::string desc = "Typed in run " + std::to_string(run);
        const std::string notes = "Notes of run " + std::to_string(run) + "\nand a second line";
        const std::string draft = DraftFile::pathFor({folder + "/QuorvelData.mdb", 1, kTask});
        Connection::releaseAll();
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) typeAndIdle(folder, desc, notes);
        for (int i = 0; i < 200 && !fs::exists(draft); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_TRUE(fs::exists(draft)) << "run " << run;
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "run " << run;

        std::ostringstream out;
        int failed = 0;
        {
            ScriptRunner runner(out);
            failed = runner.run(
                {"home \"" + folder + "\"", "answer yes", std::string("setup 1 task=") + kTask,
                 "expect message \"This task has changes from 1/15/2024 09:00 that were not saved. "
                 "Restore them?\"",
                 "expect editor spellTask " + quoted(desc), "expect editor SpellNotes " + quoted(notes),
                 "click smtActions.UPDATE", "expect event TaskUpdated",
                 "expect row \"SELECT tskDesc FROM TASKS\" " + quoted(desc),
                 "expect row \"SELECT tskNotes FROM TASKS\" " + quoted(notes),
                 std::string("expect draft 1 ") + kTask + " none"});
        }
        EXPECT_EQ(failed, 0) << "run " << run << "\n" << out.str();
        if (failed == 0) ++restored;
        Connection::releaseAll();
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    std::cout << "[ kill runs ] typing offered back and saved " << restored << "/" << runs << "\n";
}

}  // namespace
}  // namespace qv
