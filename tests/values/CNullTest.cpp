#include <gtest/gtest.h>

#include "toolkit/Failure.h"
#include "values/types/CNull.h"

namespace qv {

TEST(CNull, NullGivesTheDefaultElseTheConvertedValue) {
    const Value null;
    EXPECT_EQ(CNull::NVLStr(null, "none"), "none");
    EXPECT_EQ(CNull::NVLStr(Value(int32_t{42}), "none"), "42");
    EXPECT_EQ(CNull::NVLStr(Value(2.5), ""), "2.5");
    EXPECT_EQ(CNull::NVL(null, Value("d")), Value("d"));
    EXPECT_EQ(CNull::NVL(Value(int16_t{3}), Value("d")), Value(int16_t{3}));

    EXPECT_TRUE(CNull::NVLBool(null, true));
    EXPECT_TRUE(CNull::NVLBool(Value(int32_t{-1})));
    EXPECT_EQ(CNull::NVLInt(null, int16_t{-86}), -86);
    EXPECT_EQ(CNull::NVLInt(Value(true)), -1) << "true reads as -1";
    EXPECT_EQ(CNull::NVLLng(Value("12")), 12);
    EXPECT_DOUBLE_EQ(CNull::NVLDbl(Value(int32_t{7})), 7.0);
    EXPECT_FLOAT_EQ(CNull::NVLSng(Value(1.5)), 1.5f);
    EXPECT_EQ(CNull::NVLDate(null, Date{1.0}), Date{1.0});
    EXPECT_EQ(CNull::NVLDate(Value(Date{45306.5})), Date{45306.5});
    EXPECT_EQ(CNull::NVLByte(Value(int32_t{255})), 255);
    EXPECT_EQ(CNull::NVLCur(Value(1.23456)), 12346);
    EXPECT_EQ(CNull::NVLCur(Value(0.00005)), 0) << "half to even at the fourth decimal";
    EXPECT_EQ(CNull::NVLCur(null, 5), 5);
}

TEST(CNull, ValuesThatDontConvertFail) {
    for (int32_t byte : {256, -1}) EXPECT_THROW((void)CNull::NVLByte(Value(byte)), Failure) << byte;
    EXPECT_THROW((void)CNull::NVLInt(Value(int32_t{40000})), Failure);
    EXPECT_THROW((void)CNull::NVLLng(Value("abc")), Failure);
    EXPECT_THROW((void)CNull::NVLSng(Value(1e39)), Failure);
    EXPECT_THROW((void)CNull::NVLCur(Value(1e300)), Failure);
}

}  // namespace qv
