// gfRealEq at its bound and gfIFloor at the ends of its range.
#include "platform/core/math/real.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();
constexpr double kGreatest = std::numeric_limits<double>::max();

double above(double v) { return std::nextafter(v, kInfinity); }
double below(double v) { return std::nextafter(v, -kInfinity); }

} // namespace

TEST(RealEq, IncludesItsBoundOnBothSides) {
    for (double eps : {1e-15, 1e-6, 0.25, 3.0}) {
        EXPECT_TRUE(gfRealEq(eps, 0.0, eps)) << eps;
        EXPECT_TRUE(gfRealEq(-eps, 0.0, eps)) << eps;
        EXPECT_TRUE(gfRealEq(0.0, eps, eps)) << eps;
        EXPECT_TRUE(gfRealEq(below(eps), 0.0, eps)) << eps;
        EXPECT_FALSE(gfRealEq(above(eps), 0.0, eps)) << eps;
        EXPECT_FALSE(gfRealEq(-above(eps), 0.0, eps)) << eps;
        EXPECT_FALSE(gfRealEq(0.0, above(eps), eps)) << eps;
    }
    EXPECT_TRUE(gfRealEq(1.25, 1.0, 0.25));
    EXPECT_FALSE(gfRealEq(above(1.25), 1.0, 0.25));
    EXPECT_TRUE(gfRealEq(0.75, 1.0, 0.25));
    EXPECT_FALSE(gfRealEq(below(0.75), 1.0, 0.25));
}

TEST(RealEq, WithAZeroBoundIsEquality) {
    EXPECT_TRUE(gfRealEq(1.0, 1.0, 0.0));
    EXPECT_TRUE(gfRealEq(0.0, -0.0, 0.0));
    EXPECT_FALSE(gfRealEq(1.0, above(1.0), 0.0));
    EXPECT_FALSE(gfRealEq(kLeast, 0.0, 0.0));
    EXPECT_TRUE(gfRealEq(kLeast, 0.0, kLeast));
}

TEST(RealEq, OfEqualInfinitiesIsTrueAndOfOthersFalse) {
    EXPECT_TRUE(gfRealEq(kInfinity, kInfinity, 0.0));
    EXPECT_TRUE(gfRealEq(-kInfinity, -kInfinity, 1.0));
    EXPECT_FALSE(gfRealEq(kInfinity, -kInfinity, 1.0));
    EXPECT_FALSE(gfRealEq(kInfinity, kGreatest, 1.0));
    EXPECT_FALSE(gfRealEq(kGreatest, -kGreatest, 1.0));
}

TEST(RealEq, OfNaNIsFalse) {
    EXPECT_FALSE(gfRealEq(kNaN, kNaN, 1.0));
    EXPECT_FALSE(gfRealEq(kNaN, 0.0, kInfinity));
    EXPECT_FALSE(gfRealEq(0.0, kNaN, kInfinity));
    EXPECT_FALSE(gfRealEq(0.0, 1.0, kNaN));
}

TEST(IFloor, IsTheGreatestIntegerNotAbove) {
    EXPECT_EQ(2, gfIFloor(2.0));
    EXPECT_EQ(2, gfIFloor(2.999));
    EXPECT_EQ(1, gfIFloor(below(2.0)));
    EXPECT_EQ(-3, gfIFloor(-2.001));
    EXPECT_EQ(-2, gfIFloor(-2.0));
    EXPECT_EQ(0, gfIFloor(0.0));
    EXPECT_EQ(0, gfIFloor(-0.0));
    EXPECT_EQ(0, gfIFloor(kLeast));
    EXPECT_EQ(-1, gfIFloor(-kLeast));
}

TEST(IFloor, ReachesBothEndsOfThe32BitRangeExactly) {
    EXPECT_EQ(2147483647, gfIFloor(2147483647.0));
    EXPECT_EQ(2147483646, gfIFloor(below(2147483647.0)));
    EXPECT_EQ(2147483646, gfIFloor(2147483646.0));
    EXPECT_EQ(-2147483647L - 1L, gfIFloor(-2147483648.0));
    EXPECT_EQ(-2147483647L - 1L, gfIFloor(above(-2147483648.0)));
    EXPECT_EQ(-2147483647, gfIFloor(-2147483647.0));
}

TEST(IFloor, BeyondTheRangeIsTheNearestEnd) {
    for (double value : {2147483647.5, 2147483648.0, 4294967296.0, 1e300, kGreatest, kInfinity}) {
        EXPECT_EQ(2147483647, gfIFloor(value)) << value;
        EXPECT_EQ(-2147483647L - 1L, gfIFloor(-value - 2.0)) << value;
    }
}

TEST(IFloor, OfNaNIsZero) { EXPECT_EQ(0, gfIFloor(kNaN)); }
