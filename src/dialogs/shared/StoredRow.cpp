#include "dialogs/shared/StoredRow.h"

#include <cmath>

#include "dialogs/shared/DialogMessages.h"
#include "toolkit/Failure.h"
#include "toolkit/MessageText.h"
#include "values/types/CNull.h"

namespace qv {

namespace {

// The calendar's first and last days as date serials (1 January 100, 31 December 9999).
constexpr double kFirstDay = -657434.0;
constexpr double kLastDay = 2958466.0;
// The longest stored value quoted in a notice.
constexpr std::size_t kShownLimit = 40;

bool onCalendar(double serial) {
    return std::isfinite(serial) && serial >= kFirstDay && serial < kLastDay;
}

}  // namespace

StoredRow::StoredRow(Recordset& row, std::string table, std::string key)
    : row_(row), table_(std::move(table)), key_(std::move(key)) {}

std::string StoredRow::text(const char* column) {
    return CNull::NVLStr(row_.Fields(column).value());
}

std::optional<int32_t> StoredRow::number(const char* column, const char* field, bool nullAllowed) {
    const Value stored = row_.Fields(column).value();
    if (stored.isNull()) {
        if (!nullAllowed) note(field, stored);
        return std::nullopt;
    }
    try {
        return stored.toInt32();
    } catch (const Failure&) {
        note(field, stored);
        return std::nullopt;
    }
}

int32_t StoredRow::minutes(const char* column, const char* field) {
    return number(column, field, true).value_or(0);
}

std::optional<double> StoredRow::date(const char* column, const char* field) {
    const Value stored = row_.Fields(column).value();
    if (stored.isNull()) return std::nullopt;
    try {
        const double serial = stored.toDate().serial;
        if (onCalendar(serial)) return serial;
    } catch (const Failure&) {
    }
    note(field, stored);
    return std::nullopt;
}

bool StoredRow::flag(const char* column, const char* field) {
    const Value stored = row_.Fields(column).value();
    if (stored.isNull()) return false;
    try {
        return stored.toBool();
    } catch (const Failure&) {
        note(field, stored);
        return false;
    }
}

std::optional<int32_t> StoredRow::level(const char* column, const char* field, std::size_t count) {
    const auto n = number(column, field);
    if (n && (*n < 0 || static_cast<std::size_t>(*n) >= count)) beyondList(column, field);
    return n;
}

void StoredRow::beyondList(const char* column, const char* field) const {
    throw Failure(err::SubscriptOutOfRange, "Subscript out of range: the " + table_ + " row \"" +
                                                cutForMessage(key_) + "\" holds " +
                                                shown(row_.Fields(column).value()) + " in its column " +
                                                column + ", beyond the " + field + " list");
}

void StoredRow::note(const char* field, const Value& stored) {
    notes_.push_back(shown(stored) + " as its " + field);
}

std::string StoredRow::shown(const Value& stored) {
    if (stored.isNull()) return "nothing";
    if (stored.kind() == Value::Kind::Text) return "\"" + cutForMessage(stored.toText(), kShownLimit) + "\"";
    // A day off the calendar shows as the number stored.
    if (stored.kind() == Value::Kind::Date && !onCalendar(stored.toDate().serial))
        return cutForMessage(Value(stored.toDate().serial).toText(), kShownLimit);
    return cutForMessage(stored.toText(), kShownLimit);
}

std::string StoredRow::notice() const {
    if (notes_.empty()) return {};
    std::string list;
    for (std::size_t i = 0; i < notes_.size(); ++i) {
        if (i) list += i + 1 == notes_.size() ? " and " : ", ";
        list += notes_[i];
    }
    const std::string who = name_.empty() ? key_ : name_;
    return "The task \"" + cutForMessage(who) + "\" held " + list + ", which can't be shown; " +
           (notes_.size() == 1 ? "that field opens" : "those fields open") + " unset.";
}

void StoredRow::tell() const {
    if (const std::string text = notice(); !text.empty()) DialogMessages::inform(text);
}

}  // namespace qv
