#pragma once
// The task list as a spreadsheet reads it: RFC 4180 (fields quoted where
// they hold a quote, comma or line break; lines end in CR LF), UTF-8, a
// header of the list's column names, durations as minutes and as the
// dialogs write them.

#include <string>
#include <vector>

namespace qv {

class CsvWriter {
public:
    // The header and a line per task of the list, in the list's order.
    // Reads the settings first (status words, length of a day).
    [[nodiscard]] static std::string taskList(int& rows);
    [[nodiscard]] static std::string field(const std::string& text);
    [[nodiscard]] static std::string line(const std::vector<std::string>& fields);
};

}  // namespace qv
