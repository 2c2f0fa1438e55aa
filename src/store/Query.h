#pragma once
// A query text of the store's dialect with the values of its ? placeholders,
// in their order: every value reaches the engine bound, never spliced into
// the text.

#include <string>
#include <vector>

#include "values/types/Value.h"

namespace qv {

struct Query {
    Query() = default;
    // A text with no placeholders.
    Query(std::string t) : text(std::move(t)) {}  // NOLINT(google-explicit-constructor)
    Query(const char* t) : text(t) {}             // NOLINT(google-explicit-constructor)
    Query(std::string t, std::vector<Value> v) : text(std::move(t)), values(std::move(v)) {}

    std::string text;
    std::vector<Value> values;
};

}  // namespace qv
