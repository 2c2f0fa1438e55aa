#include <gtest/gtest.h>

#include "reports/PrintSettings.h"
#include "reports/TaskReport.h"
#include "reports/frmPageSetup.h"
#include "session/globals/SessionGlobals.h"
#include "support/PrintPorts.h"
#include "support/TestEnv.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"

namespace qv {

namespace {

// A whole string in the order the dialog writes it.
const char* const kSaved =
    "PRINTER=Office Laser\tPAPER=Portrait\tCOPIES=2\tPAGESWIDE=1\tPRINTCOLOR=No\tTOP=1.5\tBOTTOM=2\tRIGHT=1\t"
    "LEFT=0\tHCOLOR=255\tHFONT=Verdana\tHSIZE=14\tHEADING=My tasks\tFCOLOR=0\tFFONT=Tahoma\tFSIZE=8\t"
    "FLEFT=Quorvel\tFRIGHT=<#>\tPTASK=True\tPCHECKLIST=False\tPNOTES=True\tPSCHEDULE=False\t";

class PageSetupTest : public TestEnv {
protected:
    PageSetupTest() : TestEnv({false, false}) {}
    void SetUp() override {
        TestEnv::SetUp();
        printers_.names = {"Office Laser", "Draft Inkjet"};
        printers_.defaultName = "Draft Inkjet";
        ports().printers = &printers_;
        ports().fonts = &fonts_;
        ports().locale = &locale_;
        ports().colorChooser = &colors_;
        owner_ = std::make_shared<Form>("owner");
        g().DialogNum = 1;
        g().TaskPrintDialog = kSaved;
    }

    // Runs Page Setup as the dialogs do, with the given steps while it is shown.
    void run(std::function<void(frmPageSetup&)> steps, bool* saved = nullptr) {
        scriptedUi().queueAction([this, steps] {
            for (const auto& f : Form::openForms())
                if (auto* p = dynamic_cast<frmPageSetup*>(f.get())) {
                    shown_ = p;
                    steps(*p);
                }
        });
        TaskReport::PageSetup(*owner_, [saved] {
            if (saved) *saved = true;
        });
    }
    static void pick(frmPageSetup& f, const char* key, const std::string& caption) {
        Tool& t = f.controls().tool(key);
        for (const auto& item : t.items())
            if (item->caption().rfind(caption, 0) == 0) return t.sheet()->click(*item);
        FAIL() << "no pick " << caption;
    }
    static void ok(frmPageSetup& f) { f.controls().smtActions.click(f.controls().smtActions.tool("OK")); }

