// Exact and special values of gk_Trig; its accuracy elsewhere is in trig_accuracy_test.cpp.
#include "platform/core/math/trig.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();
constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kLengths[] = {kLeast,   2.2250738585072014e-308, 1e-200, 0.3, 1.0, 7.0, 1e200, kGreatest,
                               kInfinity};

} // namespace

TEST(Atan2, AlongThePositiveXAxisIsExactlyPlusZero) {
    for (double x : kLengths) {
        for (double y : {0.0, -0.0}) {
            EXPECT_EQ(0.0, gk_Trig::atan2(y, x)) << x;
            EXPECT_FALSE(std::signbit(gk_Trig::atan2(y, x))) << x;
        }
    }
}

TEST(Atan2, AlongTheNegativeXAxisIsExactlyPiWhateverTheSignOfTheZero) {
    for (double x : kLengths) {
        EXPECT_EQ(kPi, gk_Trig::atan2(0.0, -x)) << x;
        EXPECT_EQ(kPi, gk_Trig::atan2(-0.0, -x)) << x;
    }
}

TEST(Atan2, AlongTheYAxisIsExactlyAQuarterTurn) {
    for (double y : kLengths) {
        for (double x : {0.0, -0.0}) {
            EXPECT_EQ(kHalfPi, gk_Trig::atan2(y, x)) << y;
            EXPECT_EQ(-kHalfPi, gk_Trig::atan2(-y, x)) << y;
        }
    }
}

TEST(Atan2, OfTheZeroVectorIsPlusZeroWhateverTheSigns) {
    for (double y : {0.0, -0.0}) {
        for (double x : {0.0, -0.0}) {
            EXPECT_EQ(0.0, gk_Trig::atan2(y, x));
            EXPECT_FALSE(std::signbit(gk_Trig::atan2(y, x)));
        }
    }
}

TEST(Atan2, AlongTheDiagonalsIsTheNearestDoubleToAnOddEighthOfATurn) {
    for (double r : kLengths) {
        EXPECT_EQ(0.7853981633974483, gk_Trig::atan2(r, r)) << r;
        EXPECT_EQ(2.356194490192345, gk_Trig::atan2(r, -r)) << r;
        EXPECT_EQ(-0.7853981633974483, gk_Trig::atan2(-r, r)) << r;
        EXPECT_EQ(-2.356194490192345, gk_Trig::atan2(-r, -r)) << r;
    }
}

TEST(Atan2, OfAFiniteAndAnInfiniteCoordinateIsAnAxis) {
    EXPECT_EQ(0.0, gk_Trig::atan2(3.0, kInfinity));
    EXPECT_FALSE(std::signbit(gk_Trig::atan2(-3.0, kInfinity)));
    EXPECT_EQ(kPi, gk_Trig::atan2(3.0, -kInfinity));
    EXPECT_EQ(kHalfPi, gk_Trig::atan2(kInfinity, -3.0));
    EXPECT_EQ(-kHalfPi, gk_Trig::atan2(-kInfinity, 3.0));
}

TEST(Atan2, SurvivesOverflowAndUnderflowOfTheQuotient) {
    EXPECT_EQ(kHalfPi, gk_Trig::atan2(kGreatest, kLeast));
    EXPECT_EQ(kHalfPi, gk_Trig::atan2(kGreatest, -kLeast));
    EXPECT_EQ(0.0, gk_Trig::atan2(kLeast, kGreatest));
    EXPECT_FALSE(std::signbit(gk_Trig::atan2(-kLeast, kGreatest)));
    EXPECT_EQ(kPi, gk_Trig::atan2(kLeast, -kGreatest));
}

TEST(Atan2, JustBelowTheNegativeXAxisIsTheDoubleAboveMinusPi) {
    // The true direction is above -3.14159265358979323...; -3.141592653589793 is the nearest double and within
    // the range.
    EXPECT_EQ(-kPi, gk_Trig::atan2(-kLeast, -1.0));
}

TEST(Atan2, IsOddInYAwayFromTheXAxis) {
    for (double y : {1e-300, 0.1, 0.7, 3.0, 1e300}) {
        for (double x : {-2.0, -0.5, 0.0, 0.5, 2.0})
            EXPECT_EQ(-gk_Trig::atan2(y, x), gk_Trig::atan2(-y, x)) << y << x;
    }
}

TEST(Atan2, IsTheSameForVectorsScaledByPowersOfTwo) {
    for (double scale : {0x1p-900, 0x1p-501, 0x1p-3, 0x1p499, 0x1p510, 0x1p1000}) {
        EXPECT_EQ(gk_Trig::atan2(0.3, -1.7), gk_Trig::atan2(0.3 * scale, -1.7 * scale)) << scale;
        EXPECT_EQ(gk_Trig::atan2(-5.1, 1.7), gk_Trig::atan2(-5.1 * scale, 1.7 * scale)) << scale;
    }
}

TEST(Atan2, OfNaNIsNaN) {
    for (double v : {0.0, 1.0, kInfinity, kNaN}) {
        EXPECT_TRUE(std::isnan(gk_Trig::atan2(kNaN, v))) << v;
        EXPECT_TRUE(std::isnan(gk_Trig::atan2(v, kNaN))) << v;
    }
}

TEST(SinCos, OfZeroIsExactlyZeroAndOne) {
    EXPECT_EQ(0.0, gk_Trig::sinCos(0.0).sin);
    EXPECT_EQ(1.0, gk_Trig::sinCos(0.0).cos);
    EXPECT_EQ(0.0, gk_Trig::sinCos(-0.0).sin);
    EXPECT_EQ(1.0, gk_Trig::sinCos(-0.0).cos);
}

TEST(SinCos, OfTheDoubleNearestToAQuarterTurnShowsHowFarThatDoubleIsOff) {
    // pi/2 - 1.5707963267948966 = 6.123233995736766e-17.
    EXPECT_EQ(1.0, gk_Trig::sinCos(kHalfPi).sin);
    EXPECT_EQ(6.123233995736766e-17, gk_Trig::sinCos(kHalfPi).cos);
    EXPECT_EQ(1.2246467991473532e-16, gk_Trig::sinCos(kPi).sin);
    EXPECT_EQ(-1.0, gk_Trig::sinCos(kPi).cos);
}

TEST(SinCos, OfTheOppositeAngleIsMirrored) {
    for (double x : {kLeast, 1e-9, 0.5, 0.785, 1.0, 3.0, 1e5, 1e7, 1e22, 1e300}) {
        EXPECT_EQ(-gk_Trig::sinCos(x).sin, gk_Trig::sinCos(-x).sin) << x;
        EXPECT_EQ(gk_Trig::sinCos(x).cos, gk_Trig::sinCos(-x).cos) << x;
    }
}

TEST(SinCos, OfASubnormalIsItself) {
    EXPECT_EQ(kLeast, gk_Trig::sinCos(kLeast).sin);
    EXPECT_EQ(1.0, gk_Trig::sinCos(kLeast).cos);
}

TEST(SinCos, OfInfinityAndNaNIsNaN) {
    for (double v : {kInfinity, -kInfinity, kNaN}) {
        EXPECT_TRUE(std::isnan(gk_Trig::sinCos(v).sin));
        EXPECT_TRUE(std::isnan(gk_Trig::sinCos(v).cos));
    }
}
