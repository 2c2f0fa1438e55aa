#include "help/HelpLanguages.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "toolkit/EnvLocaleInfo.h"

namespace qv {

namespace {

std::string env(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool isPlainLocale(const std::string& locale) {
    return locale.empty() || locale == "C" || locale == "POSIX" || locale.starts_with("C.");
}

void addLanguage(std::vector<std::string>& out, const std::string& locale) {
    if (isPlainLocale(locale)) return;
    const std::string bare = locale.substr(0, locale.find_first_of(".@"));
    for (const std::string& name : {bare, bare.substr(0, bare.find('_'))})
        if (!name.empty() && std::find(out.begin(), out.end(), name) == out.end()) out.push_back(name);
}

// "de", "de_DE", "pt_BR": a language folder, not a folder of pages.
bool isLanguageFolder(const std::string& name) {
    const std::size_t letters = name.find('_');
    const std::string language = name.substr(0, letters);
    if (language.size() < 2 || language.size() > 3) return false;
    if (!std::all_of(language.begin(), language.end(), [](char c) { return c >= 'a' && c <= 'z'; }))
        return false;
    if (letters == std::string::npos) return true;
    const std::string territory = name.substr(letters + 1);
    return territory.size() == 2 &&
           std::all_of(territory.begin(), territory.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

}  // namespace

std::vector<std::string> HelpLanguages::fromEnvironment() {
    const std::string locale = environmentLocale("LC_MESSAGES");
    std::vector<std::string> out;
    if (isPlainLocale(locale)) return out;
    const std::string list = env("LANGUAGE");
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t colon = std::min(list.find(':', start), list.size());
        addLanguage(out, list.substr(start, colon - start));
        start = colon + 1;
    }
    addLanguage(out, locale);
    return out;
}

HelpLanguages::HelpLanguages(std::vector<std::string> languages) : languages_(std::move(languages)) {}

std::string HelpLanguages::pageFor(const std::string& helpFolder, const std::string& path) const {
    if (helpFolder.empty() || !path.starts_with(helpFolder)) return path;
    const std::size_t hash = path.find('#');
    const std::string place = hash == std::string::npos ? "" : path.substr(hash);
    std::string file = path.substr(helpFolder.size(),
                                   hash == std::string::npos ? std::string::npos : hash - helpFolder.size());
    if (const std::size_t slash = file.find('/');
        slash != std::string::npos && isLanguageFolder(file.substr(0, slash)))
        file.erase(0, slash + 1);
    std::error_code ec;
    for (const std::string& language : languages_) {
        const std::string page = helpFolder + language + "/" + file;
        if (std::filesystem::is_regular_file(page, ec)) return page + place;
    }
    return helpFolder + file + place;
}

}  // namespace qv
