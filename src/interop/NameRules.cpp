#include "interop/NameRules.h"

#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "values/types/TextCase.h"
#include "values/types/TextChars.h"

namespace qv {

namespace {
constexpr std::size_t kLongestProjectName = 101;
}

std::string NameRules::trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<std::string> NameRules::projectRefusal(const std::string& name) {
    if (name.empty()) return tr("the project has no name: Enter a name for this Project.");
    if (charCount(name) > kLongestProjectName)
        return fill(tr("the project \"%1\": The new Project name is too long."), {name});
    return std::nullopt;
}

std::optional<std::string> NameRules::keywordRefusal(const std::string& subject, const std::string& keyword) {
    if (keyword.empty()) return tr("a keyword has no text: Enter a new Keyword.");
    if (subject.empty()) return fill(tr("the keyword \"%1\" has no category: Select or enter a new Keyword."), {keyword});
    return std::nullopt;
}

std::string NameRules::projectMatchKey(const std::string& name) {
    return TextCase::upper(trimmed(name));
}

}  // namespace qv
