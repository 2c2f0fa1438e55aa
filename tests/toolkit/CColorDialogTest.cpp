#include <gtest/gtest.h>

#include <memory>

#include "ToolkitFixture.h"
#include "toolkit/CColorDialog.h"
#include "toolkit/ColorChooser.h"
#include "support/FailureOf.h"
#include "toolkit/Form.h"
#include "toolkit/WindowHandles.h"

namespace qv {

namespace {
class FakeChooser : public ColorChooser {
public:
    bool answer = true;
    int32_t pick = 0x00FF00;
    int32_t seenInitial = 0;
    std::string seenTitle;
    bool seenCenter = false;
    bool choose(int32_t initial, const std::string& title, bool center, int32_t& chosen) override {
        seenInitial = initial;
        seenTitle = title;
        seenCenter = center;
        if (answer) chosen = pick;
        return answer;
    }
};

class CColorDialogTest : public ToolkitFixture {
protected:
    void SetUp() override {
        ToolkitFixture::SetUp();
        ports().colorChooser = &chooser_;
    }
    FakeChooser chooser_;
};
}  // namespace

TEST_F(CColorDialogTest, StartsWithItsDefaultsAndAddsTheFlags) {
    CColorDialog dlg;
    EXPECT_EQ(dlg.SelectedColor(), -1);
    EXPECT_TRUE(dlg.CenterDialog());
    EXPECT_EQ(dlg.DialogTitle(), "Color");
    EXPECT_EQ(CColorDialog::customColors()[15], 0xFFFFFF);

    dlg.setFlags(2);
    dlg.setInitialColor(255);
    ASSERT_TRUE(dlg.Show());
    EXPECT_EQ(dlg.lastShowFlags(), 2 + 1 + 16);
    EXPECT_EQ(dlg.SelectedColor(), 0x00FF00);
    EXPECT_EQ(chooser_.seenInitial, 255);
    EXPECT_EQ(chooser_.seenTitle, "Color");

    dlg.setInitialColor(-1);
    dlg.setDialogTitle("");
    dlg.setCenterDialog(false);
    chooser_.answer = false;
    EXPECT_FALSE(dlg.Show());
    EXPECT_EQ(dlg.lastShowFlags(), 2) << "no initial colour, no hook";
    EXPECT_EQ(dlg.SelectedColor(), -1);

    dlg.setCenterDialog(true);
    (void)dlg.Show();
    EXPECT_EQ(dlg.lastShowFlags(), 2 + 16);
    EXPECT_TRUE(chooser_.seenCenter);

    // Title and centring are shared: a new chooser puts them back.
    dlg.setDialogTitle("Pick");
    CColorDialog other;
    EXPECT_EQ(dlg.DialogTitle(), "Color");
}

TEST_F(CColorDialogTest, OwnerMustNameAnOpenWindow) {
    CColorDialog dlg;
    auto form = std::make_shared<Form>("frmPageSetup");
    form->load();
    const int32_t h = WindowHandles::handleOf(*form);
    EXPECT_GT(h, 0);
    EXPECT_EQ(WindowHandles::handleOf(*form), h);
    dlg.setHWndOwner(h);
    dlg.setHWndOwner(0);  // no owner is fine

    const Failure f = failureOf([&] { dlg.Init(0, "Colour", h + 4, 0); });
    EXPECT_EQ(f.number(), static_cast<int32_t>(0x800442E1u));
    EXPECT_EQ(f.description(), "Invalid window handle");
    EXPECT_EQ(f.source(), "QuorvelTask2.CColorDialog");
    dlg.Init(5, "Colour", h, 128);
    EXPECT_EQ(dlg.flags(), 5);
    EXPECT_EQ(dlg.DialogTitle(), "Colour");
    EXPECT_EQ(dlg.InitialColor(), 128);

    form->unload();
    EXPECT_THROW(dlg.setHWndOwner(h), Failure) << "an unloaded form is no window";

    ports().colorChooser = nullptr;
    EXPECT_THROW(dlg.Show(), Failure);
}

}  // namespace qv
