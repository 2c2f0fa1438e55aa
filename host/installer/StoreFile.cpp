#include "installer/StoreFile.h"

#include <libpq-fe.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "store/ADOCode.h"
#include "store/JetDialect.h"
#include "store/PgConnection.h"
#include "store/StoreBackend.h"
#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {

constexpr Oid kBoolOid = 16;
constexpr Oid kTimestampOid = 1114;

std::string pgError(PGconn* c) {
    std::string why = PQerrorMessage(c);
    while (!why.empty() && (why.back() == '\n' || why.back() == ' ')) why.pop_back();
    return why;
}

}  // namespace

StoreFile::StoreFile(const std::string& location, bool readOnly) {
    if (isServerUri(location)) {
        pg_ = PQconnectdb(location.c_str());
        if (PQstatus(pg_) != CONNECTION_OK) {
            const std::string why = pgError(pg_);
            PQfinish(pg_);
            throw Failure(err::StoreFailure, "cannot reach " + serverName(location) + ": " + why);
        }
        PQclear(PQexec(pg_, "SET client_min_messages = warning; SET DateStyle = 'ISO, YMD'"));
        return;
    }
    const int flags = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (sqlite3_open_v2(location.c_str(), &db_, flags, nullptr) != SQLITE_OK) {
        const std::string why = db_ ? sqlite3_errmsg(db_) : "out of memory";
        sqlite3_close(db_);
        throw Failure(err::StoreFailure, "cannot open " + location + ": " + why);
    }
    sqlite3_busy_timeout(db_, 5000);
}

StoreFile::~StoreFile() {
    if (pg_) PQfinish(pg_);
    sqlite3_close(db_);
}

void StoreFile::exec(const std::string& sql) {
    if (pg_) {
        PGresult* r = PQexec(pg_, jet::forPostgres(sql).c_str());
        const auto status = PQresultStatus(r);
        PQclear(r);
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            throw Failure(err::StoreFailure, pgError(pg_) + " in " + sql);
        return;
    }
    char* message = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &message) == SQLITE_OK) return;
    const std::string why = message ? message : "unknown";
    sqlite3_free(message);
    throw Failure(err::StoreFailure, why + " in " + sql);
}

std::optional<std::string> StoreFile::firstValue(const std::string& sql, bool* isNull) {
    std::optional<std::string> out;
    if (pg_) {
        PGresult* r = PQexec(pg_, jet::forPostgres(sql).c_str());
        if (PQresultStatus(r) != PGRES_TUPLES_OK) {
            PQclear(r);
            throw Failure(err::StoreFailure, pgError(pg_) + " in " + sql);
        }
        if (PQntuples(r) > 0 && PQnfields(r) > 0) {
            const bool null = PQgetisnull(r, 0, 0);
            if (isNull) *isNull = null;
            std::string text = null ? std::string() : PQgetvalue(r, 0, 0);
            if (!null && PQftype(r, 0) == kTimestampOid)
                if (const auto serial = dateserial::fromIso(text)) text = dateserial::toIso(*serial);
            if (!null && PQftype(r, 0) == kBoolOid)
                text = text == "t" ? "1" : "0";  // as the file store gives it
            out = text;
        }
        PQclear(r);
        return out;
    }
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &st, nullptr) != SQLITE_OK)
        throw Failure(err::StoreFailure, std::string(sqlite3_errmsg(db_)) + " in " + sql);
    if (sqlite3_step(st) == SQLITE_ROW) {
        const bool null = sqlite3_column_type(st, 0) == SQLITE_NULL;
        if (isNull) *isNull = null;
        out = null ? std::string() : std::string(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    }
    sqlite3_finalize(st);
    return out;
}

std::string storeLocationOf(const std::string& folder) {
    const std::string settings = pathInFolder(folder, kSettingsFileName);
    std::error_code ec;
    if (std::filesystem::is_regular_file(settings, ec)) {
        try {
            std::ifstream in(settings, std::ios::binary);
            const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            const std::string location = dbLocationIn(text);
            if (!location.empty()) return location;
        } catch (const std::exception&) {
            // An unreadable settings file names no store.
        }
    }
    return pathInFolder(folder, kStoreFileName);
}

}  // namespace qv
