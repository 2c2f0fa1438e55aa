#pragma once
// A typed field value as the store hands it to the logic: null, boolean
// (true is -1 when read as a number), 16- and 32-bit integers, double,
// date (a day serial: days since 1899-12-30, time of day as the fraction)
// and UTF-8 text.

#include <cstdint>
#include <string>
#include <variant>

#include "Export.h"

namespace qv {

struct QV_EXPORT Date {
    double serial = 0.0;
    friend bool operator==(const Date&, const Date&) = default;
};

class QV_EXPORT Value {
public:
    enum class Kind { Null, Bool, Int16, Int32, Double, Date, Text };

    Value() = default;
    Value(std::nullptr_t) {}
    Value(bool b) : v_(b) {}
    Value(int16_t i) : v_(i) {}
    Value(int32_t i) : v_(i) {}
    Value(double d) : v_(d) {}
    Value(Date d) : v_(d) {}
    Value(std::string s) : v_(std::move(s)) {}
    Value(const char* s) : v_(std::string(s)) {}

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(v_.index()); }
    [[nodiscard]] bool isNull() const { return kind() == Kind::Null; }

    // Conversions as the platform made them; a value that can't convert
    // throws Failure (type mismatch or overflow), null included.
    [[nodiscard]] bool toBool() const;
    [[nodiscard]] int16_t toInt16() const;
    [[nodiscard]] int32_t toInt32() const;
    [[nodiscard]] double toDouble() const;
    [[nodiscard]] Date toDate() const;
    // Text form of any value; null gives the empty text. A passing value
    // gives its text up rather than copy it.
    [[nodiscard]] std::string toText() const&;
    [[nodiscard]] std::string toText() &&;

    friend bool operator==(const Value&, const Value&) = default;

private:
    std::variant<std::monostate, bool, int16_t, int32_t, double, Date, std::string> v_;
};

}  // namespace qv
