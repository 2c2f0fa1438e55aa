#include "dialogs/shared/StoredRow.h"

#include <cmath>

#include "dialogs/shared/DialogMessages.h"
#include "toolkit/Failure.h"
#include "toolkit/MessageText.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
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
    throw Failure(err::SubscriptOutOfRange,
                  fill(tr("Subscript out of range: the %1 row \"%2\" holds %3 in its column %4, beyond the %5 list"),
                       {table_, cutForMessage(key_), shown(row_.Fields(column).value()), column, tr(field)}));
}

void StoredRow::note(const char* field, const Value& stored) {
    // TRANSLATORS: %1 a stored value, %2 the field ("Status").
    notes_.push_back(fill(tr("%1 as its %2"), {shown(stored), tr(field)}));
}

std::string StoredRow::shown(const Value& stored) {
    if (stored.isNull()) return tr("nothing");
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
        // TRANSLATORS: the last joint of a list ("A, B and C").
        if (i) list += i + 1 == notes_.size() ? tr(" and ") : tr(", ");
        list += notes_[i];
    }
    const std::string who = name_.empty() ? key_ : name_;
    return fill(trn("The task \"%1\" held %2, which can't be shown; that field opens unset.",
                    "The task \"%1\" held %2, which can't be shown; those fields open unset.", notes_.size()),
                {cutForMessage(who), list});
}

void StoredRow::tell() const {
    if (const std::string text = notice(); !text.empty()) DialogMessages::inform(text);
}

}  // namespace qv
