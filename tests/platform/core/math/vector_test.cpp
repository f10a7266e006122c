// The two-dimensional vector: plain arithmetic, special directions, exact comparison.
#include "platform/core/math/vector.h"

#include "platform/core/math/vector_ops.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

using Vector = gkVector<2>;

constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(Vector, IsZeroByDefault) { EXPECT_EQ(Vector(0.0, 0.0), Vector()); }

TEST(Vector, CoordinatesCanBeReadAndSet) {
    Vector v(1.0, 2.0);
    v.x(3.0);
    v.y(-4.0);
    EXPECT_EQ(3.0, v.x());
    EXPECT_EQ(-4.0, v.y());
}

TEST(Vector, IsMadeFromPairsExplicitly) {
    EXPECT_EQ(Vector(-3.0, 7.0), Vector(gkPair<long>(-3, 7)));
    EXPECT_EQ(Vector(0.5, 0.25), Vector(gkPair<double>(0.5, 0.25)));
    EXPECT_FALSE((std::is_convertible<gkPair<long>, Vector>::value));
    EXPECT_FALSE((std::is_convertible<gkPair<double>, Vector>::value));
}

TEST(Vector, ArithmeticIsByCoordinate) {
    const Vector a(1.0, 2.0);
    const Vector b(0.5, -4.0);
    EXPECT_EQ(Vector(1.5, -2.0), a + b);
    EXPECT_EQ(Vector(0.5, 6.0), a - b);
    EXPECT_EQ(Vector(-1.0, -2.0), -a);
    EXPECT_EQ(Vector(3.0, 6.0), a * 3.0);
    EXPECT_EQ(Vector(3.0, 6.0), 3.0 * a);
    EXPECT_EQ(Vector(0.25, 0.5), a / 4.0);
}

TEST(Vector, AssigningOperatorsDoTheSameAndReturnTheVector) {
    Vector v(1.0, 2.0);
    EXPECT_EQ(&v, &(v += Vector(2.0, 2.0)));
    EXPECT_EQ(Vector(3.0, 4.0), v);
    v -= Vector(1.0, 0.0);
    EXPECT_EQ(Vector(2.0, 4.0), v);
    v *= 0.5;
    EXPECT_EQ(Vector(1.0, 2.0), v);
    v /= 4.0;
    EXPECT_EQ(Vector(0.25, 0.5), v);
    const Vector& itself = v;
    v -= itself;
    EXPECT_EQ(Vector(0.0, 0.0), v);
}

TEST(Vector, DivisionByZeroGivesInfinitiesAndNaN) {
    const double zero = 0.0;
    const Vector v = Vector(1.0, -2.0) / zero;
    EXPECT_EQ(kInfinity, v.x());
    EXPECT_EQ(-kInfinity, v.y());
    EXPECT_EQ(-kInfinity, (Vector(1.0, 0.0) / -zero).x());
    EXPECT_TRUE(std::isnan((Vector(1.0, 0.0) / zero).y()));
}

TEST(Vector, DivisionIsRoundedOnce) {
    // 5 / 3 is not 5 * (1 / 3) in doubles: 1.6666666666666667 and 1.6666666666666665.
    EXPECT_EQ(1.6666666666666667, (Vector(5.0, 0.0) / 3.0).x());
}

TEST(Vector, ComparisonIsExact) {
    EXPECT_EQ(Vector(1.0, 2.0), Vector(1.0, 2.0));
    EXPECT_NE(Vector(1.0, 2.0), Vector(std::nextafter(1.0, 2.0), 2.0));
    EXPECT_NE(Vector(1.0, 2.0), Vector(1.0, std::nextafter(2.0, 1.0)));
    EXPECT_EQ(Vector(0.0, 0.0), Vector(-0.0, -0.0));
    EXPECT_EQ(Vector(kInfinity, 0.0), Vector(kInfinity, 0.0));
    EXPECT_NE(Vector(kNaN, 0.0), Vector(kNaN, 0.0));
    const Vector nan(0.0, kNaN);
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(nan != nan);
}

TEST(Vector, LengthAndDistanceOfPythagoreanTriplesAreExact) {
    EXPECT_EQ(5.0, Vector(3.0, -4.0).length());
    EXPECT_EQ(13.0, Vector(-5.0, 12.0).length());
    EXPECT_EQ(13.0, Vector(1.0, 2.0).distance(Vector(6.0, 14.0)));
    EXPECT_EQ(0.0, Vector(7.0, 7.0).distance(Vector(7.0, 7.0)));
}

TEST(Vector, LengthOverflowsAndUnderflowsAsDocumented) {
    EXPECT_EQ(kInfinity, Vector(1e155, 0.0).length());
    EXPECT_EQ(0.0, Vector(1e-163, 1e-163).length());
    EXPECT_EQ(1e150, Vector(1e150, 0.0).length());
}

TEST(Vector, DistanceIsTheSameBothWays) {
    const Vector a(0.1, 1e7);
    const Vector b(-12.7, 1.0 / 3.0);
    EXPECT_EQ(a.distance(b), b.distance(a));
}

