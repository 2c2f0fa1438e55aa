// The host program's command line, run as a user would run it with no
// display: help and version on standard output, a mistake on standard error
// with status 2, and no run that was not asked for a demonstration touches
// the store of a folder holding the user's tasks, or writes anything.
#if defined(QV_HOST_VIEW) && defined(QV_HOST_EXE)

#include <gtest/gtest.h>
#include <locale.h>
#include <sqlite3.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "installer/StoreInstaller.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

std::string slurp(const fs::path& p) {
    std::ifstream in(p);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

// Every row of every table, as text: equal dumps, equal stores.
std::string dumpStore(const fs::path& file) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    std::string out;
    auto each = [&](const std::string& sql, auto&& row) {
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr);
        while (sqlite3_step(st) == SQLITE_ROW) row(st);
        sqlite3_finalize(st);
    };
    std::vector<std::string> tables;
    each("SELECT name FROM sqlite_master WHERE type='table' ORDER BY name",
         [&](sqlite3_stmt* st) { tables.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(st, 0))); });
    for (const std::string& t : tables) {
        out += "[" + t + "]\n";
        each("SELECT * FROM \"" + t + "\" ORDER BY rowid", [&](sqlite3_stmt* st) {
            for (int c = 0; c < sqlite3_column_count(st); ++c) {
                const auto* v = sqlite3_column_text(st, c);
                out += (v ? reinterpret_cast<const char*>(v) : "NULL") + std::string("|");
            }
            out += "\n";
        });
    }
    sqlite3_close(db);
    return out;
}

// Names, sizes and times of everything under a folder (the engine's own
// journal files are touched by any reader, the dump's too: names only).
std::string listing(const fs::path& dir) {
    std::string out;
    if (!fs::exists(dir)) return "(none)";
    for (const auto& e : fs::recursive_directory_iterator(dir)) {
        out += e.path().string();
        const std::string ext = e.path().extension().string();
        if (e.is_regular_file() && ext != ".mdb-wal" && ext != ".mdb-shm")
            out += " " + std::to_string(e.file_size()) + " " +
                   std::to_string(fs::last_write_time(e.path()).time_since_epoch().count());
        out += "\n";
    }
    return out;
}

struct Outcome {
    int status = -1;
    std::string out, err;
};

