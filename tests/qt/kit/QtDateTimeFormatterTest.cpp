#include "kit/QtDateTimeFormatter.h"

#include <gtest/gtest.h>

#include <cmath>

#include "values/types/Convert.h"
#include "values/types/DateSerial.h"

namespace qv {
namespace {

// A deadline time the dialog writes into its Time tool must read back, in
// every locale: the catalog flow writes it and checks it again.
TEST(QtDateTimeFormatter, TimesReadBackInTwelveAndTwentyFourHourLocales) {
    const double serial = dateserial::fromCivil(2026, 12, 24, 16, 59, 59, 998);
    for (const char* name : {"en_US", "de_DE", "fr_FR", "ja_JP"}) {
        const QtDateTimeFormatter f{QLocale(QString::fromLatin1(name))};
        const auto text = f.longTime(serial);
        const auto back = tryToDate(text);
        ASSERT_TRUE(back.has_value()) << name << ": " << text;
        EXPECT_NEAR(*back, serial - std::floor(serial), 1.0 / 86400) << name << ": " << text;
        EXPECT_TRUE(tryToDate(f.shortDate(serial)).has_value()) << name;
    }
    EXPECT_EQ(QtDateTimeFormatter{QLocale(QStringLiteral("de_DE"))}.longTime(serial), "17:00:00");
    EXPECT_EQ(QtDateTimeFormatter{QLocale(QStringLiteral("en_US"))}.longTime(serial), "5:00:00 PM");  // to the nearest second
}

}  // namespace
}  // namespace qv
