#include "values/settings/TimeValues.h"

#include <gtest/gtest.h>

#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Ui.h"
#include "values/types/Convert.h"
#include "values/settings/DateFormats.h"

namespace qv {
namespace {

class TimeValuesTest : public TestEnv {
protected:
    TimeValuesTest() : TestEnv({false, false}) {}
    void SetUp() override {
        TestEnv::SetUp();
        dayOf("24", "480", "1020");
    }
    static void dayOf(const char* hours, const char* start, const char* end) {
        g().DateFormats[datefmt::HoursInDay] = hours;
        g().DateFormats[datefmt::D5Start] = start;
        g().DateFormats[datefmt::D5End] = end;
    }
};

TEST_F(TimeValuesTest, FormatsMinutesInTheGrammarOfAFullDay) {
    const struct {
        double minutes;
        const char* text;
    } table[] = {{0, "0:00"},          {-90, "1:30"},   {5, "0:05"},          {1440, "24:00"},
                 {1441, "1D 0:01"},    {2880, "2 Days"}, {1500, "1D 1:00"},    {10080, "7 Days"},
                 {10081, "1W 0D 0:01"}, {20160, "2 Weeks"}, {3067, "2D 3:07"}, {13147, "1W 2D 3:07"},
                 {10140, "1W 0D 1:00"}, {59.6, "0:60"},  {1440.00005, "1 Day"}, {1440.0001, "1 Days"}, {10080.0001, "1 Week"}};
    for (const auto& row : table) EXPECT_EQ(SetTimeFormat(row.minutes), row.text) << row.minutes;
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TimeValuesTest, WorkingHoursWindowDecidesTheFormattersDays) {
    // 8 hours: dayMinutes 480, but the day view's window of 540 minutes is the formatter's day.
    dayOf("8", "480", "1020");
    // 500 is under the window's 540, not 480; 1080 a multiple of the window; 3360 within the
    // week of 7 x 480.
    const std::pair<double, const char*> table[] = {{500, "8:20"},    {1080, "2 Days"},  {600, "1D 1:00"},
                                                    {3360, "6D 2:00"}, {6720, "2 Weeks"}, {3420, "1W 0D 1:00"}};
    for (const auto& [minutes, text] : table) EXPECT_EQ(SetTimeFormat(minutes), text) << minutes;
    // The window is read as it stands, without scaling.
    dayOf("8", "8", "17");
    EXPECT_EQ(SetTimeFormat(10), "1D 0:01");
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TimeValuesTest, FormatterFailuresGoToTheReporterAndGiveEmptyText) {
    dayOf("", "480", "1020");
    EXPECT_EQ(SetTimeFormat(0), "0:00");  // zero needs no day length
    EXPECT_EQ(SetTimeFormat(30), "");
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].module + "." + reporter().faults()[0].procedure, "m_Task.SetTimeFormat");
    EXPECT_EQ(reporter().faults()[0].number, err::TypeMismatch);

    dayOf("0", "480", "1020");  // a day of no minutes divides by zero
    EXPECT_EQ(SetTimeFormat(30), "");
    EXPECT_EQ(reporter().faults().back().number, err::DivisionByZero);
    dayOf("8", "600", "600");
    EXPECT_EQ(SetTimeFormat(30), "");
    dayOf("24", "0", "0");
    EXPECT_EQ(SetTimeFormat(3e9), "");  // beyond 32-bit minutes
    EXPECT_EQ(reporter().faults().back().number, err::Overflow);
}

