#pragma once
// Spelling of single words against the en_US dictionary of the system.

#include <memory>
#include <string>

class Hunhandle;

namespace qv {

class HunspellChecker {
public:
    // The shared checker; nullptr-backed (every word right) without a dictionary.
    static HunspellChecker& instance();
    // Starts reading the dictionary in the background (it takes tens of
    // milliseconds), so the first editor does not wait for it.
    static void preload();
    HunspellChecker(const std::string& affPath, const std::string& dicPath);
    ~HunspellChecker();
    HunspellChecker(const HunspellChecker&) = delete;
    HunspellChecker& operator=(const HunspellChecker&) = delete;

    [[nodiscard]] bool available() const { return handle_ != nullptr; }
    [[nodiscard]] bool isCorrect(const std::string& word) const;

private:
    Hunhandle* handle_ = nullptr;
};

}  // namespace qv
