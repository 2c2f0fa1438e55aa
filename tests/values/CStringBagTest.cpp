#include <gtest/gtest.h>

#include "values/types/CStringBag.h"

namespace qv {

TEST(CStringBag, ReadWriteAndRemove) {
    CStringBag bag;
    EXPECT_EQ(bag.ReadItem("ORIENT"), "");
    bag.WriteItem("orient", "1");
    bag.WriteItem("Margin", "0.5");
    EXPECT_EQ(bag.Contents(), "ORIENT=1\tMARGIN=0.5\t");
    EXPECT_EQ(bag.ReadItem("Orient"), "1") << "keys are upper-cased on both sides";
    EXPECT_EQ(bag.ReadItem("MARGIN"), "0.5");
    EXPECT_EQ(bag.ReadItem("absent"), "");

    // Rewriting a present key leaves one copy, at the end.
    bag.WriteItem("ORIENT", "2");
    EXPECT_EQ(bag.Contents(), "MARGIN=0.5\tORIENT=2\t");

    bag.RemoveItem("margin");
    EXPECT_EQ(bag.Contents(), "ORIENT=2\t");
    bag.RemoveItem("absent");
    EXPECT_EQ(bag.Contents(), "ORIENT=2\t");

    // Every copy of the item text goes.
    bag.setContents("A=1\tB=2\tA=1\t");
    bag.RemoveItem("A");
    EXPECT_EQ(bag.Contents(), "B=2\t");
    bag.Clear();
    EXPECT_EQ(bag.Contents(), "");

    bag.WriteItem("grüße", "x");
    EXPECT_EQ(bag.Contents(), "GRÜßE=x\t");
}

TEST(CStringBag, TailKeyIsFoundInsideTheLongerKey) {
    CStringBag bag;
    bag.setContents("FOOTER=left\tER=right\t");
    EXPECT_EQ(bag.ReadItem("ER"), "left") << "the first \"ER=\" stands in FOOTER";
    bag.RemoveItem("ER");
    EXPECT_EQ(bag.Contents(), "FOOTER=right\t");

    // A text that lost its closing tab still reads, and writing ends.
    bag.setContents("KEY=value");
    EXPECT_EQ(bag.ReadItem("KEY"), "value");
    bag.WriteItem("KEY", "new");
    EXPECT_EQ(bag.Contents(), "KEY=new\t");
}

}  // namespace qv
