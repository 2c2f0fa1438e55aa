#include "dialogs/shared/TrimtoLen.h"

#include "values/types/TextChars.h"

namespace qv {

std::string TrimtoLen(const std::string& text, std::size_t limit) {
    if (charCount(text) <= limit) return text;
    return midChars(text, 1, limit) + "...";
}

}  // namespace qv
