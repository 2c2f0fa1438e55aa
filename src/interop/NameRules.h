#pragma once
// The name rules of Add Project and Add Keyword, for projects and keywords
// that come in from a file: names are trimmed of blanks, a project name
// is at most 101 characters and matches a stored one whatever its case, a
// keyword matches one of the same category exactly.

#include <optional>
#include <string>

namespace qv {

class NameRules {
public:
    [[nodiscard]] static std::string trimmed(const std::string& text);
    // The message Add Project would give for this name; nothing when it passes.
    [[nodiscard]] static std::optional<std::string> projectRefusal(const std::string& name);
    [[nodiscard]] static std::optional<std::string> keywordRefusal(const std::string& subject, const std::string& keyword);
    // The form two project names are compared in.
    [[nodiscard]] static std::string projectMatchKey(const std::string& name);
};

}  // namespace qv
