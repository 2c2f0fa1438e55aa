#include "support/TestEnv.h"

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/Connection.h"
#include "store/PgConnection.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {

std::string makeTempFolder() {
    auto pattern = (std::filesystem::temp_directory_path() / "quorvel-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    return pattern;
}

}  // namespace

void TestEnv::SetUp() {
    folder_ = makeTempFolder();
    // Drafts of the dialogs stay in the test's own folder.
    ::setenv("XDG_STATE_HOME", (folder_ + "/state").c_str(), 1);
    resetGlobals();
    g().AppPath = folder_;
    ports() = Ports{};
    ports().ui = &ui_;
    ports().clock = &clock_;
    ports().reporter = &reporter_;
    // QV_STORE_URI: the store is a fresh scratch store on that server.
    const char* server = std::getenv("QV_STORE_URI");
    if (server && *server && options_.store && options_.settingsFile) {
        installReportsFolder(folder_);
        writeSettingsFile(folder_, makeScratchServerStore(server));
        return;
    }
    if (options_.store) {
        installStore(folder_);
        installReportsFolder(folder_);
    }
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
    PgConnection::releaseAll();
    if (const char* server = std::getenv("QV_STORE_URI"); server && *server)
        dropScratchServerStore(storeLocationOf(folder_));
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

bool TestEnv::onServerStore() {
    const char* server = std::getenv("QV_STORE_URI");
    return server && *server;
}

std::string TestEnv::storePath() const {
    return pathInFolder(folder_, kStoreFileName);
}

std::string TestEnv::settingsPath() const {
    return pathInFolder(folder_, kSettingsFileName);
}

void TestEnv::exec(const std::string& sql) const { StoreFile(storeLocationOf(folder_)).exec(sql); }

std::string TestEnv::readOne(const std::string& sql) const {
    return StoreFile(storeLocationOf(folder_)).firstValue(sql).value_or("");
}

void TestEnv::refuseWrites(const std::string& table, const std::string& event) const {
    if (onServerStore()) {
        exec("CREATE OR REPLACE FUNCTION qv_refuse() RETURNS trigger LANGUAGE plpgsql AS "
             "$$ BEGIN RAISE EXCEPTION 'refused'; END $$");
        exec("CREATE TRIGGER refuse BEFORE " + event + " ON " + table + " FOR EACH ROW EXECUTE FUNCTION qv_refuse()");
        return;
    }
    exec("CREATE TRIGGER refuse BEFORE " + event + " ON " + table + " BEGIN SELECT RAISE(ABORT, 'refused'); END");
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
