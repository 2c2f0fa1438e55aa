#include <gtest/gtest.h>

#include "reports/FooterFormat.h"
#include "reports/FooterText.h"

namespace qv {

TEST(FooterFormat, MarkersMakeRuledLinesWithTwoSidesAndThePageNumber) {
    auto lines = FooterFormat::lines("{newline}{line}{Left}Quorvel - Version 1.14{Right}Page {PageNum}", 7);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].rule);
    EXPECT_EQ(lines[0].left, "Quorvel - Version 1.14");
    EXPECT_EQ(lines[0].right, "Page 7");

    lines = FooterFormat::lines("{Left}{PageNum}{Right}{newline}{Right}--Page Number--", 12);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_FALSE(lines[0].rule);
    EXPECT_EQ(lines[0].left, "12");
    EXPECT_EQ(lines[0].right, "");
    EXPECT_EQ(lines[1].right, "--Page Number--");
    // Braces that are no marker stay as they are.
    EXPECT_EQ(FooterFormat::lines("{x}", 1).at(0).left, "{x}");

    // What the footer picks turn into at print time.
    const std::pair<const char*, const char*> picks[] = {
        {"<#>", "{PageNum}"},         {"Page Number", "{PageNum}"},          {"--Page Number--", "--Page Number--"},
        {"--Short Date--", "3/15/2023"}, {"--Date Time--", "3/15/2023 12:00"}, {"Quorvel", "Quorvel"}};
    for (const auto& [pick, printed] : picks) EXPECT_EQ(FooterText::forPrint(pick, 45000.5), printed) << pick;
}

}  // namespace qv
