#pragma once
// Message boxes with the platform's style numbers and answers.

#include <cstdint>
#include <string>

class QWidget;

namespace qv {

class MessageBoxes {
public:
    // Shows the box modally over parent; returns the answer number.
    static int32_t ask(QWidget* parent, const std::string& text, int32_t style, const std::string& title);
};

}  // namespace qv