    FixedPrinters printers_;
    FixedFonts fonts_;
    FixedLocale locale_;
    FixedColorChooser colors_;
    std::shared_ptr<Form> owner_;
    frmPageSetup* shown_ = nullptr;
};

}  // namespace

TEST_F(PageSetupTest, AStringGoesThroughTheDialogUnchanged) {
    bool saved = false;
    run(
        [](frmPageSetup& f) {
            EXPECT_EQ(f.controls().tool("PRINTER").text(), "Office Laser");
            EXPECT_EQ(f.controls().Image1.caption(), "PORTRAIT");
            EXPECT_EQ(f.controls().lblPrint.caption(), "Portrait");
            EXPECT_EQ(f.controls().tool("FLEFT").text(), "Quorvel - Version 1.14");
            EXPECT_EQ(f.controls().tool("FRIGHT").text(), "")
                << "a stored text that is no pick shows nothing";
            EXPECT_TRUE(f.controls().tool("PSCHEDULE").visible());
            ok(f);
        },
        &saved);
    EXPECT_TRUE(saved);
    EXPECT_EQ(g().TaskPrintDialog, kSaved);
    EXPECT_FALSE(g().SettingUp);
    EXPECT_FALSE(shown_->loaded());
}

TEST_F(PageSetupTest, FooterPicksStoreTheirTags) {
    g().DialogNum = 2;
    run([](frmPageSetup& f) {
        EXPECT_FALSE(f.controls().tool("PSCHEDULE").visible());
        pick(f, "FLEFT", "--Leave Blank--");
        EXPECT_EQ(f.controls().tool("FLEFT").text(), "");
        EXPECT_EQ(f.controls().tool("FLEFT").tag(), "NONE");
        pick(f, "FRIGHT", "Page Number");
        ok(f);
    });
    CStringBag bag;
    bag.setContents(g().TaskPrintDialog);
    EXPECT_EQ(bag.ReadItem("FLEFT"), "");
    EXPECT_EQ(bag.ReadItem("FRIGHT"), "--Page Number--")
        << "the pick's tag, which the print code does not translate";
    EXPECT_EQ(g().TaskPrintDialog.find("PSCHEDULE"), std::string::npos);

    run([](frmPageSetup& f) {
        pick(f, "FLEFT", "Quorvel - Version");
        pick(f, "FRIGHT", "Short date (");
        ok(f);
    });
    bag.setContents(g().TaskPrintDialog);
    EXPECT_EQ(bag.ReadItem("FLEFT"), "Quorvel");
    EXPECT_EQ(bag.ReadItem("FRIGHT"), "--Short Date--");

    run([](frmPageSetup& f) {
        Tool& left = f.controls().tool("FLEFT");
        left.sheet()->userEdit(left, "Printed by Ann");
        EXPECT_EQ(left.tag(), "--CUSTOM--");
        ok(f);
    });
    bag.setContents(g().TaskPrintDialog);
    EXPECT_EQ(bag.ReadItem("FLEFT"), "Printed by Ann");
    // "LEFT" stands ahead of "FLEFT", so each finds its own.
    EXPECT_EQ(bag.ReadItem("LEFT"), "0");
    EXPECT_EQ(bag.ReadItem("RIGHT"), "1");
}

TEST_F(PageSetupTest, ChecksAsTheyStand) {
    const std::string before = g().TaskPrintDialog;
    auto setText = [](frmPageSetup& f, const char* key, const char* text) {
        f.controls().tool(key).setText(text);
    };
    for (int i = 0; i < 5; ++i) scriptedUi().queueAnswer(vbOK);
    run([&](frmPageSetup& f) {
        setText(f, "TOP", "abc");
        EXPECT_FALSE(f.ValidatePrintInfo(0));
        setText(f, "TOP", "");
        EXPECT_FALSE(f.ValidatePrintInfo(0));
        setText(f, "TOP", "0");   // passes although the message says positive
        setText(f, "FSIZE", "");  // the footer's size is never tested
        EXPECT_TRUE(f.ValidatePrintInfo(0));
        setText(f, "LEFT", "-1");
        ok(f);  // fails: stays open, nothing stored
        EXPECT_TRUE(f.visible());
        setText(f, "LEFT", "1");
        setText(f, "FFONT", "");
        EXPECT_FALSE(f.ValidatePrintInfo(0));
        setText(f, "FFONT", "Arial");
        setText(f, "PAGESWIDE", "5");
        EXPECT_TRUE(f.ValidatePrintInfo(0)) << "the first four checks run in stage 1 only";
        EXPECT_FALSE(f.ValidatePrintInfo(1));
        f.controls().smtActions.click(f.controls().smtActions.tool("CANCEL"));
    });
    std::vector<std::string> texts;
    for (const auto& m : scriptedUi().messages()) {
        texts.push_back(m.text);
        EXPECT_EQ(m.title, "Quorvel - Version 1.14");
    }
    EXPECT_EQ(texts, (std::vector<std::string>{
                         "Top margin should be a positive number.", "Top margin should be a positive number.",
                         "Left margin should be a positive number.",
                         "Select a Footer font (even if you do not plan to print a footer).",
                         "Pages Wide should be set to 1,2,3,4 or Automatic."}));
    EXPECT_EQ(g().TaskPrintDialog, before) << "cancel and a failed check leave the string";
}

TEST_F(PageSetupTest, DefaultsPrintersFontsSizesAndColours) {
    locale_.system = 1;
    auto f = std::make_shared<frmPageSetup>();
    f->load();
    auto& c = f->controls();
    EXPECT_EQ(c.tool("PRINTER").text(), "Draft Inkjet");
    ASSERT_EQ(c.tool("PRINTER").items().size(), 2u);
    EXPECT_EQ(c.tool("PAPER").text(), "Landscape");
    EXPECT_EQ(c.lblPrint.caption(), "Landscape");
    EXPECT_EQ(c.tool("COPIES").text(), "1");
    EXPECT_EQ(c.tool("TOP").text(), "1.00");
    EXPECT_EQ(c.tool("TOP").tip(), "inches");
    EXPECT_EQ(c.tool("HFONT").items().size(), 3u);
    ASSERT_EQ(c.tool("FSIZE").items().size(), 43u);
    EXPECT_EQ(c.tool("FSIZE").items().front()->caption(), "6");
    EXPECT_EQ(c.tool("FSIZE").items().back()->caption(), "48");
    ASSERT_EQ(c.tool("FLEFT").items().size(), 8u);
    EXPECT_EQ(c.tool("FLEFT").items()[3]->caption().rfind("Short date (", 0), 0u);

    colors_.answer = 0x00FF00;
    c.tool("HCOLOR").setText("255");
    c.smtPrinting[1].click(c.tool("HCOLOR"));
    EXPECT_EQ(colors_.lastInitial, 255);
    EXPECT_EQ(colors_.lastTitle, "Select Color:");
    EXPECT_EQ(c.tool("HCOLOR").text(), std::to_string(0x00FF00));
    colors_.answer = -1;
    c.smtPrinting[2].click(c.tool("FCOLOR"));
    EXPECT_EQ(c.tool("FCOLOR").text(), "") << "cancel keeps the colour";
    f->unload();

    // No printer: one pick that counts as a printer.
    ports().printers = nullptr;
    locale_.system = 0;
    auto none = std::make_shared<frmPageSetup>();
    none->load();
    Tool& printer = none->controls().tool("PRINTER");
    EXPECT_EQ(printer.text(), "");
    ASSERT_EQ(printer.items().size(), 1u);
    EXPECT_EQ(printer.items()[0]->caption(), "(No Printer Installed)");
    EXPECT_EQ(none->controls().tool("LEFT").text(), "2.54");
    EXPECT_EQ(none->controls().tool("LEFT").tip(), "centimeters");
    for (const char* key : {"HFONT", "FFONT", "HSIZE"}) none->controls().tool(key).setText("x");
    scriptedUi().queueAnswer(vbOK);
    EXPECT_FALSE(none->ValidatePrintInfo(0));
    EXPECT_EQ(scriptedUi().lastMessage().text, "Select a Printer.");
    printer.sheet()->click(*printer.items()[0]);
    EXPECT_TRUE(none->ValidatePrintInfo(0));
    none->unload();
}

TEST_F(PageSetupTest, AStringThatIsNotWholeTakesTheErrorPath) {
    g().TaskPrintDialog = "PRINTER=x\t";
    auto f = std::make_shared<frmPageSetup>();
    f->PageSetup();
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].module + "." + reporter().faults()[0].procedure, "frmPageSetup.PageSetup");
    EXPECT_FALSE(f->loaded());
    // The defaults a host gives before it has a string of its own are whole.
    for (int32_t dialog : {0, 1, 2}) {
        g().DialogNum = dialog;
        g().TaskPrintDialog = PrintSettings::defaults(dialog);
        bool saved = false;
        run([](frmPageSetup& p) { ok(p); }, &saved);
        EXPECT_TRUE(saved) << dialog;
    }
}

}  // namespace qv
