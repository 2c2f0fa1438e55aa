#pragma once
// The spelling port: judges single words, offers corrections and keeps the
// user's own words. Without a dictionary every word is right and nothing
// is offered.

#include <string>
#include <vector>

#include "Export.h"

namespace qv {

class QV_EXPORT SpellChecker {
public:
    virtual ~SpellChecker() = default;
    [[nodiscard]] virtual bool available() const = 0;
    [[nodiscard]] virtual bool isCorrect(const std::string& word) const = 0;
    [[nodiscard]] virtual std::vector<std::string> suggest(const std::string& word) const = 0;
    // Into the user's personal word list, for this and later sessions.
    virtual void addToPersonal(const std::string& word) = 0;
};

}  // namespace qv
