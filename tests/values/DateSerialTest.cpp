#include <gtest/gtest.h>

#include "values/types/DateSerial.h"

namespace qv {
namespace {

using namespace dateserial;

// Days count from 1899-12-30 (no 29 February 1900); the fraction is the
// time of day, and before the epoch the day counts back while the fraction
// runs forward in it.
TEST(DateSerial, DaysAndFractionsBothWays) {
    const struct {
        double serial;
        CivilTime civil;
        bool back = true;  // fromCivil gives the serial again
    } rows[] = {
        {0, {1899, 12, 30, 0, 0, 0, 0}},      {1, {1899, 12, 31, 0, 0, 0, 0}},
        {2, {1900, 1, 1, 0, 0, 0, 0}},        {61, {1900, 3, 1, 0, 0, 0, 0}},
        {37000, {2001, 4, 19, 0, 0, 0, 0}},   {38000, {2004, 1, 14, 0, 0, 0, 0}},
        {37000.5, {2001, 4, 19, 12, 0, 0, 0}}, {37000.25, {2001, 4, 19, 6, 0, 0, 0}},
        {37000.75, {2001, 4, 19, 18, 0, 0, 0}}, {0.75, {1899, 12, 30, 18, 0, 0, 0}},
        {(10 * 3600 + 30 * 60 + 15) / 86400.0, {1899, 12, 30, 10, 30, 15, 0}},
        {-1.25, {1899, 12, 29, 6, 0, 0, 0}},  {-2, {1899, 12, 28, 0, 0, 0, 0}},
        {-0.5, {1899, 12, 30, 12, 0, 0, 0}, false},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(toCivil(r.serial), r.civil) << r.serial;
        if (r.back) {
            EXPECT_DOUBLE_EQ(fromCivil(r.civil), r.serial) << r.serial;
        }
    }
    EXPECT_EQ(dayNumber(2000, 2, 29), 36585);
}

TEST(DateSerial, RoundsToTheMillisecond) {
    const double s = fromCivil(2024, 2, 29, 23, 59, 58, 123);
    EXPECT_EQ(toCivil(s), (CivilTime{2024, 2, 29, 23, 59, 58, 123}));
    EXPECT_EQ(toCivil(s + 0.4 / 86'400'000.0).millisecond, 123);
    EXPECT_EQ(toCivil(s + 0.6 / 86'400'000.0).millisecond, 124);
    // Just before midnight rounds into the next day.
    EXPECT_EQ(toCivil(37000.99999999999), (CivilTime{2001, 4, 20, 0, 0, 0, 0}));
    EXPECT_EQ(toCivil(-1.99999999999), (CivilTime{1899, 12, 30, 0, 0, 0, 0}));
    EXPECT_DOUBLE_EQ(roundToMillisecond(37000.5 + 0.3 / 86'400'000.0), 37000.5);
}

TEST(DateSerial, IsoTextRoundTrip) {
    EXPECT_EQ(toIso(37000.5), "2001-04-19T12:00:00.000");
    EXPECT_EQ(toIso(0), "1899-12-30T00:00:00.000");
    EXPECT_EQ(toIso(2), "1900-01-01T00:00:00.000");
    EXPECT_EQ(toIso(-1.25), "1899-12-29T06:00:00.000");

    const std::pair<const char*, double> texts[] = {
        {"2001-04-19T12:00:00.000", 37000.5}, {"2001-04-19 12:00:00", 37000.5}, {"2001-04-19", 37000.0},
        {"  2001-04-19T06:00  ", 37000.25},   {"1899-12-29T06:00:00.000", -1.25},
        {"2001-04-19 12:00:00.864", 37000.50001}, {"2001-04-19T12:00:00,864", 37000.50001},
        {"2001-04-19T12:00:00.8640", 37000.50001}, {"2001-04-19T12:00:00.00Z", 37000.5}};
    for (const auto& [text, serial] : texts) EXPECT_DOUBLE_EQ(fromIso(text).value_or(1e9), serial) << text;

    for (double s : {37000.0, 38000.123456, 45678.999, 1.0, 0.5, -3.75, 2958465.5}) {
        const std::string iso = toIso(s);
        ASSERT_TRUE(fromIso(iso).has_value()) << iso;
        EXPECT_EQ(toIso(*fromIso(iso)), iso);
        EXPECT_NEAR(*fromIso(iso), s, 0.5 / 86'400'000.0 + 1e-9);
    }

    for (const char* bad : {"", "2001-02-30", "2001-13-01", "2001-04-19T25:00:00", "4/19/2001",
                            "2001-04-19T12:00:00.000 junk", "2001-02-29T00:00:00.000", "2001-04-19T24:00:00.000",
                            "2001-04-19T12:60:00.000", "2001-04-19X12:00:00.000", "2001-04-19T12:00:0a.000"})
        EXPECT_FALSE(fromIso(bad).has_value()) << bad;
}

}  // namespace
}  // namespace qv
