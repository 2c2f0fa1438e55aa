#pragma once
// Direct access to a store file, past the component's own layer: for the
// installer's sample data, the scenario driver and the tests, which prepare
// rows and check what the component wrote.

#include <optional>
#include <string>

struct sqlite3;

namespace qv {

class StoreFile {
public:
    // Opens an existing file; throws Failure when it can't.
    explicit StoreFile(const std::string& path, bool readOnly = false);
    ~StoreFile();
    StoreFile(const StoreFile&) = delete;
    StoreFile& operator=(const StoreFile&) = delete;

    // Runs one or more statements; throws Failure with the engine's words.
    void exec(const std::string& sql);
    // The first column of the first row as text: nothing when no row came,
    // and an empty text with isNull set for a null.
    [[nodiscard]] std::optional<std::string> firstValue(const std::string& sql, bool* isNull = nullptr);

private:
    sqlite3* db_ = nullptr;
};

}  // namespace qv
