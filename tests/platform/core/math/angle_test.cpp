// Conversions between the angle units, reduction to one turn, and the wrapping byte.
#include "platform/core/math/angle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double normOf(double radians) { return gkRadian(radians).norm().toDouble(); }
double degreeNormOf(double degrees) { return gkDegree(degrees).norm().toDouble(); }
int stepOf(double degrees) { return gkAngle8(gkDegree(degrees)).toByte(); }
gkAngle8 steps(int n) { return gkAngle8(static_cast<unsigned char>(n)); }

} // namespace

TEST(Radian, IsZeroByDefaultAndKeepsItsValue) {
    EXPECT_EQ(0.0, gkRadian().toDouble());
    EXPECT_EQ(100.0, gkRadian(100.0).toDouble());
}

TEST(Radian, NormLeavesAnglesWithinOneTurnAlone) {
    for (double angle : {0.0, 1e-300, 0.1, kPi, 6.28, std::nextafter(kTwoPi, 0.0)})
        EXPECT_EQ(angle, normOf(angle));
}

TEST(Radian, NormOfAFullTurnIsZero) {
    EXPECT_EQ(0.0, normOf(kTwoPi));
    EXPECT_EQ(0.0, normOf(-kTwoPi));
    EXPECT_EQ(0.0, normOf(1024.0 * kTwoPi));
}

TEST(Radian, NormOfANegativeAngleAddsATurn) {
    EXPECT_EQ(kTwoPi - 1.0, normOf(-1.0));
    EXPECT_EQ(kPi, normOf(-kPi));
}

TEST(Radian, NormJustBelowZeroIsTheGreatestDoubleBelowAFullTurn) {
    const double greatest = std::nextafter(kTwoPi, 0.0);
    EXPECT_EQ(greatest, normOf(-1e-20));
    EXPECT_EQ(greatest, normOf(-std::numeric_limits<double>::denorm_min()));
    EXPECT_EQ(greatest, normOf(std::nextafter(0.0, -1.0)));
}

TEST(Radian, NormOfMinusZeroIsPlusZero) {
    EXPECT_EQ(0.0, normOf(-0.0));
    EXPECT_FALSE(std::signbit(normOf(-0.0)));
    EXPECT_FALSE(std::signbit(normOf(-kTwoPi)));
}

TEST(Radian, NormOfAHugeAngleIsTheExactRemainder) {
    // Eight turns and one radian are exact in 53 bits. The other remainder is from rational arithmetic.
    EXPECT_EQ(1.0, normOf(8.0 * kTwoPi + 1.0));
    EXPECT_EQ(5.559758606652565, normOf(1e300));
    EXPECT_LT(normOf(-1e300), kTwoPi);
    EXPECT_GE(normOf(-1e300), 0.0);
}

TEST(Radian, NormOfNaNAndInfinityIsNaN) {
    for (double angle : {kNaN, kInfinity, -kInfinity}) EXPECT_TRUE(std::isnan(normOf(angle)));
}

TEST(Radian, ArithmeticIsThatOfTheValues) {
    const gkRadian a(0.25);
    const gkRadian b(1.5);
    EXPECT_EQ(gkRadian(1.75), a + b);
    EXPECT_EQ(gkRadian(-1.25), a - b);
    EXPECT_EQ(gkRadian(0.5), a * 2.0);
    EXPECT_EQ(gkRadian(0.5), 2.0 * a);
    EXPECT_EQ(gkRadian(0.125), a / 2.0);
    EXPECT_EQ(gkRadian(-0.25), -a);
}

TEST(Radian, ComparesRawValuesWithoutReduction) {
    EXPECT_NE(gkRadian(0.0), gkRadian(kTwoPi));
    EXPECT_TRUE(gkRadian(0.0) < gkRadian(kTwoPi));
    EXPECT_FALSE(gkRadian(1.0) < gkRadian(1.0));
    EXPECT_EQ(gkRadian(0.0), gkRadian(-0.0));
    EXPECT_NE(gkRadian(kNaN), gkRadian(kNaN));
}

TEST(Radian, OfRightAnglesInDegreesIsTheNearestDouble) {
    EXPECT_EQ(1.5707963267948966, gkRadian(gkDegree(90.0)).toDouble());
    EXPECT_EQ(kPi, gkRadian(gkDegree(180.0)).toDouble());
    EXPECT_EQ(-kPi, gkRadian(gkDegree(-180.0)).toDouble());
    EXPECT_EQ(kTwoPi, gkRadian(gkDegree(360.0)).toDouble());
}

TEST(Radian, OfAByteAngleIsThatPartOfATurn) {
    EXPECT_EQ(0.0, gkRadian(steps(0)).toDouble());
    EXPECT_EQ(1.5707963267948966, gkRadian(steps(64)).toDouble());
    EXPECT_EQ(kPi, gkRadian(steps(128)).toDouble());
    EXPECT_DOUBLE_EQ(255.0 / 256.0 * kTwoPi, gkRadian(steps(255)).toDouble());
}

TEST(Degree, OfRightAnglesInRadiansIsExact) {
    EXPECT_EQ(90.0, gkDegree(gkRadian(1.5707963267948966)).toDouble());
    EXPECT_EQ(180.0, gkDegree(gkRadian(kPi)).toDouble());
}

