#include "kit/HunspellChecker.h"

#include <filesystem>
#include <future>

#include <hunspell.h>

namespace qv {

namespace {
constexpr const char* kAff = "/usr/share/hunspell/en_US.aff";
constexpr const char* kDic = "/usr/share/hunspell/en_US.dic";


std::shared_future<std::shared_ptr<HunspellChecker>>& loading() {
    static std::shared_future<std::shared_ptr<HunspellChecker>> checker =
        std::async(std::launch::async, [] { return std::make_shared<HunspellChecker>(kAff, kDic); }).share();
    return checker;
}
}  // namespace

void HunspellChecker::preload() { loading(); }

HunspellChecker& HunspellChecker::instance() { return *loading().get(); }

HunspellChecker::HunspellChecker(const std::string& affPath, const std::string& dicPath) {
    if (std::filesystem::exists(affPath) && std::filesystem::exists(dicPath))
        handle_ = Hunspell_create(affPath.c_str(), dicPath.c_str());
}

HunspellChecker::~HunspellChecker() {
    if (handle_) Hunspell_destroy(handle_);
}

bool HunspellChecker::isCorrect(const std::string& word) const {
    if (!handle_ || word.empty()) return true;
    return Hunspell_spell(handle_, word.c_str()) != 0;
}

}  // namespace qv
