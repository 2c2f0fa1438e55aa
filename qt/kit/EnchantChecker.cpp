#include "kit/EnchantChecker.h"

#include <algorithm>
#include <cstdlib>
#include <future>
#include <memory>

#include <enchant.h>

namespace qv {

namespace {

constexpr std::size_t kMaxSuggestions = 8;

std::shared_future<std::shared_ptr<EnchantChecker>>& loading() {
    static std::shared_future<std::shared_ptr<EnchantChecker>> checker =
        std::async(std::launch::async, [] { return std::make_shared<EnchantChecker>(EnchantChecker::userLanguages()); })
            .share();
    return checker;
}

// "de_DE.UTF-8@euro" -> "de_DE"; "C" and "POSIX" name no language.
std::string languageOf(const char* locale) {
    if (!locale || !*locale) return {};
    std::string s(locale);
    s = s.substr(0, s.find_first_of(".@"));
    return s == "C" || s == "POSIX" ? std::string() : s;
}

void addOnce(std::vector<std::string>& list, const std::string& lang) {
    if (!lang.empty() && std::find(list.begin(), list.end(), lang) == list.end()) list.push_back(lang);
}

void collectTag(const char* const tag, const char* const, const char* const, const char* const, void* out) {
    static_cast<std::vector<std::string>*>(out)->push_back(tag);
}

}  // namespace

void EnchantChecker::preload() { loading(); }

EnchantChecker& EnchantChecker::instance() { return *loading().get(); }

std::vector<std::string> EnchantChecker::userLanguages() {
    std::vector<std::string> list;
    for (const char* var : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const std::string lang = languageOf(std::getenv(var));
        if (lang.empty()) continue;
        addOnce(list, lang);
        addOnce(list, lang.substr(0, lang.find('_')));
        break;  // the first one set decides, as for messages
    }
    addOnce(list, "en_US");
    return list;
}

EnchantChecker::EnchantChecker(const std::vector<std::string>& languages, bool anyFallback)
    : broker_(enchant_broker_init()) {
    if (!broker_) return;
    for (const std::string& lang : languages)
        if (request(lang)) return;
    if (!anyFallback) return;
    std::vector<std::string> installed;
    enchant_broker_list_dicts(broker_, &collectTag, &installed);
    std::sort(installed.begin(), installed.end());
    for (const std::string& lang : installed)
        if (request(lang)) return;
}

EnchantChecker::~EnchantChecker() {
    if (dict_) enchant_broker_free_dict(broker_, dict_);
    if (broker_) enchant_broker_free(broker_);
}

bool EnchantChecker::request(const std::string& language) {
    if (!enchant_broker_dict_exists(broker_, language.c_str())) return false;
    dict_ = enchant_broker_request_dict(broker_, language.c_str());
    if (dict_) language_ = language;
    return dict_ != nullptr;
}

bool EnchantChecker::isCorrect(const std::string& word) const {
    if (!dict_ || word.empty()) return true;
    // 0 is right, a positive number wrong, a negative one a failure: not the user's fault.
    return enchant_dict_check(dict_, word.c_str(), static_cast<ssize_t>(word.size())) <= 0;
}

std::vector<std::string> EnchantChecker::suggest(const std::string& word) const {
    std::vector<std::string> out;
    if (!dict_ || word.empty()) return out;
    size_t count = 0;
    char** list = enchant_dict_suggest(dict_, word.c_str(), static_cast<ssize_t>(word.size()), &count);
    for (size_t i = 0; i < count && out.size() < kMaxSuggestions; ++i) out.emplace_back(list[i]);
    if (list) enchant_dict_free_string_list(dict_, list);
    return out;
}

void EnchantChecker::addToPersonal(const std::string& word) {
    if (dict_ && !word.empty()) enchant_dict_add(dict_, word.c_str(), static_cast<ssize_t>(word.size()));
}

}  // namespace qv