class CommandLine : public ::testing::Test {
protected:
    void SetUp() override {
        if (std::getenv("QV_STORE_URI")) GTEST_SKIP() << "about the store file and the user's folders";
        auto pattern = (fs::temp_directory_path() / "quorvel-cmdline-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        root_ = pattern;
        user_ = root_ / "user";
        installApplicationFolder(user_.string());
        sqlite3* db = nullptr;
        sqlite3_open((user_ / "QuorvelData.mdb").c_str(), &db);
        sqlite3_exec(db,
                     "INSERT INTO TASKS (tskGUIDID, tskDesc, tskStatus) VALUES ('U-1', 'Pay the rent', 3);"
                     "INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('P-1', 'Home')",
                     nullptr, nullptr, nullptr);
        sqlite3_close(db);
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(root_, ec);
    }

    // The program with no display, its HOME inside the test's folder; with
    // locale variables ("LANG=de_DE.UTF-8"), under those alone.
    Outcome run(const std::string& args, const std::string& localeVars = {}) const {
        const fs::path out = root_ / "out.txt", err = root_ / "err.txt";
        const std::string locale = localeVars.empty() ? "" : " -u LC_ALL -u LC_MESSAGES -u LANGUAGE " + localeVars;
        const std::string cmd =
            "cd '" + root_.string() + "' && env -u DISPLAY -u WAYLAND_DISPLAY -u QUORVEL_HOME" +
            " -u XDG_DATA_HOME" + locale + " HOME='" + (root_ / "home").string() + "' '" QV_HOST_EXE "' " +
            args + " >'" + out.string() + "' 2>'" + err.string() + "'";
        const int raw = std::system(cmd.c_str());
        Outcome r{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, slurp(out), slurp(err)};
        fs::remove(out);
        fs::remove(err);
        return r;
    }

    fs::path root_, user_;
};

struct Case {
    const char* args;  // USER stands for the folder holding the user's store
    int status;
    const char* out;  // standard output holds this ("" for empty)
    const char* err;  // standard error holds this ("" for empty)
};

const Case kCases[] = {
    {"--version", 0, "quorvel 1.14\n", ""},
    {"--help", 0, "--install-store", ""},
    {"-h", 0, "--store <URI>", ""},
    {"--bogus", 2, "", "Unknown option 'bogus'"},
    {"--home USER --bogus", 2, "", "Try 'quorvel --help'"},
    {"--home", 2, "", "Missing value after '--home'"},
    {"--home USER leftover", 2, "", "unexpected argument 'leftover'"},
    {"--home USER --store postgresql:///x", 2, "", "--store goes with --install-store"},
    {"--home USER", 1, "", "quorvel --demo --home DIR"},
    {"", 1, "", "home/.local/share/quorvel/QuorvelData.mdb"},
    {"--home USER --demo", 1, "", "holds 1 task the demonstration did not make"},
    {"--home USER --screenshots", 1, "", "did not make"},
    {"--home USER --install-store", 0, "The store stands already in", ""},
    {"--home USER --project P-1", 2, "", "--project goes with --export"},
    {"--home USER --import absent.ics", 1, "", "absent.ics can't be read: no such file"},
    {"--home USER --export tasks.ics --project nope", 1, "", "There is no project with the key nope to export."},
};

TEST_F(CommandLine, AnswersEveryCaseAndLeavesTheUsersStoreAsItWas) {
    const std::string before = dumpStore(user_ / "QuorvelData.mdb");
    const std::string files = listing(root_);
    ASSERT_NE(before.find("Pay the rent"), std::string::npos);
    for (const Case& c : kCases) {
        std::string args = c.args;
        if (auto at = args.find("USER"); at != std::string::npos) args.replace(at, 4, user_.string());
        SCOPED_TRACE(args);
        const Outcome r = run(args);
        EXPECT_EQ(r.status, c.status) << r.err;
        if (*c.out) EXPECT_NE(r.out.find(c.out), std::string::npos) << r.out;
        else EXPECT_EQ(r.out, "");
        if (*c.err) EXPECT_NE(r.err.find(c.err), std::string::npos) << r.err;
        else EXPECT_EQ(r.err, "");
        EXPECT_EQ(dumpStore(user_ / "QuorvelData.mdb"), before);
        EXPECT_EQ(listing(root_), files) << "written by quorvel " << args;
    }
}

// The program speaks the language of its environment: its own texts from
// the quorvel catalogue, Qt's (the help's headings) from Qt's; in C, English.
struct LanguageCase {
    const char* locale;  // the locale variables
    const char* args;
    std::vector<const char*> out, err;  // standard output and error hold these
};

const LanguageCase kLanguages[] = {
    {"LANG=de_DE.UTF-8", "--help", {"Diese Hilfe zeigen und beenden.", "Optionen:"}, {}},
    {"LANG=de_DE.UTF-8", "--home USER leftover", {}, {"unerwartetes Argument 'leftover'"}},
    {"LANG=de_DE.UTF-8", "--bogus", {}, {"Unbekannte Option 'bogus'"}},
    {"LANG=de_DE.UTF-8", "--home USER", {}, {"Ihr Datenbestand: "}},
    {"LANG=de_DE.UTF-8", "--home USER --install-store", {"Der Datenbestand besteht bereits in"}, {}},
    {"LANG=C", "--help", {"Show this help and exit.", "Options:"}, {}},
    {"LANG=C", "--home USER leftover", {}, {"unexpected argument 'leftover'"}},
    {"LANG=C.UTF-8", "--home USER --install-store", {"The store stands already in"}, {}},
    // The C locales ignore LANGUAGE, Qt's texts as much as the program's.
    {"LANG=C.UTF-8 LANGUAGE=de", "--help", {"Options:"}, {}},
    {"LANG=C.UTF-8 LANGUAGE=de", "--bogus", {}, {"Unknown option 'bogus'"}},
};

TEST_F(CommandLine, SpeaksTheLanguageOfItsEnvironment) {
    const locale_t de = newlocale(LC_ALL_MASK, "de_DE.UTF-8", nullptr);
    const bool german = de != nullptr;
    if (de) freelocale(de);
    for (const LanguageCase& c : kLanguages) {
        if (!german && std::string(c.locale).find("de_DE") != std::string::npos) continue;
        std::string args = c.args;
        if (auto at = args.find("USER"); at != std::string::npos) args.replace(at, 4, user_.string());
        SCOPED_TRACE(std::string(c.locale) + " " + args);
        const Outcome r = run(args, c.locale);
        for (const char* out : c.out) EXPECT_NE(r.out.find(out), std::string::npos) << r.out;
        for (const char* err : c.err) EXPECT_NE(r.err.find(err), std::string::npos) << r.err;
    }
    if (!german) GTEST_SKIP() << "no de_DE.UTF-8 locale on this machine";
}

// A relative --home is made absolute: the settings file names the store by
// a path that holds from any working folder.
TEST_F(CommandLine, ARelativeHomeStoresAnAbsolutePath) {
    const Outcome r = run("--home fresh/./sub --install-store");
    ASSERT_EQ(r.status, 0) << r.err;
    const std::string settings = slurp(root_ / "fresh" / "sub" / "QuorvelSettings.txt");
    EXPECT_NE(settings.find("\r\n" + (root_ / "fresh" / "sub" / "QuorvelData.mdb").string() + "\r\n"),
              std::string::npos)
        << settings;
    EXPECT_NE(r.out.find(" in " + (root_ / "fresh" / "sub").string()), std::string::npos) << r.out;
}

}  // namespace
}  // namespace qv

#endif