TEST(Degree, OfAByteAngleIsExact) {
    for (int n = 0; n < 256; ++n) EXPECT_EQ(n * 1.40625, gkDegree(steps(n)).toDouble()) << n;
}

TEST(Degree, NormIsInOneTurnWithoutItsUpperEnd) {
    EXPECT_EQ(0.0, degreeNormOf(360.0));
    EXPECT_EQ(1.0, degreeNormOf(721.0));
    EXPECT_EQ(270.0, degreeNormOf(-90.0));
    EXPECT_EQ(std::nextafter(360.0, 0.0), degreeNormOf(-1e-20));
    EXPECT_FALSE(std::signbit(degreeNormOf(-0.0)));
    EXPECT_FALSE(std::signbit(degreeNormOf(-360.0)));
    for (double angle : {kNaN, kInfinity, -kInfinity}) EXPECT_TRUE(std::isnan(degreeNormOf(angle)));
}

TEST(Degree, ArithmeticAndComparisonsAreThoseOfTheValues) {
    EXPECT_EQ(gkDegree(270.0), gkDegree(90.0) + gkDegree(180.0));
    EXPECT_EQ(gkDegree(-90.0), gkDegree(90.0) - gkDegree(180.0));
    EXPECT_EQ(gkDegree(45.0), gkDegree(90.0) / 2.0);
    EXPECT_EQ(gkDegree(180.0), 2.0 * gkDegree(90.0));
    EXPECT_EQ(gkDegree(-90.0), -gkDegree(90.0));
    EXPECT_NE(gkDegree(0.0), gkDegree(360.0));
    EXPECT_TRUE(gkDegree(1.0) < gkDegree(2.0));
}

TEST(Angle8, WrapsAroundAtAFullTurn) {
    EXPECT_EQ(steps(44), steps(200) + steps(100));
    EXPECT_EQ(steps(156), steps(100) - steps(200));
    EXPECT_EQ(steps(0), steps(128) + steps(128));
    EXPECT_EQ(steps(255), steps(0) - steps(1));
    EXPECT_EQ(steps(255), -steps(1));
    EXPECT_EQ(steps(0), -steps(0));
    EXPECT_EQ(steps(128), -steps(128));
}

TEST(Angle8, SurvivesTheWayThroughDegreesAndRadians) {
    for (int n = 0; n < 256; ++n) {
        EXPECT_EQ(steps(n), gkAngle8(gkDegree(steps(n)))) << n;
        EXPECT_EQ(steps(n), gkAngle8(gkRadian(steps(n)))) << n;
    }
}

TEST(Angle8, OfAngleBeyondOneTurnIsReduced) {
    EXPECT_EQ(64, stepOf(450.0));
    EXPECT_EQ(192, stepOf(-90.0));
    EXPECT_EQ(64, stepOf(360.0 * 1048576.0 + 90.0));
    EXPECT_EQ(0, stepOf(-360.0));
    EXPECT_EQ(192, gkAngle8(gkRadian(-1.5707963267948966)).toByte());
}

TEST(Angle8, OfHugeDegreesIsThatOfTheExactRemainder) {
    // 2^60 is 136 modulo 360 (1 modulo 45 and 0 modulo 8), and 136 degrees are 96.7 steps.
    EXPECT_EQ(97, stepOf(0x1p60));
}

TEST(Angle8, IsTheNearestStepWithHalvesRoundedUp) {
    for (int n = 0; n < 256; ++n) {
        const double half = (2 * n + 1) * 0.703125; // exact, as are the products of the step 1.40625
        EXPECT_EQ((n + 1) % 256, stepOf(half)) << n;
        EXPECT_EQ(n, stepOf(std::nextafter(half, 0.0))) << n;
        EXPECT_EQ((n + 1) % 256, stepOf(std::nextafter(half, 400.0))) << n;
    }
}

TEST(Angle8, OfAngleJustBelowAFullTurnIsStepZero) {
    EXPECT_EQ(0, stepOf(359.9));
    EXPECT_EQ(0, stepOf(std::nextafter(360.0, 0.0)));
    EXPECT_EQ(0, stepOf(-1e-20));
    EXPECT_EQ(0, stepOf(-0.703125)); // halfway between 255 and 256 goes up
    EXPECT_EQ(255, stepOf(std::nextafter(-0.703125, -1.0)));
    EXPECT_EQ(0, gkAngle8(gkRadian(-1e-20)).toByte());
}

TEST(Angle8, OfNaNAndInfinityIsStepZero) {
    for (double angle : {kNaN, kInfinity, -kInfinity}) {
        EXPECT_EQ(0, gkAngle8(gkRadian(angle)).toByte());
        EXPECT_EQ(0, gkAngle8(gkDegree(angle)).toByte());
    }
}

TEST(Angles, ConvertImplicitlyIntoEachOtherButNotFromNumbers) {
    const gkRadian radian = gkDegree(180.0);
    EXPECT_EQ(gkRadian(kPi), radian);
    EXPECT_FALSE((std::is_convertible<double, gkRadian>::value));
    EXPECT_FALSE((std::is_convertible<double, gkDegree>::value));
    EXPECT_FALSE((std::is_convertible<unsigned char, gkAngle8>::value));
}
