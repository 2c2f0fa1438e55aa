// The keyword bag the dialogs pack must read back through CStringBag.

#include <gtest/gtest.h>

#include "dialogs/shared/KeywordSheet.h"
#include "toolkit/Sheet.h"
#include "values/types/CStringBag.h"

namespace qv {

TEST(KeywordSheetBag, ReadsBackThroughTheStringBagAndSkipsNonKeywords) {
    Sheet sheet("smtKeywords");
    sheet.add(ttHeading, "Colour", "Colour");
    sheet.add(ttCheck, "k-red", "Red").setChecked(true);
    sheet.add(ttCheck, "k-blue", "Blue");
    sheet.add(ttSeparator);
    sheet.add(ttButton, KeywordSheet::kNewKeywordKey, "Add Keyword");

    const std::string text = KeywordSheet::bagText(sheet);
    CStringBag bag;
    bag.setContents(text);
    EXPECT_EQ(bag.ReadItem("k-red"), "True");
    EXPECT_EQ(bag.ReadItem("K-BLUE"), "False");
    EXPECT_EQ(bag.ReadItem("Colour"), "");
    EXPECT_EQ(bag.ReadItem(KeywordSheet::kNewKeywordKey), "");

    const auto ticked = KeywordSheet::tickedIn(text);
    EXPECT_EQ(ticked.size(), 1u);
    EXPECT_TRUE(ticked.count("K-RED"));
    EXPECT_TRUE(KeywordSheet::tickedIn("A=True").count("A")) << "an item that lost its tab still reads";
    EXPECT_EQ(KeywordSheet::countTicked(sheet), 1);
}

}  // namespace qv
