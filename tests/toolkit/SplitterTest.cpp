#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/FailureOf.h"
#include "toolkit/Splitter.h"

namespace qv {

namespace fs = std::filesystem;

class SplitterTest : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() /
               ("qv-splitter-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }
    fs::path dir_;
};

TEST_F(SplitterTest, LayoutFileRoundTripsTheBlobByteForByte) {
    Splitter split("splitTask");
    split.addPane("Status", 3000, 2000);
    const std::string blob("\x00\xff\x01layout\r\n", 10);
    int saves = 0, loads = 0;
    split.AboutToSave.connect([&] {
        ++saves;
        split.setLayoutState(blob);  // as the view fills it
    });
    split.LayoutLoaded.connect([&] { ++loads; });

    const std::string path = (dir_ / "QuorvelTask.slf").string();
    split.saveLayout(path);
    split.setLayoutState("other");
    split.clearPaneFlags();
    split.loadLayout(path);
    split.setPaneFlags();
    EXPECT_EQ(split.layoutState(), blob);
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(loads, 1);

    EXPECT_THROW(split.loadLayout((dir_ / "missing.slf").string()), Failure);
    EXPECT_EQ(failureOf([&] { split.saveLayout((dir_ / "no" / "such" / "dir.slf").string()); }).number(),
              err::PathNotFound);
}

TEST_F(SplitterTest, PanesKeepLimitsAndResetToDefaults) {
    Splitter split("splitTAS");
    split.addPane("Upper", 4000, 3000);
    split.addPane("Actions", 4000, 500);
    int endDrags = 0;
    split.EndDrag.connect([&] { ++endDrags; });

    split.setPaneMinimum(0, 1500, 1200);
    split.setPaneMinHeight(0, 1500);
    split.fixPaneHeight(1, 400);
    split.setPaneHeight(0, 3500);
    split.setLayoutState("blob");
    EXPECT_EQ(split.pane(0).minWidth, 1500);
    EXPECT_EQ(split.pane(0).minHeight, 1500);
    EXPECT_TRUE(split.pane(1).lockHeight);
    EXPECT_EQ(split.paneNamed("Upper")->height, 3500);
    EXPECT_EQ(split.paneNamed("Lower"), nullptr);

    split.userEndDrag();
    EXPECT_EQ(endDrags, 1);

    split.resetToDefaults();
    EXPECT_EQ(split.pane(0).height, 3000);
    EXPECT_EQ(split.pane(1).height, 500);
    EXPECT_EQ(split.layoutState(), "");
    EXPECT_THROW((void)split.pane(2), Failure);
    EXPECT_THROW(split.setPaneWidth(-1, 10), Failure);
}

}  // namespace qv
