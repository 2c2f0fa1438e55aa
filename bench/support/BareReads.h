#pragma once
// The bare SQLite work a dialog's open needs, for the benchmarks to set
// the component beside: the settings sections LoadSettings reads, and a
// walk over every cell of a query.

#include <cstdint>
#include <string>
#include <vector>

struct sqlite3;

namespace qv::bench {

// The sections in the order LoadSettings reads them (ETASK twice: read,
// then checked for the window state).
[[nodiscard]] const std::vector<std::string>& settingsSections();
// Walks every row of a query, reading each column as text; the cells read.
int64_t walk(sqlite3* db, const std::string& sql);
// Walks the settings sections as LoadSettings queries them.
int64_t walkSettings(sqlite3* db);

}  // namespace qv::bench
