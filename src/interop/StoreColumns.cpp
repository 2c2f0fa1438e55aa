#include "interop/StoreColumns.h"

#include <charconv>
#include <cmath>

#include "values/types/DateSerial.h"

namespace qv {

std::string textOf(const Row& row, const char* column) {
    auto it = row.find(column);
    return it == row.end() ? std::string() : it->second.toText();
}

namespace columns {

namespace {

using K = ColumnKind;

// Columns with a standard property of their own (UID, SUMMARY, DESCRIPTION,
// RELATED-TO) carry no X-QUORVEL one; dates and picks carry both, so a
// reader sees them and the store gets them back to the millisecond.
constexpr ColumnSpec kTasks[] = {
    {"tskGUIDID", nullptr, K::Text},
    {"tskDesc", nullptr, K::Text},
    {"tskNotes", nullptr, K::Text},
    {"tskProject", "X-QUORVEL-PROJECT-NAME", K::Text},
    {"tskProjectKey", "X-QUORVEL-PROJECT", K::Text},
    {"tskStatus", "X-QUORVEL-STATUS", K::Int16},
    {"tskImp", "X-QUORVEL-IMPORTANCE", K::Int16},
    {"tskDifficulty", "X-QUORVEL-DIFFICULTY", K::Int16},
    {"tskTimeNeeded", "X-QUORVEL-TIME-NEEDED", K::Int32},
    {"tskTimeScheduled", "X-QUORVEL-TIME-SCHEDULED", K::Int32},
    {"tskTimeSpent", "X-QUORVEL-TIME-SPENT", K::Int32},
    {"tskCurrent", "X-QUORVEL-CURRENT", K::Bool},
    {"tskHasSchedule", "X-QUORVEL-HAS-SCHEDULE", K::Bool},
    {"tskHasNotes", "X-QUORVEL-HAS-NOTES", K::Bool},
    {"tskCreatedDate", "X-QUORVEL-CREATED", K::Date},
    {"tskLastMod", "X-QUORVEL-LAST-MODIFIED", K::Date},
    {"tskDeadline", "X-QUORVEL-DEADLINE", K::Date},
    {"tskDoneDate", "X-QUORVEL-DONE", K::Date},
    {"tskPossPoints", "X-QUORVEL-POINTS", K::Int32},
    {"tskCustSortQV", "X-QUORVEL-SORT", K::Int32},
    {"tskCustSortCUR", "X-QUORVEL-SORT-CURRENT", K::Int32},
    {"tskCustSortProj", "X-QUORVEL-SORT-PROJECT", K::Int32},
    {"tskHasChecklist", "X-QUORVEL-HAS-CHECKLIST", K::Bool},
    {"tskTCheckListGUID", "X-QUORVEL-CHECKLIST", K::Text},
    {"tskTaskCatGUID", "X-QUORVEL-CATALOG", K::Text},
    {"tskWasImported", "X-QUORVEL-WAS-IMPORTED", K::Bool},
    {"tskOUTEntityID", "X-QUORVEL-ENTITY-ID", K::Text},
};

constexpr ColumnSpec kAppointments[] = {
    {"taGUIDID", nullptr, K::Text},
    {"taTaskGUIDID", nullptr, K::Text},
    {"taTaskDesc", nullptr, K::Text},
    {"taProject", "X-QUORVEL-PROJECT-NAME", K::Text},
    {"taProjectGUIDID", "X-QUORVEL-PROJECT", K::Text},
    {"taStartTime", "X-QUORVEL-START", K::Date},
    {"taEndTime", "X-QUORVEL-END", K::Date},
    {"taImp", "X-QUORVEL-IMPORTANCE", K::Int16},
    {"taDifficulty", "X-QUORVEL-DIFFICULTY", K::Int16},
    {"taWasWorked", "X-QUORVEL-WORKED", K::Bool},
    {"taTimeWorked", "X-QUORVEL-TIME-WORKED", K::Int32},
    {"taDuration", "X-QUORVEL-DURATION", K::Int32},
};

// The dictionaries travel as properties of the calendar, each keyed by an
// X-QUORVEL-KEY parameter; the key column itself has no property.
constexpr ColumnSpec kProjects[] = {
    {"prjGUIDID", nullptr, K::Text},
    {"prjProject", "X-QUORVEL-PRJ-NAME", K::Text},
    {"prjSummary", "X-QUORVEL-PRJ-SUMMARY", K::Text},
    {"prjDeadline", "X-QUORVEL-PRJ-DEADLINE", K::Date},
    {"StatusLong", "X-QUORVEL-PRJ-STATUS", K::Int32},
};

constexpr ColumnSpec kKeywords[] = {
    {"keyGUIDID", nullptr, K::Text},
    {"keySubject", "X-QUORVEL-KW-SUBJECT", K::Text},
    {"keyKeyword", "X-QUORVEL-KW-NAME", K::Text},
};

std::optional<int64_t> wholeNumber(const std::string& text) {
    int64_t n = 0;
    const char* end = text.data() + text.size();
    auto [p, ec] = std::from_chars(text.data(), end, n);
    if (ec != std::errc() || p != end) return std::nullopt;
    return n;
}

}  // namespace

std::span<const ColumnSpec> tasks() { return kTasks; }
std::span<const ColumnSpec> appointments() { return kAppointments; }
std::span<const ColumnSpec> projects() { return kProjects; }
std::span<const ColumnSpec> keywords() { return kKeywords; }

std::string toText(ColumnKind kind, const Value& v) {
    switch (kind) {
    case K::Bool: return v.toBool() ? "1" : "0";
    case K::Int16:
    case K::Int32: return std::to_string(v.toInt32());
    case K::Date: return dateserial::toIso(v.toDate().serial);
    case K::Text: break;
    }
    return v.toText();
}

std::optional<Value> fromText(ColumnKind kind, const std::string& text) {
    switch (kind) {
    case K::Text: return Value(text);
    case K::Date:
        if (auto serial = dateserial::fromIso(text)) return Value(Date{*serial});
        return std::nullopt;
    case K::Bool:
        if (text == "0" || text == "1") return Value(text == "1");
        return std::nullopt;
    case K::Int16:
        if (auto n = wholeNumber(text); n && *n >= INT16_MIN && *n <= INT16_MAX) return Value(static_cast<int16_t>(*n));
        return std::nullopt;
    case K::Int32:
        if (auto n = wholeNumber(text); n && *n >= INT32_MIN && *n <= INT32_MAX) return Value(static_cast<int32_t>(*n));
        return std::nullopt;
    }
    return std::nullopt;
}

bool same(ColumnKind kind, const Value& stored, const Value& wanted) {
    if (stored.isNull() || wanted.isNull()) return stored.isNull() == wanted.isNull();
    switch (kind) {
    case K::Text: return stored.toText() == wanted.toText();
    case K::Bool: return stored.toBool() == wanted.toBool();
    case K::Int16:
    case K::Int32: return stored.toInt32() == wanted.toInt32();
    case K::Date:
        return dateserial::roundToMillisecond(stored.toDate().serial) ==
               dateserial::roundToMillisecond(wanted.toDate().serial);
    }
    return false;
}

}  // namespace columns

}  // namespace qv
