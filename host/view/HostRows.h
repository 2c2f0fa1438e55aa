#pragma once
// The host's small reads and writes on the store its folder names, with
// bound parameters ("?" in the texts): a store file opened for the call, or
// a server through the component's own connection to it (its messages, its
// prepared statements). Every cell comes as text, nothing for null, and a
// date as the file keeps it ("2024-01-15T17:30:00.000") on either store.

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;

namespace qv {

class PgConnection;

class HostRows {
public:
    using Row = std::vector<std::optional<std::string>>;

    // Opens the store at a location (a path or a server URI); throws when it can't.
    explicit HostRows(const std::string& location);
    ~HostRows();
    HostRows(const HostRows&) = delete;
    HostRows& operator=(const HostRows&) = delete;

    [[nodiscard]] std::vector<Row> select(const std::string& sql,
                                          const std::vector<std::string>& params = {});
    // Runs every text with the one parameter: all of them or none.
    void runTogether(const std::vector<std::string>& texts, const std::string& param);

    // "?" placeholders as the server numbers them ($1, $2, ...).
    [[nodiscard]] static std::string numbered(const std::string& sql);

private:
    std::vector<Row> selectFile(const std::string& sql, const std::vector<std::string>& params);
    void runTogetherOnFile(const std::vector<std::string>& texts, const std::string& param);

    std::string location_;
    sqlite3* db_ = nullptr;
    std::shared_ptr<PgConnection> server_;
};

}  // namespace qv
