#pragma once
// Spelling through Enchant, in the dictionary of the user's language
// (LC_ALL, LC_MESSAGES, LANG), else en_US, else any installed one; words
// the user adds go to Enchant's personal word list of that dictionary.

#include <string>
#include <vector>

#include "toolkit/SpellChecker.h"

struct str_enchant_broker;
struct str_enchant_dict;

namespace qv {

class EnchantChecker : public SpellChecker {
public:
    // The shared checker of the user's language.
    static EnchantChecker& instance();
    // Starts opening the dictionary in the background (it takes tens of
    // milliseconds), so the first editor does not wait for it.
    static void preload();
    // The first of the languages with a dictionary; with anyFallback, else any.
    explicit EnchantChecker(const std::vector<std::string>& languages, bool anyFallback = true);
    ~EnchantChecker() override;
    EnchantChecker(const EnchantChecker&) = delete;
    EnchantChecker& operator=(const EnchantChecker&) = delete;

    // The languages to try for the user: "de_DE.UTF-8" gives de_DE, de, then en_US.
    [[nodiscard]] static std::vector<std::string> userLanguages();
    // The dictionary's language, empty without one.
    [[nodiscard]] const std::string& language() const { return language_; }

    [[nodiscard]] bool available() const override { return dict_ != nullptr; }
    [[nodiscard]] bool isCorrect(const std::string& word) const override;
    [[nodiscard]] std::vector<std::string> suggest(const std::string& word) const override;
    void addToPersonal(const std::string& word) override;

private:
    bool request(const std::string& language);

    str_enchant_broker* broker_ = nullptr;
    str_enchant_dict* dict_ = nullptr;
    std::string language_;
};

}  // namespace qv
