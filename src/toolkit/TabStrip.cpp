#include "toolkit/TabStrip.h"

#include <utility>

#include "toolkit/Failure.h"

namespace qv {

TabStrip::TabStrip(std::string name, std::vector<std::string> captions)
    : name_(std::move(name)), captions_(std::move(captions)) {}

void TabStrip::setCurrent(int32_t tab) {
    if (tab < 0 || tab >= count())
        throw Failure(err::SubscriptOutOfRange, "Tab " + std::to_string(tab) + " is not in " + name_);
    current_ = tab;
    Changed();
}

void TabStrip::userSwitch(int32_t tab) {
    if (tab < 0 || tab >= count()) return;
    Switching(tab);
}

}  // namespace qv
