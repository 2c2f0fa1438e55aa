#pragma once
// Direct access to a store, past the component's own layer: for the
// installer's sample data, the scenario driver and the tests, which prepare
// rows and check what the component wrote. The location is a store file's
// path or a server's URI, as the settings file names it.

#include <optional>
#include <string>

struct sqlite3;
struct pg_conn;

namespace qv {

class StoreFile {
public:
    // Opens an existing store; throws Failure when it can't.
    explicit StoreFile(const std::string& location, bool readOnly = false);
    ~StoreFile();
    StoreFile(const StoreFile&) = delete;
    StoreFile& operator=(const StoreFile&) = delete;

    // Runs one or more statements; throws Failure with the engine's words.
    // On a server, TRUE and FALSE read as 1 and 0 as in the component's queries.
    void exec(const std::string& sql);
    // The first column of the first row as text: nothing when no row came,
    // and an empty text with isNull set for a null. A date reads as the
    // file store keeps it ("2001-04-19T10:30:00.000") on either store.
    [[nodiscard]] std::optional<std::string> firstValue(const std::string& sql, bool* isNull = nullptr);

private:
    sqlite3* db_ = nullptr;
    pg_conn* pg_ = nullptr;
};

// The store that a program's folder names: the location in its settings
// file, else the store file in the folder.
std::string storeLocationOf(const std::string& folder);

}  // namespace qv
