#pragma once
// A caption cut to fit: the text whole when it has no more than limit
// characters, else its first limit characters and "...".

#include <cstddef>
#include <string>

namespace qv {

[[nodiscard]] std::string TrimtoLen(const std::string& text, std::size_t limit);

}  // namespace qv