TEST_F(TimeValuesTest, ParsesTheGrammarWithItsKeptAsymmetries) {
    const struct {
        const char* text;
        int32_t minutes;
    } table[] = {{"1:30", 90},      {":45", 45},       {"2 days", 2880}, {"1 week", 10080}, {"2D 3:07", 2880},
                 {"abc", 0},        {"3:", 0},         {"1:2:3", 0},     {"", 0},          {"0:00", 0},
                 {"1W 2D 3:07", 0}, {"00:01:05", 0},   {"  2 DAY ", 2880}, {"3 Weeks", 30240}, {"2W", 20160},
                 {"90", 90},        {"1,000", 1000},   {"2.5", 2},       {"3.5", 4},       {"-1:30", -30},
                 {":ab", 0},        {"99999999 days", 0}, {"1:60", 120}};
    for (const auto& row : table) EXPECT_EQ(FormatCTasTime(row.text), row.minutes) << row.text;

    dayOf("8", "480", "1020");
    EXPECT_EQ(FormatCTasTime("2 Days"), 960);
    EXPECT_EQ(FormatCTasTime("1 Week"), 3360);
    dayOf("", "", "");  // no HoursInDay: nothing reads
    EXPECT_EQ(FormatCTasTime("1:30"), 0);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TimeValuesTest, CheckerTellsTheUserOnlyOfUnreadableCounts) {
    EXPECT_FALSE(CheckCTasTime(""));
    // "abc" reads as 0 and nothing is told; "01:02:05" is cut to "01:02".
    for (const char* yes : {"abc", "1:2:3", ":45", "3:", "2 days", "01:02:05"}) EXPECT_TRUE(CheckCTasTime(yes)) << yes;
    EXPECT_TRUE(scriptedUi().messages().empty());

    scriptedUi().queueAnswer(vbOK);
    EXPECT_FALSE(CheckCTasTime("x Days"));
    ASSERT_EQ(scriptedUi().messages().size(), 1u);
    EXPECT_EQ(scriptedUi().lastMessage().text, "Unable to read that time value. Resetting.");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbInformation);
    EXPECT_EQ(scriptedUi().lastMessage().title, kProgramTitle);
    scriptedUi().queueAnswer(vbOK);
    EXPECT_FALSE(CheckCTasTime("1W 2D 3:07"));  // "1W 2" is no count
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TimeValuesTest, TimeCellCheckerKeepsItsDayFailure) {
    for (const char* yes : {":45", "3 Days", "1:30", "90"}) EXPECT_TRUE(IsTimeValue(yes)) << yes;
    for (const char* no : {"abc", "0:00", "1 Day", "", "3:"}) EXPECT_FALSE(IsTimeValue(no)) << no;
    EXPECT_FALSE(IsTimeValue("3 days")) << "case sensitive: goes on to the ':' test";
    EXPECT_TRUE(reporter().faults().empty());

    // Any day count: the ':' search starts past the text's end, or at 0.
    for (const char* days : {"2D 3:07", "0D 1:00", "1D"}) {
        reporter().clear();
        EXPECT_FALSE(IsTimeValue(days)) << days;
        ASSERT_EQ(reporter().faults().size(), 1u) << days;
        EXPECT_EQ(reporter().faults()[0].procedure, "IsTimeValue");
        EXPECT_EQ(reporter().faults()[0].number, err::InvalidProcedureCall);
    }
    reporter().clear();
    EXPECT_FALSE(IsTimeValue("1:3x"));  // a part that is no number
    EXPECT_EQ(reporter().faults().at(0).number, err::TypeMismatch);
    // A text long enough to hold a ':' past the position of one day reads.
    reporter().clear();
    EXPECT_TRUE(IsTimeValue("1D" + std::string(1436, ' ') + "5:30"));
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TimeValuesTest, ClockTimesReadAsTimes) {
    for (const char* yes : {"9:30", "09:30:00", "9:30 PM", "3:00:00 PM", " 9:30", "23:59"})
        EXPECT_TRUE(IsTime(yes)) << yes;
    for (const char* no : {"abc", ":30", "", "9", "24:00", "9:60", "13:00 PM", "9:30 XM", "9:30:00:00"})
        EXPECT_FALSE(IsTime(no)) << no;
    EXPECT_TRUE(reporter().faults().empty());
}

}  // namespace
}  // namespace qv
