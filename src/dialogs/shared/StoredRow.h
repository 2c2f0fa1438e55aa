#pragma once
// Reads a stored row for a dialog's load. A value the dialog can't show (a
// level beyond its list read as a bounds failure aside) opens as unset and
// is noted; after the load the user is told in one sentence which fields of
// which task held what.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "store/Recordset.h"

namespace qv {

class StoredRow {
public:
    // table and key name the row in a report; name is what the user knows it by.
    StoredRow(Recordset& row, std::string table, std::string key);

    void setName(const std::string& name) { name_ = name; }
    [[nodiscard]] std::string text(const char* column);
    // A whole number of 32 bits, or nothing for a null or anything else
    // (noted under field unless the null is allowed).
    std::optional<int32_t> number(const char* column, const char* field, bool nullAllowed = false);
    // Minutes, 0 for a null or an unreadable value.
    int32_t minutes(const char* column, const char* field);
    // A date of the calendar, or nothing for a null or an unreadable value.
    std::optional<double> date(const char* column, const char* field);
    // Yes or no; no for a null or an unreadable value.
    bool flag(const char* column, const char* field);
    // A position in a list of count entries. A number beyond it is a bounds
    // failure that names the table, the column, the key and the value.
    std::optional<int32_t> level(const char* column, const char* field, std::size_t count);
    // Notes a column's stored value as one the dialog can't show.
    void unshown(const char* column, const char* field) { note(field, row_.Fields(column).value()); }
    // The bounds failure of a column whose number lies beyond its list.
    [[noreturn]] void beyondList(const char* column, const char* field) const;

    // The one message of what was noted; nothing when all was readable.
    [[nodiscard]] std::string notice() const;
    // Shows the notice, if any, in an information box.
    void tell() const;

private:
    void note(const char* field, const Value& stored);
    [[nodiscard]] static std::string shown(const Value& stored);

    Recordset& row_;
    std::string table_;
    std::string key_;
    std::string name_;
    std::vector<std::string> notes_;
};

}  // namespace qv
