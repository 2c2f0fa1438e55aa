#include "values/settings/DateFormats.h"

#include <gtest/gtest.h>

#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/DateBox.h"
#include "toolkit/Failure.h"
#include "values/settings/TimeValues.h"

namespace qv {
namespace {

class DateFormatsTest : public TestEnv {};

TEST_F(DateFormatsTest, LoadsByExactNames) {
    exec("UPDATE Settings SET SetSettingName='month1' WHERE SetSettingSection='DateFormats' AND "
         "SetSettingName='Month1'");
    exec("UPDATE Settings SET SetSettingValue='Avril' WHERE SetSettingSection='DateFormats' AND "
         "SetSettingName='Month4'");
    ASSERT_TRUE(LoadDateFormatSettings());
    // "month1" is not Month1; 38 and 39 are ApptOutlook and HoursColor.
    const std::pair<int, const char*> texts[] = {{0, ""}, {3, "Avril"}, {18, "Sunday"}, {38, "8454016"}, {39, "0"}};
    for (const auto& [at, text] : texts) EXPECT_EQ(g().DateFormats[at], text) << at;
    EXPECT_EQ(dateFormatKeys().size(), 40u);
    EXPECT_EQ(dateFormatKeys()[35], "HoursInDay");
}

TEST_F(DateFormatsTest, EmptySectionLeavesTextsEmptyAndTimeFunctionsFail) {
    exec("DELETE FROM Settings WHERE SetSettingSection='DateFormats'");
    ASSERT_TRUE(LoadDateFormatSettings());
    for (const auto& text : g().DateFormats) EXPECT_EQ(text, "");
    EXPECT_EQ(SetTimeFormat(90), "");
    EXPECT_EQ(FormatCTasTime("1:30"), 0);
    EXPECT_EQ(reporter().faults().size(), 1u);
}

TEST_F(DateFormatsTest, DayLettersAndPickers) {
    ASSERT_TRUE(LoadDateFormatSettings());
    EXPECT_EQ(MakeMondayLetters(), "M,T,W,T,F,S,S");
    EXPECT_EQ(MakeSundayDataLetters(), "S,S,M,T,W,T,F");
    g().DateFormats[datefmt::DayLetters] = "Д,П,В,С,Ч,П,С";  // letters count as characters
    EXPECT_EQ(MakeMondayLetters(), "П,В,С,Ч,П,С,Д");
    g().DateFormats[datefmt::DayLetters] = "S,M";
    EXPECT_EQ(MakeSundayDataLetters(), ",S,M,,,,");

    ASSERT_TRUE(LoadDateFormatSettings());
    g().DateFormats[datefmt::DDMonth] = "2";
    g().DateFormats[datefmt::DDSep] = "-";
    DateBox deadline("ctDeadline"), done("ctTheDateDone");
    ASSERT_TRUE(assignDateFormats({&deadline, &done}, "frmExistingTask"));
    for (DateBox* box : {&deadline, &done}) {
        EXPECT_EQ(box->separator(), "-");
        EXPECT_EQ(box->monthStyle(), 2);
        EXPECT_EQ(box->dateStyle(), 0);
        EXPECT_EQ(box->firstDayOfWeek(), 1);
        EXPECT_EQ(box->dayLetters(), "S,M,T,W,T,F,S");
        EXPECT_EQ(box->monthNames(), "January,February,March,April,May,June,July,August,September,October,"
                                     "November,December");
        EXPECT_EQ(box->dayNames(), "Sunday;Monday;Tuesday;Wednesday;Thursday;Friday;Saturday");
    }

    // A style that is no number: the picker is left half configured.
    g().DateFormats[datefmt::DDSep] = ".";
    g().DateFormats[datefmt::DDFormat] = "dmy";
    DateBox half("ctDate");
    EXPECT_FALSE(assignDateFormats({&half}, "frmAddProject"));
    EXPECT_EQ(half.separator(), ".");
    EXPECT_EQ(half.monthStyle(), 2);
    EXPECT_EQ(half.monthNames(), "");
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].module, "frmAddProject");
    EXPECT_EQ(reporter().faults()[0].number, err::TypeMismatch);
}

}  // namespace
}  // namespace qv
