#include <gtest/gtest.h>

#include "support/FailureOf.h"
#include "values/types/Value.h"

namespace qv {
namespace {

int32_t failureNumber(const std::function<void()>& f) { return failureOf(f).number(); }

TEST(Value, BooleansAndNumbers) {
    EXPECT_EQ(Value(true).toInt32(), -1);
    EXPECT_EQ(Value(true).toInt16(), -1);
    EXPECT_EQ(Value(false).toDouble(), 0.0);
    for (const Value& yes : {Value(int32_t{5}), Value("True"), Value("-1")})
        EXPECT_TRUE(yes.toBool()) << yes.toText();
    for (const Value& no : {Value(0.0), Value(" false ")}) EXPECT_FALSE(no.toBool()) << no.toText();
    EXPECT_EQ(Value("True").toInt32(), -1);
    EXPECT_EQ(failureNumber([] { (void)Value("maybe").toBool(); }), err::TypeMismatch);
}

TEST(Value, RoundingHalfToEvenAndOverflow) {
    EXPECT_EQ(Value(2.5).toInt32(), 2);
    EXPECT_EQ(Value(3.5).toInt32(), 4);
    EXPECT_EQ(Value(-2.5).toInt16(), -2);
    EXPECT_EQ(Value(1.4999).toInt16(), 1);
    EXPECT_EQ(Value(32767.4).toInt16(), 32767);
    EXPECT_EQ(failureNumber([] { (void)Value(32767.5).toInt16(); }), err::Overflow);
    EXPECT_EQ(failureNumber([] { (void)Value(int32_t{40000}).toInt16(); }), err::Overflow);
    EXPECT_EQ(failureNumber([] { (void)Value(3e9).toInt32(); }), err::Overflow);
    EXPECT_EQ(Value(Date{37000.5}).toInt32(), 37000);
    EXPECT_EQ(Value(Date{37001.5}).toInt32(), 37002);
}

TEST(Value, TextToNumber) {
    EXPECT_EQ(Value("  42 ").toInt32(), 42);
    EXPECT_EQ(Value("-7").toInt16(), -7);
    EXPECT_EQ(Value("+7").toInt16(), 7);
    EXPECT_EQ(Value("1,234").toInt32(), 1234);
    EXPECT_EQ(Value("2.5").toInt32(), 2);
    const std::pair<const char*, double> doubles[] = {
        {"1,234,567.5", 1234567.5}, {"1E3", 1000.0}, {".5", 0.5}};
    for (const auto& [text, number] : doubles) EXPECT_EQ(Value(text).toDouble(), number) << text;
    for (const char* bad : {"", "12abc"})
        EXPECT_EQ(failureNumber([&] { (void)Value(bad).toInt32(); }), err::TypeMismatch) << bad;
    for (const char* bad : {"1.2.3", ",5"})
        EXPECT_EQ(failureNumber([&] { (void)Value(bad).toDouble(); }), err::TypeMismatch) << bad;
    EXPECT_EQ(failureNumber([] { (void)Value("40000").toInt16(); }), err::Overflow);
}

TEST(Value, NullConvertsOnlyToText) {
    const Value n;
    EXPECT_TRUE(n.isNull());
    EXPECT_TRUE(Value(nullptr).isNull());
    EXPECT_EQ(n.toText(), "");
    EXPECT_EQ(failureNumber([&] { (void)n.toBool(); }), 94);
    EXPECT_EQ(failureNumber([&] { (void)n.toInt16(); }), 94);
    EXPECT_EQ(failureNumber([&] { (void)n.toDouble(); }), 94);
    EXPECT_EQ(failureNumber([&] { (void)n.toDate(); }), 94);
    const Failure f = failureOf([&] { (void)n.toInt32(); });
    EXPECT_EQ(f.number(), 94);
    EXPECT_EQ(f.description(), "Invalid use of Null");
}

TEST(Value, TextForms) {
    const std::pair<Value, const char*> table[] = {
        {Value(true), "True"},       {Value(false), "False"},           {Value(int16_t{-3}), "-3"},
        {Value(1.5), "1.5"},         {Value(int32_t{123456}), "123456"}, {Value(10.0), "10"},
        {Value(0.1), "0.1"},         {Value(-0.0), "0"},                 {Value(1e21), "1E+21"},
        {Value(Date{0.75}), "6:00:00 PM"}, {Value(Date{0.0}), "12:00:00 AM"}, {Value(Date{2.0}), "1/1/1900"},
        {Value(Date{37000.0}), "4/19/2001"}, {Value(Date{37000.5}), "4/19/2001 12:00:00 PM"},
        {Value(Date{37000.25 + 30.0 / 1440}), "4/19/2001 6:30:00 AM"}, {Value("Grüße"), "Grüße"}};
    for (const auto& [value, text] : table) EXPECT_EQ(value.toText(), text) << text;
}

TEST(Value, DatesAndText) {
    EXPECT_EQ(Value(37000.5).toDate(), Date{37000.5});
    EXPECT_EQ(Value(Date{38000}).toDouble(), 38000.0);
    const std::pair<const char*, double> texts[] = {
        {"2001-04-19T12:00:00.000", 37000.5}, {"2001-04-19", 37000}, {"4/19/2001", 37000},
        {"4/19/2001 12:00:00 PM", 37000.5},   {"6:00:00 PM", 0.75},  {"12:00:00 AM", 0.0}};
    for (const auto& [text, serial] : texts) EXPECT_EQ(Value(text).toDate(), Date{serial}) << text;
    for (const char* bad : {"someday", "2/30/2001"})
        EXPECT_EQ(failureNumber([&] { (void)Value(bad).toDate(); }), err::TypeMismatch) << bad;
    EXPECT_EQ(failureNumber([] { (void)Value(1e10).toDate(); }), err::Overflow);
    // The text a date writes reads back as the same date.
    for (double s : {37000.0, 37000.5, 0.75, 38000.0 + 13.0 / 24 + 7.0 / 1440 + 9.0 / 86400}) {
        const std::string text = Value(Date{s}).toText();
        EXPECT_NEAR(Value(text).toDate().serial, s, 1e-9) << text;
    }
}

}  // namespace
}  // namespace qv
