#include "installer/StoreFile.h"

#include <sqlite3.h>

#include "toolkit/Failure.h"

namespace qv {

StoreFile::StoreFile(const std::string& path, bool readOnly) {
    const int flags = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (sqlite3_open_v2(path.c_str(), &db_, flags, nullptr) != SQLITE_OK) {
        const std::string why = db_ ? sqlite3_errmsg(db_) : "out of memory";
        sqlite3_close(db_);
        throw Failure(err::StoreFailure, "cannot open " + path + ": " + why);
    }
    sqlite3_busy_timeout(db_, 5000);
}

StoreFile::~StoreFile() { sqlite3_close(db_); }

void StoreFile::exec(const std::string& sql) {
    char* message = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &message) == SQLITE_OK) return;
    const std::string why = message ? message : "unknown";
    sqlite3_free(message);
    throw Failure(err::StoreFailure, why + " in " + sql);
}

std::optional<std::string> StoreFile::firstValue(const std::string& sql, bool* isNull) {
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &st, nullptr) != SQLITE_OK)
        throw Failure(err::StoreFailure, std::string(sqlite3_errmsg(db_)) + " in " + sql);
    std::optional<std::string> out;
    if (sqlite3_step(st) == SQLITE_ROW) {
        const bool null = sqlite3_column_type(st, 0) == SQLITE_NULL;
        if (isNull) *isNull = null;
        out = null ? std::string() : std::string(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    }
    sqlite3_finalize(st);
    return out;
}

}  // namespace qv
