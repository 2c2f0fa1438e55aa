#include "HostFixture.h"

#include <stdexcept>

#include <sqlite3.h>

#include "installer/StoreInstaller.h"
#include "kit/ToolCell.h"
#include "session/globals/SessionGlobals.h"
#include "view/HostWindow.h"

namespace qv {

void HostFixture::SetUp() {
    ASSERT_TRUE(dir_.isValid());
    resetGlobals();
    installStore(folder());
    installSettingsFile(folder());
    host_ = std::make_unique<HostApp>(folder(), false);
}

void HostFixture::TearDown() {
    StepRunner::closeAll();
    host_.reset();
    resetGlobals();
}

void HostFixture::exec(const std::string& sql) const {
    sqlite3* db = nullptr;
    sqlite3_open((folder() + "/QuorvelData.mdb").c_str(), &db);
    char* err = nullptr;
    const int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err);
    const std::string message = err ? err : "";
    sqlite3_free(err);
    sqlite3_close(db);
    if (rc != SQLITE_OK) throw std::runtime_error(message);
}

std::string HostFixture::text(const std::string& sql) const {
    sqlite3* db = nullptr;
    sqlite3_open((folder() + "/QuorvelData.mdb").c_str(), &db);
    sqlite3_stmt* s = nullptr;
    std::string value;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr) == SQLITE_OK && sqlite3_step(s) == SQLITE_ROW)
        if (const auto* t = sqlite3_column_text(s, 0)) value = reinterpret_cast<const char*>(t);
    sqlite3_finalize(s);
    sqlite3_close(db);
    return value;
}

long long HostFixture::count(const std::string& sql) const {
    const std::string n = text(sql);
    return n.empty() ? -1 : std::stoll(n);
}

void HostFixture::openNewTask(StepRunner& steps) {
    // A stuck dialog ends the test instead of hanging it.
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.start();
    host().window().newTask();
}

ToolCell* HostFixture::cell(const QString& form, const QString& name) {
    QWidget* w = StepRunner::formWindow(form);
    return w ? w->findChild<ToolCell*>(name) : nullptr;
}

}  // namespace qv
