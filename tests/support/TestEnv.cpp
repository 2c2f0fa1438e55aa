#include "support/TestEnv.h"

#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/Connection.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {

struct DbCloser {
    void operator()(sqlite3* db) const { sqlite3_close(db); }
};
using Db = std::unique_ptr<sqlite3, DbCloser>;

Db openStore(const std::string& path) {
    sqlite3* raw = nullptr;
    const int rc = sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr);
    Db db(raw);
    if (rc != SQLITE_OK) throw std::runtime_error("cannot open " + path);
    sqlite3_busy_timeout(db.get(), 2000);
    return db;
}

std::string makeTempFolder() {
    auto pattern = (std::filesystem::temp_directory_path() / "quorvel-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    return pattern;
}

}  // namespace

void TestEnv::SetUp() {
    folder_ = makeTempFolder();
    resetGlobals();
    g().AppPath = folder_;
    ports() = Ports{};
    ports().ui = &ui_;
    ports().clock = &clock_;
    ports().reporter = &reporter_;
    if (options_.store) installStore(folder_);
    if (options_.settingsFile) installSettingsFile(folder_);
}

void TestEnv::TearDown() {
    // A dialog's trap may have swallowed a script that ran short.
    for (const auto& e : ui_.scriptErrors()) ADD_FAILURE() << "script error: " << e;
    for (const auto& form : Form::openForms()) form->unload();
    releaseDeferred();
    ports() = Ports{};
    resetGlobals();
    Connection::releaseAll();
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

std::string TestEnv::storePath() const {
    return pathInFolder(folder_, kStoreFileName);
}

std::string TestEnv::settingsPath() const {
    return pathInFolder(folder_, kSettingsFileName);
}

void TestEnv::exec(const std::string& sql) const {
    auto db = openStore(storePath());
    char* message = nullptr;
    if (sqlite3_exec(db.get(), sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
        const std::string why = message ? message : "unknown";
        sqlite3_free(message);
        throw std::runtime_error(why + " in " + sql);
    }
}

std::string TestEnv::readOne(const std::string& sql) const {
    auto db = openStore(storePath());
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db.get(), sql.c_str(), -1, &st, nullptr) != SQLITE_OK)
        throw std::runtime_error(std::string(sqlite3_errmsg(db.get())) + " in " + sql);
    std::string out;
    if (sqlite3_step(st) == SQLITE_ROW && sqlite3_column_type(st, 0) != SQLITE_NULL)
        out = reinterpret_cast<const char*>(sqlite3_column_text(st, 0));
    sqlite3_finalize(st);
    return out;
}

int64_t TestEnv::readInt(const std::string& sql) const {
    return std::stoll(readOne(sql));
}

std::string TestEnv::readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void TestEnv::writeFile(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}

}  // namespace qv
