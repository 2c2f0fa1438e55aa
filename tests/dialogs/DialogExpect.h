#pragma once
// Table checks for the dialog tests: each case names a column or a tool
// and the value expected of it.

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {

using Expected = std::initializer_list<std::pair<std::string, std::string>>;

// `read` fetches the actual value of a case's name.
template <typename Read>
void expectEach(Read read, Expected cases) {
    for (const auto& [name, want] : cases) EXPECT_EQ(read(name), want) << name;
}

// The text, tag or caption of each tool of the sheet.
inline void expectTools(const Sheet& sheet, const std::string& (Tool::*what)() const, Expected cases) {
    for (const auto& [key, want] : cases) {
        const Tool* tool = sheet.find(key);
        ASSERT_NE(tool, nullptr) << key;
        EXPECT_EQ((tool->*what)(), want) << key;
    }
}

// The captions of the sheet's tools, in their order.
inline std::vector<std::string> captions(const Sheet& sheet) {
    std::vector<std::string> out;
    for (const auto& tool : sheet.tools()) out.push_back(tool->caption());
    return out;
}

}  // namespace qv
