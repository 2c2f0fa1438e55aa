#pragma once
// A run-time failure inside a procedure. The procedure's trap catches it and
// sends it down the error path (ReportError); user mistakes never throw.

#include <cstdint>
#include <stdexcept>
#include <string>

#include "Export.h"

namespace qv {

class QV_EXPORT Failure : public std::runtime_error {
public:
    Failure(int32_t number, const std::string& description, std::string source = {})
        : std::runtime_error(description), number_(number), source_(std::move(source)) {}

    [[nodiscard]] int32_t number() const { return number_; }
    [[nodiscard]] std::string description() const { return what(); }
    [[nodiscard]] const std::string& source() const { return source_; }

private:
    int32_t number_;
    std::string source_;
};

// Numbers of the usual run-time failures.
namespace err {
inline constexpr int32_t TypeMismatch = 13;
inline constexpr int32_t Overflow = 6;
inline constexpr int32_t SubscriptOutOfRange = 9;
inline constexpr int32_t InvalidProcedureCall = 5;
inline constexpr int32_t ObjectRequired = 424;
inline constexpr int32_t FileNotFound = 53;
inline constexpr int32_t PathNotFound = 76;
inline constexpr int32_t StoreFailure = 3000;  // any failure reported by the store engine
}  // namespace err

}  // namespace qv
