#include "interop/number.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <limits>

using gnText::number;

TEST(TextNumber, HasTheShortestDigitsThatReadBack) {
    EXPECT_EQ("0.1", number(0.1));
    EXPECT_EQ("0.30000000000000004", number(0.1 + 0.2));
    EXPECT_EQ("0.3333333333333333", number(1.0 / 3.0));
    EXPECT_EQ("9007199254740992", number(0x1p53));
    EXPECT_EQ("1.7976931348623157e+308", number(DBL_MAX));
    EXPECT_EQ("2.2250738585072014e-308", number(DBL_MIN));
    EXPECT_EQ("5e-324", number(std::numeric_limits<double>::denorm_min()));
}

TEST(TextNumber, TakesTheExponentWhereThatIsShorter) {
    EXPECT_EQ("12345", number(12345.0));
    EXPECT_EQ("10000", number(1e4));
    EXPECT_EQ("1e+05", number(1e5));
    EXPECT_EQ("0.001", number(1e-3));
    EXPECT_EQ("1e-05", number(1e-5));
}

TEST(TextNumber, NamesWhatIsNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ("nan", number(nan));
    EXPECT_EQ("nan", number(-nan));
    EXPECT_EQ("inf", number(std::numeric_limits<double>::infinity()));
    EXPECT_EQ("-inf", number(-std::numeric_limits<double>::infinity()));
}

TEST(TextNumber, KeepsTheSignOfZero) {
    EXPECT_EQ("0", number(0.0));
    EXPECT_EQ("-0", number(-0.0));
}
