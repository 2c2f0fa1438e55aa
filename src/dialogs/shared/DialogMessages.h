#pragma once
// The message boxes of the task dialogs: information boxes and Yes/No
// questions, all titled with the program's window title.

#include <string>

namespace qv {

class DialogMessages {
public:
    // An information box with one OK button.
    static void inform(const std::string& text);
    // A Yes/No question; true only for Yes.
    [[nodiscard]] static bool askYesNo(const std::string& text);
};

}  // namespace qv
