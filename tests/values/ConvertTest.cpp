#include "values/types/Convert.h"

#include <gtest/gtest.h>

#include "support/FailureOf.h"
#include "values/types/DateTimeFormatter.h"
#include "values/types/Digits.h"

namespace qv {
namespace {

TEST(Convert, WholeNumbersRoundHalfToEvenAndFailAsDocumented) {
    const struct {
        const char* text;
        int32_t value;
    } table[] = {{"2.5", 2}, {"3.5", 4}, {"-2.5", -2}, {" +7 ", 7}, {"1,000", 1000}, {"1,234.5", 1234},
                 {".5", 0},  {"1.5", 2}, {"1E3", 1000}, {"2147483647", 2147483647}, {"-2147483648", INT32_MIN}};
    for (const auto& row : table) EXPECT_EQ(toLong(row.text), row.value) << row.text;
    for (const char* bad : {"", " ", "abc", "1 2", ",5", "1e", "--1", "1.2.3", "0x10", "1D3"}) {
        EXPECT_FALSE(tryToLong(bad).has_value()) << bad;
        EXPECT_THROW((void)toLong(bad), Failure) << bad;
    }
    for (const char* big : {"2147483648", "2147483647.5", "1e400"})
        EXPECT_EQ(failureOf([&] { (void)toLong(big); }).number(), err::Overflow) << big;
    EXPECT_EQ(toInteger("32767"), 32767);
    EXPECT_THROW((void)toInteger("32768"), Failure);
    EXPECT_THROW((void)toSingle("1e39"), Failure);
    // A count or key read from a store or a script: the whole text, nothing less.
    EXPECT_EQ(wholeNumber("-9223372036854775808"), INT64_MIN);
    for (const char* bad : {"", "12 ", " 12", "+1", "1.0", "12abc", "9223372036854775808"})
        EXPECT_FALSE(wholeNumber(bad)) << bad;
}

TEST(Convert, SingleFloatsAndDates) {
    EXPECT_EQ(singleText(3.0f), "3");
    EXPECT_EQ(singleText(9999999.0f), "9999999");
    EXPECT_EQ(singleText(12345678.0f), "1.234568E+07");
    EXPECT_EQ(singleText(-0.0f), "0");
    EXPECT_EQ(toSingleFloat(1440.00005 / 1440), 1.0f);

    const DateTimeFormatter english;
    const double serial = *tryToDate("1/15/2024 3:07:09 PM");
    EXPECT_EQ(english.generalDate(serial), "1/15/2024 3:07:09 PM");
    EXPECT_EQ(english.longDate(serial), "Monday, January 15, 2024");
    EXPECT_EQ(english.shortTime(serial), "15:07");
    EXPECT_EQ(english.generalDate(45306.0), "1/15/2024");
    EXPECT_EQ(english.generalDate(*tryToDate("9:30")), "9:30:00 AM");
    EXPECT_EQ(*tryToDate("12:00 AM"), 0.0);
    for (const char* bad : {"2/30/2024", "13/1/2024", "1/1/24x", "1/1/2024 9", "24:00", "9:30 PMX"})
        EXPECT_FALSE(readsAsDate(bad)) << bad;
    EXPECT_THROW((void)english.shortDate(1e9), Failure);
}

}  // namespace
}  // namespace qv
