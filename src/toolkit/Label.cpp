#include "toolkit/Label.h"

namespace qv {

Label::Label(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}

void Label::setCaption(const std::string& c) {
    if (caption_ == c) return;
    caption_ = c;
    Changed();
}

void Label::setVisible(bool v) {
    if (visible_ == v) return;
    visible_ = v;
    Changed();
}

void Label::setAlignment(int32_t a) {
    if (alignment_ == a) return;
    alignment_ = a;
    Changed();
}

}  // namespace qv
