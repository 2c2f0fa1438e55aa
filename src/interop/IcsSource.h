#pragma once
// A calendar file read through libical's parser, with the line each
// component and property began on, so that a complaint names its line.
// Throws InteropError for a file that can't be read, isn't UTF-8, isn't a
// calendar or holds a line the parser refused.

#include <string>
#include <unordered_map>
#include <vector>

#include "interop/IcalPtr.h"

namespace qv {

class IcsSource {
public:
    explicit IcsSource(std::string path);

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] icalcomponent* calendar() const { return root_.get(); }
    // The line of a component's BEGIN, and of the nth (from 0) property of
    // that name in it; the component's line when unknown.
    [[nodiscard]] int lineOf(icalcomponent* c) const;
    [[nodiscard]] int lineOf(icalcomponent* c, icalproperty* p) const;

private:
    // Follows the text line by line: where each component and property
    // began; throws at a line the parser refuses.
    void mapLines() const;
    void numberComponents(icalcomponent* c, int& ordinal);

    std::string path_;
    std::string text_;
    IcalComponentPtr root_;
    // A property's line is looked for only when one is at fault.
    struct PropertyLine {
        int component;
        int line;
        std::string name;
    };
    mutable bool mapped_ = false;
    mutable std::vector<int> componentLines_;  // by order of BEGIN
    mutable std::vector<PropertyLine> propertyLines_;
    std::unordered_map<icalcomponent*, int> ordinals_;
};

}  // namespace qv
