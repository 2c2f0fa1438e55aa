#include <gtest/gtest.h>

#include "toolkit/Failure.h"
#include "values/Value.h"

namespace qv {
namespace {

int32_t failureOf(const auto& f) {
    try {
        f();
    } catch (const Failure& e) {
        return e.number();
    }
    return 0;
}

TEST(Value, BooleansAndNumbers) {
    EXPECT_EQ(Value(true).toInt32(), -1);
    EXPECT_EQ(Value(true).toInt16(), -1);
    EXPECT_EQ(Value(false).toDouble(), 0.0);
    EXPECT_TRUE(Value(int32_t{5}).toBool());
    EXPECT_FALSE(Value(0.0).toBool());
    EXPECT_TRUE(Value("True").toBool());
    EXPECT_FALSE(Value(" false ").toBool());
    EXPECT_TRUE(Value("-1").toBool());
    EXPECT_EQ(Value("True").toInt32(), -1);
    EXPECT_EQ(failureOf([] { (void)Value("maybe").toBool(); }), err::TypeMismatch);
}

TEST(Value, RoundingHalfToEvenAndOverflow) {
    EXPECT_EQ(Value(2.5).toInt32(), 2);
    EXPECT_EQ(Value(3.5).toInt32(), 4);
    EXPECT_EQ(Value(-2.5).toInt16(), -2);
    EXPECT_EQ(Value(1.4999).toInt16(), 1);
    EXPECT_EQ(Value(32767.4).toInt16(), 32767);
    EXPECT_EQ(failureOf([] { (void)Value(32767.5).toInt16(); }), err::Overflow);
    EXPECT_EQ(failureOf([] { (void)Value(int32_t{40000}).toInt16(); }), err::Overflow);
    EXPECT_EQ(failureOf([] { (void)Value(3e9).toInt32(); }), err::Overflow);
    EXPECT_EQ(Value(Date{37000.5}).toInt32(), 37000);
    EXPECT_EQ(Value(Date{37001.5}).toInt32(), 37002);
}

TEST(Value, TextToNumber) {
    EXPECT_EQ(Value("  42 ").toInt32(), 42);
    EXPECT_EQ(Value("-7").toInt16(), -7);
    EXPECT_EQ(Value("+7").toInt16(), 7);
    EXPECT_EQ(Value("1,234").toInt32(), 1234);
    EXPECT_EQ(Value("1,234,567.5").toDouble(), 1234567.5);
    EXPECT_EQ(Value("2.5").toInt32(), 2);
    EXPECT_EQ(Value("1E3").toDouble(), 1000.0);
    EXPECT_EQ(Value(".5").toDouble(), 0.5);
    EXPECT_EQ(failureOf([] { (void)Value("").toInt32(); }), err::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)Value("12abc").toInt32(); }), err::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)Value("1.2.3").toDouble(); }), err::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)Value(",5").toDouble(); }), err::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)Value("40000").toInt16(); }), err::Overflow);
}

TEST(Value, NullConvertsOnlyToText) {
    const Value n;
    EXPECT_TRUE(n.isNull());
    EXPECT_TRUE(Value(nullptr).isNull());
    EXPECT_EQ(n.toText(), "");
    EXPECT_EQ(failureOf([&] { (void)n.toBool(); }), 94);
    EXPECT_EQ(failureOf([&] { (void)n.toInt16(); }), 94);
    EXPECT_EQ(failureOf([&] { (void)n.toInt32(); }), 94);
    EXPECT_EQ(failureOf([&] { (void)n.toDouble(); }), 94);
    EXPECT_EQ(failureOf([&] { (void)n.toDate(); }), 94);
    try {
        (void)n.toInt32();
    } catch (const Failure& e) {
        EXPECT_EQ(e.description(), "Invalid use of Null");
    }
}

TEST(Value, TextForms) {
    EXPECT_EQ(Value(true).toText(), "True");
    EXPECT_EQ(Value(false).toText(), "False");
    EXPECT_EQ(Value(int16_t{-3}).toText(), "-3");
    EXPECT_EQ(Value(int32_t{123456}).toText(), "123456");
    EXPECT_EQ(Value(1.5).toText(), "1.5");
    EXPECT_EQ(Value(10.0).toText(), "10");
    EXPECT_EQ(Value(0.1).toText(), "0.1");
    EXPECT_EQ(Value(-0.0).toText(), "0");
    EXPECT_EQ(Value(1e21).toText(), "1E+21");
    EXPECT_EQ(Value(Date{37000.0}).toText(), "4/19/2001");
    EXPECT_EQ(Value(Date{37000.5}).toText(), "4/19/2001 12:00:00 PM");
    EXPECT_EQ(Value(Date{37000.25 + 30.0 / 1440}).toText(), "4/19/2001 6:30:00 AM");
    EXPECT_EQ(Value(Date{0.75}).toText(), "6:00:00 PM");
    EXPECT_EQ(Value(Date{0.0}).toText(), "12:00:00 AM");
    EXPECT_EQ(Value(Date{2.0}).toText(), "1/1/1900");
    EXPECT_EQ(Value("Grüße").toText(), "Grüße");
}

TEST(Value, DatesAndText) {
    EXPECT_EQ(Value(37000.5).toDate(), Date{37000.5});
    EXPECT_EQ(Value(Date{38000}).toDouble(), 38000.0);
    EXPECT_EQ(Value("2001-04-19T12:00:00.000").toDate(), Date{37000.5});
    EXPECT_EQ(Value("2001-04-19").toDate(), Date{37000});
    EXPECT_EQ(Value("4/19/2001").toDate(), Date{37000});
    EXPECT_EQ(Value("4/19/2001 12:00:00 PM").toDate(), Date{37000.5});
    EXPECT_EQ(Value("6:00:00 PM").toDate(), Date{0.75});
    EXPECT_EQ(Value("12:00:00 AM").toDate(), Date{0.0});
    EXPECT_EQ(failureOf([] { (void)Value("someday").toDate(); }), err::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)Value("2/30/2001").toDate(); }), err::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)Value(1e10).toDate(); }), err::Overflow);
    // The text a date writes reads back as the same date.
    for (double s : {37000.0, 37000.5, 0.75, 38000.0 + 13.0 / 24 + 7.0 / 1440 + 9.0 / 86400}) {
        const std::string text = Value(Date{s}).toText();
        EXPECT_NEAR(Value(text).toDate().serial, s, 1e-9) << text;
    }
}

}  // namespace
}  // namespace qv
