// The live check of the New Task dialog: flags, messages, the description
// limit, the custom time, the points tally and the deadline time.

#include <string>

#include "dialogs/DialogExpect.h"
#include "dialogs/newtask/NewTaskFixture.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/PointsTally.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"
#include "toolkit/Sheet.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"

namespace qv {

using NewTaskCheck = NewTaskFixture;

TEST(PointsTallyClasses, TimeClassesAndFallbacks) {
    std::array<int32_t, 15> table{};
    for (int i = 0; i < 15; ++i) table[static_cast<size_t>(i)] = 1 << i;
    const auto timeOnly = [&](int32_t minutes) { return PointsTally::tally(table, 0, 0, minutes, false, false) - 1 - 32; };
    for (const auto& [minutes, position] : {std::pair{-86, 10}, {10, 10}, {11, 11}, {119, 11}, {120, 12}})
        EXPECT_EQ(timeOnly(minutes), 1 << position) << minutes << " minutes";
    // Unset importance takes the second level, unset difficulty the first.
    EXPECT_EQ(PointsTally::tally(table, -86, -86, 10, false, false), (1 << 1) + (1 << 5) + (1 << 10));
    EXPECT_EQ(PointsTally::tally(table, 4, 4, 10, true, true), (1 << 4) + (1 << 9) + (1 << 10) + (1 << 13) + (1 << 14));
    table[0] = INT32_MAX;
    EXPECT_THROW((void)PointsTally::tally(table, 0, 0, 10, false, false), Failure);
}

TEST_F(NewTaskCheck, FlagsAndTheDescriptionLimit) {
    seed();
    fireTimer();
    then([this] { EXPECT_EQ(tool("smtReady", "POINTS").text(), std::to_string(10 + 10 + 3)); });
    click("smtProj", kAlpha);  // a click on the chosen option still checks
    typeDescription(std::string(255, 'x'));
    then([this] {
        EXPECT_EQ(tool("smtReady", "DESCFLAG").tip(), "Task Description entered.");
        EXPECT_EQ(tool("smtReady", "DESCFLAG").image(), "GOOD");
        EXPECT_TRUE(tool("smtActions", "QV").enabled());
        EXPECT_TRUE(tool("smtActions", "TC").enabled());
    });
    typeDescription(std::string(256, 'x'));
    then([this] {
        EXPECT_EQ(tool("smtReady", "DESCFLAG").tip(), "Task Description too long.");
        EXPECT_FALSE(tool("smtActions", "QV2").enabled());
    });
    typeDescription(std::string(255, 'x') + "\xC3\xA9");  // 256 characters, more bytes
    then([this] { EXPECT_EQ(tool("smtReady", "DESCFLAG").image(), "BAD"); });
    typeDescription("   ");
    then([this] { EXPECT_EQ(tool("smtReady", "DESCFLAG").image(), "GOOD") << "blanks count"; });
    closeHidden();
    open();
    EXPECT_TRUE(scriptedUi().messages().empty());
}

TEST_F(NewTaskCheck, MissingPicksLightTheirFlagsAndStatusIsToldByABox) {
    seed();
    fireTimer();
    then([this] {
        for (const char* s : {"smtImp", "smtDiff", "smtTimeNeeded", "smtProj"})
            for (const auto& t : sheet(s).tools()) t->setChecked(false);
        tool("smtOther", "STATUS").setText("Nowhere");
    });
    then([this] { scriptedUi().queueAnswer(vbOK); });
    typeDescription("Something");
    closeHidden();
    open();

    EXPECT_EQ(scriptedUi().lastMessage().text, "Missing Task's Status.");
    EXPECT_EQ(scriptedUi().lastMessage().title, "Quorvel - Version 1.14");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbInformation);
    expectTools(sheet("smtReady"), &Tool::tip,
                {{"PROJECTFLAG", "Project not set."}, {"IMPFLAG", "Importance not set."},
                 {"DIFFFLAG", "Difficulty not set."}, {"TIMENEEDEDFLAG", "Time Needed not set."}});
    EXPECT_EQ(tool("smtReady", "POINTS").text(), std::to_string(8 + 10 + 1)) << "unset levels fall back";
    EXPECT_FALSE(tool("smtActions", "QV").enabled());
}

// The default of an empty project list checks the separator, which holds
// no checked state: no project is chosen.
TEST_F(NewTaskCheck, AnEmptyProjectListLeavesTheProjectUnset) {
    fireTimer();
    typeDescription("No projects yet");
    closeHidden();
    open();
    EXPECT_EQ(sheet("smtProj").count(), 2);  // the separator and New Project
    EXPECT_EQ(form().fields().utilProjectKey(), "NOPROJECT");
    EXPECT_EQ(tool("smtReady", "PROJECTFLAG").image(), "BAD");
    EXPECT_FALSE(tool("smtActions", "QV").enabled());
}

TEST_F(NewTaskCheck, CustomTimeAndDeadlineTime) {
    seed();
    fireTimer();
    then([this] {
        for (const auto& t : sheet("smtTimeNeeded").tools()) t->setChecked(false);
        tool("smtTimeNeeded", "CUSTOMTIME").setText("0:00");
    });
    typeDescription("Zero time");
    then([this] {
        EXPECT_EQ(tool("smtReady", "TIMENEEDEDFLAG").image(), "GOOD") << "only -86 fails";
        EXPECT_EQ(form().fields().record().TimeNeeded, 0);
        tool("smtTimeNeeded", "CUSTOMTIME").setText("soon");
        scriptedUi().queueAnswer(vbOK);
    });
    typeDescription("Bad time");
    then([this] {
        EXPECT_EQ(scriptedUi().lastMessage().text, "Value for Time Needed entered is not recognized as a valid time.");
        EXPECT_EQ(tool("smtTimeNeeded", "CUSTOMTIME").text(), "");
        EXPECT_EQ(tool("smtReady", "TIMENEEDEDFLAG").image(), "BAD");
        // A typed time with no date makes today's deadline; a bad one is wiped.
        sheet("smtOther").userEdit(tool("smtOther", "DEADTIME"), "half past");
        EXPECT_EQ(form().dateBox("ctDeadline")->value(), 45306.0);
        scriptedUi().queueAnswer(vbOK);
    });
    typeDescription("Bad deadline");
    then([this] {
        EXPECT_EQ(scriptedUi().lastMessage().text, "Deadline time is not a recognized time. Please reenter it.");
        EXPECT_EQ(tool("smtOther", "DEADTIME").text(), "");
        EXPECT_EQ(form().dateBox("ctDeadline")->value(), 45306.0) << "wiping the time keeps the date";
    });
    click("smtOther", "CLEARDEAD");
    then([this] { EXPECT_EQ(form().fields().record().Deadline, 1.0); });
    closeHidden();
    open();
    EXPECT_EQ(form().dateBox("ctDeadline")->value(), 1.0) << "clearing is not undone by the change handlers";
}

// The keyword bag the dialogs pack must read back through CStringBag.
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
