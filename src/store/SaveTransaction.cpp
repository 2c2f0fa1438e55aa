#include "store/SaveTransaction.h"

#include <algorithm>
#include <vector>

#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/StoreBackend.h"

namespace qv {

namespace {

std::shared_ptr<StoreBackend> sessionStore() {
    locateSessionStore();
    return StoreBackend::forConnString(g().ConnString);
}

// The saves open now, outermost first.
std::vector<SaveTransaction*>& openSaves() {
    static std::vector<SaveTransaction*> saves;
    return saves;
}

}  // namespace

SaveTransaction::SaveTransaction() : conn_(sessionStore()) {
    begin();
}

SaveTransaction::SaveTransaction(std::shared_ptr<StoreBackend> conn) : conn_(std::move(conn)) {
    begin();
}

void SaveTransaction::begin() {
    const std::string ctx = conn_->where("beginning a save");
    outer_ = !conn_->inTransaction();
    if (outer_) {
        conn_->exec(conn_->beginText(), ctx);
    } else {
        savepoint_ = "qv_save_" + std::to_string(conn_->nextSavepoint());
        conn_->exec("SAVEPOINT " + savepoint_, ctx);
    }
    openSaves().push_back(this);
}

SaveTransaction::~SaveTransaction() {
    if (!done_) fail();
}

void SaveTransaction::commit() {
    if (done_) return;
    const std::string sql = outer_ ? std::string("COMMIT") : "RELEASE " + savepoint_;
    try {
        conn_->exec(sql, conn_->where("finishing a save"));
    } catch (...) {
        keep_.clear();
        fail();
        throw;
    }
    done_ = true;
    auto& saves = openSaves();
    saves.erase(std::remove(saves.begin(), saves.end(), this), saves.end());
}

void SaveTransaction::keepSoFar() {
    if (done_) return;
    keep_ = "qv_keep_" + std::to_string(conn_->nextSavepoint());
    conn_->exec("SAVEPOINT " + keep_, conn_->where("saving"));
}

void SaveTransaction::run(const std::string& sql) noexcept {
    conn_->execQuiet(sql);
}

// Undoes the save, or all of it after the keep mark, and commits what the
// mark keeps. A statement that failed may have ended the transaction
// already; then there is nothing left to do.
void SaveTransaction::fail() noexcept {
    done_ = true;
    auto& saves = openSaves();
    saves.erase(std::remove(saves.begin(), saves.end(), this), saves.end());
    if (!conn_->inTransaction()) return;
    if (!keep_.empty()) {
        run("ROLLBACK TO " + keep_);
        run("RELEASE " + keep_);
        run(outer_ ? std::string("COMMIT") : "RELEASE " + savepoint_);
        if (outer_ && conn_->inTransaction()) run("ROLLBACK");
        return;
    }
    if (outer_) {
        run("ROLLBACK");
        return;
    }
    run("ROLLBACK TO " + savepoint_);
    run("RELEASE " + savepoint_);
}

void SaveTransaction::settleAll() noexcept {
    while (!openSaves().empty()) openSaves().back()->fail();
}

}  // namespace qv
