#pragma once
// Help pages per language: a page of help/<language>/ where the user's
// language has one, else the English page of help/, page by page. The
// languages are the ones the interface texts are read in.

#include <string>
#include <vector>

namespace qv {

class HelpLanguages {
public:
    // Best first, as gettext takes them: the LANGUAGE list unless the
    // locale is C or POSIX, then LC_ALL, else LC_MESSAGES, else LANG; each
    // as language and territory, then the language alone ("de_DE", "de").
    [[nodiscard]] static std::vector<std::string> fromEnvironment();

    explicit HelpLanguages(std::vector<std::string> languages = fromEnvironment());

    // The page to show for a path under helpFolder (which ends in "/"),
    // in the help folder itself or in one of its language folders, with
    // any "#place" kept. A path outside the help folder stays as it is.
    [[nodiscard]] std::string pageFor(const std::string& helpFolder, const std::string& path) const;

    [[nodiscard]] const std::vector<std::string>& languages() const { return languages_; }

private:
    std::vector<std::string> languages_;
};

}  // namespace qv
