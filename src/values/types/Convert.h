#pragma once
// The platform's text-to-number and text-to-date conversions, as the time
// grammar and the settings rely on them. The throwing forms raise
// Failure(err::TypeMismatch) for text that is no number and
// Failure(err::Overflow) for a number beyond the target type; the try forms
// return nothing instead.
//
// A number reads as: optional blanks, an optional sign, digits with optional
// "," thousands separators, an optional "." fraction and an optional
// exponent ("1E3"), optional blanks. Whole-number targets round half to even.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qv {

namespace err {
inline constexpr int32_t DivisionByZero = 11;
}

// Text to a 64-bit float; throws TypeMismatch.
double toDouble(std::string_view text);
// Text to a single float; throws TypeMismatch, Overflow beyond its range.
float toSingle(std::string_view text);
// Text to a 32-bit whole number, rounded half to even.
int32_t toLong(std::string_view text);
// Text to a 16-bit whole number, rounded half to even.
int16_t toInteger(std::string_view text);

std::optional<double> tryToDouble(std::string_view text);
std::optional<int32_t> tryToLong(std::string_view text);

// Rounds half to even into a 32-bit whole number; Overflow for NaN or beyond.
int32_t roundLong(double x);
// Rounds half to even into a 16-bit whole number; Overflow beyond.
int16_t roundInteger(double x);
// Narrows to a single float as the platform stores one; Overflow beyond.
float toSingleFloat(double x);
// Truncates toward zero (the integer part) of a finite value.
double truncate(double x);

// A single float as the platform writes it: up to seven significant digits,
// no point for whole values, exponent form ("1.234568E+07") beyond that.
std::string singleText(float x);

// Clock times "9:30", "09:30:00", "9:30 PM", "3:00:00 PM", dates "M/D/YYYY"
// and a date followed by a clock time. Result: a day serial, or nothing.
std::optional<double> tryToDate(std::string_view text);
bool readsAsDate(std::string_view text);

}  // namespace qv