TEST(Vector, DotAndCrossProductsOfSmallIntegersAreExact) {
    const Vector a(2.0, 3.0);
    const Vector b(5.0, -7.0);
    EXPECT_EQ(-11.0, a * b);
    EXPECT_EQ(-29.0, a.cross(b));
    EXPECT_EQ(29.0, b.cross(a));
    EXPECT_EQ(0.0, a.cross(3.0 * a));
}

TEST(Vector, CrossOfAVectorWithItselfIsExactlyZero) {
    // A fused multiply-add would leave the rounding error of the other product here.
    for (double x : {0.1, 1.0 / 3.0, 1e10 / 7.0}) EXPECT_EQ(0.0, Vector(x, 0.7).cross(Vector(x, 0.7))) << x;
}

TEST(Vector, ProductsRoundEachTermByItself) {
    // (1 + 2^-30)^2 = 1 + 2^-29 + 2^-60, whose last term is lost in its own rounding and must not reappear.
    const double v = 1.0 + 0x1p-30;
    const double square = 1.0 + 0x1p-29;
    EXPECT_EQ(0.0, Vector(v, -1.0) * Vector(v, square));
    EXPECT_EQ(0.0, Vector(v, 1.0).cross(Vector(square, v)));
}

TEST(Vector, InnerOperationsGiveTheSameBits) {
    const Vector a(0.1, 1e7);
    const Vector b(-12.7, 1.0 / 3.0);
    EXPECT_EQ(gk_VectorOps::dot(a, b), a * b);
    EXPECT_EQ(gk_VectorOps::cross(a, b), a.cross(b));
    EXPECT_EQ(gk_VectorOps::length(a), a.length());
    EXPECT_EQ(gk_VectorOps::distance(a, b), a.distance(b));
}

TEST(Vector, AngleOfAxisVectorsIsAnExactMultipleOfAQuarterTurn) {
    for (double r : {1e-300, 0.1, 1.0, 3.0, 1e300}) {
        EXPECT_EQ(gkRadian(0.0), Vector(r, 0.0).angle()) << r;
        EXPECT_EQ(gkRadian(0.0), Vector(r, -0.0).angle()) << r;
        EXPECT_EQ(gkRadian(kHalfPi), Vector(0.0, r).angle()) << r;
        EXPECT_EQ(gkRadian(kHalfPi), Vector(-0.0, r).angle()) << r;
        EXPECT_EQ(gkRadian(kPi), Vector(-r, 0.0).angle()) << r;
        EXPECT_EQ(gkRadian(kPi), Vector(-r, -0.0).angle()) << r;
        EXPECT_EQ(gkRadian(-kHalfPi), Vector(0.0, -r).angle()) << r;
    }
}

TEST(Vector, AngleOfTheZeroVectorIsZeroAndOfNaNIsNaN) {
    EXPECT_EQ(gkRadian(0.0), Vector().angle());
    EXPECT_EQ(gkRadian(0.0), Vector(-0.0, -0.0).angle());
    EXPECT_TRUE(std::isnan(Vector(kNaN, 1.0).angle().toDouble()));
    EXPECT_TRUE(std::isnan(Vector(1.0, kNaN).angle().toDouble()));
}

TEST(Vector, FromLengthAndDirectionPointsThere) {
    EXPECT_EQ(Vector(2.5, 0.0), Vector(2.5, gkRadian(0.0)));
    const Vector up(2.0, gkRadian(kHalfPi));
    EXPECT_EQ(2.0, up.y());
    EXPECT_EQ(2.0 * 6.123233995736766e-17, up.x()); // the cosine of the double nearest to pi/2
    const Vector v(10.0, gkRadian(-2.2));
    EXPECT_NEAR(10.0, v.length(), 4e-15);
    EXPECT_NEAR(-2.2, v.angle().toDouble(), 1e-15);
    EXPECT_EQ(Vector(0.0, 0.0), Vector(0.0, gkRadian(1.0)));
}

TEST(Vector, UnitHasLengthOneAndOfTheZeroVectorIsNaN) {
    EXPECT_EQ(Vector(0.6, -0.8), Vector(3.0, -4.0).unit());
    EXPECT_EQ(Vector(0.0, 1.0), Vector(0.0, 7.3).unit());
    EXPECT_TRUE(std::isnan(Vector().unit().x()));
    EXPECT_TRUE(std::isnan(Vector().unit().y()));
}

TEST(Vector, RealEqNeedsBothCoordinatesWithinTheBound) {
    const Vector a(1.0, 2.0);
    EXPECT_TRUE(gfRealEq(a, Vector(1.25, 1.75), 0.25));
    EXPECT_FALSE(gfRealEq(a, Vector(std::nextafter(1.25, 2.0), 2.0), 0.25));
    EXPECT_FALSE(gfRealEq(a, Vector(1.0, std::nextafter(1.75, 0.0)), 0.25));
    EXPECT_FALSE(gfRealEq(a, Vector(1.0, kNaN), 1e300));
    EXPECT_TRUE(gfRealEq(Vector(kInfinity, 0.0), Vector(kInfinity, 0.0), 0.0));
}
