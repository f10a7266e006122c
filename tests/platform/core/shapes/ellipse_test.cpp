// Ellipses. Oracle for distances: a dense walk along the curve, refined by golden section.
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/ellipse_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace {

using Geom = gkEllipse::gkEllipseGeom;

constexpr double kPi = 3.141592653589793;
constexpr double kEps = std::numeric_limits<double>::epsilon();

gkEllipse upright(double r1, double r2) { return gkEllipse(Geom({0, 0}, {r1, r2}, gkRadian(0.0))); }

double between(std::mt19937_64& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53);
}

long double distanceAt(double r1, double r2, double x, double y, long double t) {
    return std::hypot(r1 * std::cos(t) - x, r2 * std::sin(t) - y);
}

// Distance from (x, y) to the upright ellipse, in long double.
long double walkedDistance(double r1, double r2, double x, double y) {
    constexpr int kSteps = 2000;
    const long double step = 2.0L * kPi / kSteps;
    int best = 0;
    for (int i = 1; i < kSteps; ++i)
        if (distanceAt(r1, r2, x, y, step * i) < distanceAt(r1, r2, x, y, step * best)) best = i;
    long double low = step * (best - 1);
    long double high = step * (best + 1);
    for (int i = 0; i < 100; ++i) {
        const long double a = low + 0.382L * (high - low);
        const long double b = high - 0.382L * (high - low);
        (distanceAt(r1, r2, x, y, a) < distanceAt(r1, r2, x, y, b) ? high : low) =
            distanceAt(r1, r2, x, y, a) < distanceAt(r1, r2, x, y, b) ? b : a;
    }
    return distanceAt(r1, r2, x, y, low);
}

} // namespace

TEST(Ellipse, IsAllZeroByDefault) {
    EXPECT_EQ(gkPoint(0, 0), gkEllipse().center());
    EXPECT_EQ(gkVector<2>(0, 0), gkEllipse().radii());
    EXPECT_EQ(gkRadian(0.0), gkEllipse().rotation());
    EXPECT_FALSE(gkEllipse().geom().isReversed);
    EXPECT_FALSE(gkEllipse().geom().isHole);
}

TEST(Ellipse, KeepsItsRecord) {
    const gkEllipse ellipse(Geom({1, 2}, {3, 4}, gkRadian(9.0), true, false));
    EXPECT_EQ(gkPoint(1, 2), ellipse.center());
    EXPECT_EQ(gkVector<2>(3, 4), ellipse.radii());
    EXPECT_EQ(gkRadian(9.0), ellipse.rotation());
    EXPECT_TRUE(ellipse.geom().isReversed);
    EXPECT_FALSE(ellipse.geom().isHole);
}

TEST(Ellipse, ComparesTheWholeRecord) {
    const Geom geom({1, 2}, {3, 4}, gkRadian(0.5));
    EXPECT_TRUE(gkEllipse(geom) == gkEllipse(geom));
    EXPECT_TRUE(gkEllipse(geom) != gkEllipse(Geom({1, 2}, {3, 4}, gkRadian(0.5), true)));
    EXPECT_TRUE(gkEllipse(geom) != gkEllipse(Geom({1, 2}, {3, 4}, gkRadian(0.5), false, true)));
    EXPECT_TRUE(gkEllipse(geom) != gkEllipse(Geom({1, 2}, {4, 3}, gkRadian(0.5))));
    EXPECT_TRUE(gkEllipse(geom) != gkEllipse(Geom({1, 2}, {3, 4}, gkRadian(0.25))));
    EXPECT_TRUE(gkEllipse(geom) != gkEllipse(Geom({0, 2}, {3, 4}, gkRadian(0.5))));
}

TEST(Ellipse, AreaIsPiTimesBothRadii) {
    EXPECT_DOUBLE_EQ(37.699111843077517, upright(3, 4).area());
    EXPECT_DOUBLE_EQ(37.699111843077517, upright(-3, 4).area());
}

TEST(Ellipse, ParameterZeroIsTheEndOfTheFirstRadius) {
    EXPECT_EQ(gkPoint(3, 0), upright(3, 2).point(gkRadian(0.0)));
    const gkPoint p = gkEllipse(Geom({1, 2}, {3, 2}, gkRadian(kPi / 2))).point(gkRadian(0.0));
    EXPECT_NEAR(1.0, p.x(), 4 * kEps);
    EXPECT_NEAR(5.0, p.y(), 4 * kEps);
}

TEST(Ellipse, ParameterRunsCounterClockwiseUnlessReversed) {
    const gkPoint p = upright(3, 2).point(gkRadian(kPi / 2));
    EXPECT_NEAR(0.0, p.x(), 4 * kEps);
    EXPECT_NEAR(2.0, p.y(), 4 * kEps);
    EXPECT_NEAR(-2.0, gkEllipse(Geom({0, 0}, {3, 2}, gkRadian(0.0), true)).point(gkRadian(kPi / 2)).y(),
                4 * kEps);
}

TEST(Ellipse, ContainsItsInsideAndItsVertices) {
    const gkEllipse ellipse = upright(3, 2);
    EXPECT_TRUE(ellipse.within({0, 0}));
    EXPECT_TRUE(ellipse.within({3, 0}));
    EXPECT_TRUE(ellipse.within({0, -2}));
    EXPECT_FALSE(ellipse.within({std::nextafter(3.0, 4.0), 0}));
    EXPECT_FALSE(ellipse.within({2.9, 1.9}));
}

TEST(Ellipse, RotationTurnsTheFirstRadius) {
    const gkEllipse ellipse(Geom({10, 20}, {3, 1}, gkRadian(kPi / 4)));
    EXPECT_TRUE(ellipse.within({12, 22}));
    EXPECT_FALSE(ellipse.within({12, 18}));
}

TEST(Ellipse, OfAHoleContainsItsOutsideAndItsVertices) {
    const gkEllipse hole(Geom({0, 0}, {3, 2}, gkRadian(0.0), false, true));
    EXPECT_FALSE(hole.within({0, 0}));
    EXPECT_TRUE(hole.within({3, 0}));
    EXPECT_TRUE(hole.within({5, 0}));
    EXPECT_EQ(3.0, gkEllipse(Geom({0, 0}, {3, 3}, gkRadian(0.0), false, true)).distToPoint({0, 0}));
    EXPECT_TRUE(gkEllipse(Geom({0, 0}, {0, 0}, gkRadian(0.0), false, true)).within({0, 0}));
    const gkEllipse thin(Geom({0, 0}, {3, 0}, gkRadian(0.0), false, true));
    EXPECT_TRUE(thin.within({1, 0}));
    EXPECT_TRUE(thin.within({1, 1}));
    EXPECT_FALSE(thin.within({std::numeric_limits<double>::quiet_NaN(), 0}));
}

TEST(Ellipse, OfZeroRadiiContainsOnlyItself) {
    EXPECT_TRUE(upright(3, 0).within({2, 0}));
    EXPECT_FALSE(upright(3, 0).within({2, 1e-300}));
    EXPECT_FALSE(upright(3, 0).within({4, 0}));
    EXPECT_TRUE(gkEllipse().within({0, 0}));
    EXPECT_FALSE(gkEllipse().within({0, 1}));
}

TEST(Ellipse, DistanceOnTheAxesIsThatToAVertexOrToTheSide) {
    const gkEllipse ellipse = upright(5, 3);
    EXPECT_EQ(2.0, ellipse.distToPoint({7, 0}));
    EXPECT_EQ(2.0, ellipse.distToPoint({-7, 0}));
    EXPECT_EQ(4.0, ellipse.distToPoint({0, 7}));
    EXPECT_EQ(1.0, ellipse.distToPoint({0, -2}));
    EXPECT_EQ(3.0, ellipse.distToPoint({0, 0}));
    EXPECT_EQ(0.0, ellipse.distToPoint({5, 0}));
    EXPECT_EQ(1.0, ellipse.distToPoint({4, 0})); // beyond the centre of curvature at 16/5
    EXPECT_DOUBLE_EQ(3.0 * std::sqrt(1.0 - 1.0 / 16.0), ellipse.distToPoint({1, 0}));
}

TEST(Ellipse, DistanceToACircleIsExactWhereRootsAre) {
    EXPECT_EQ(2.0, gkEllipse(Geom({1, 1}, {3, 3}, gkRadian(0.0))).distToPoint({4, 5}));
    EXPECT_EQ(3.0, upright(3, 3).distToPoint({0, 0}));
}

TEST(Ellipse, DistanceToDegenerateEllipsesIsThatToASegmentOrAPoint) {
    EXPECT_EQ(5.0, gkEllipse().distToPoint({3, 4}));
    EXPECT_EQ(0.0, gkEllipse().distToPoint({0, 0}));
    EXPECT_EQ(4.0, upright(3, 0).distToPoint({1, 4}));
    EXPECT_EQ(5.0, upright(3, 0).distToPoint({6, -4}));
    EXPECT_EQ(5.0, upright(0, 3).distToPoint({4, 6}));
    EXPECT_EQ(0.0, upright(3, 0).distToPoint({-2, 0}));
}

TEST(Ellipse, DistanceDoesNotDependOnTheSignOfTheRadii) {
    EXPECT_EQ(upright(5, 3).distToPoint({2, 4}), upright(-5, 3).distToPoint({2, 4}));
    EXPECT_EQ(upright(5, 3).distToPoint({2, 4}), upright(5, -3).distToPoint({2, 4}));
}

TEST(Ellipse, DistanceIsScaledExactlyByPowersOfTwo) {
    const double plain = upright(5, 3).distToPoint({2, 4});
    for (const int power : {-1000, -100, 3, 100, 1000}) {
        const double s = std::ldexp(1.0, power);
        EXPECT_EQ(plain * s, upright(5 * s, 3 * s).distToPoint({2 * s, 4 * s}));
    }
}

TEST(Ellipse, DistanceIsNaNUnlessEverythingIsFinite) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(upright(nan, 3).distToPoint({1, 1})));
    EXPECT_TRUE(std::isnan(upright(5, nan).distToPoint({1, 1})));
    EXPECT_TRUE(std::isnan(upright(5, 3).distToPoint({nan, 1})));
    EXPECT_TRUE(std::isnan(upright(HUGE_VAL, 3).distToPoint({1, 1})));
    EXPECT_TRUE(std::isnan(upright(5, 3).distToPoint({1, HUGE_VAL})));
    EXPECT_FALSE(upright(nan, 3).within({0, 1}));
}

TEST(Ellipse, DistanceOfItsOwnPointsIsRounding) {
    for (std::uint64_t seed = 1; seed <= 2000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const double r1 = between(random, 0, 10);
        const double r2 = r1 * std::ldexp(1.0, -static_cast<int>(random() % 60)) * between(random, 0.5, 1);
        const gkEllipse ellipse(Geom({between(random, -5, 5), 3}, {r1, r2}, gkRadian(between(random, -9, 9))));
        EXPECT_LE(ellipse.distToPoint(ellipse.point(gkRadian(between(random, -9, 9)))), 8 * kEps * (r1 + 5));
    }
}

TEST(Ellipse, DistanceEqualsAWalkAlongTheCurve) {
    for (std::uint64_t seed = 1; seed <= 1000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const double r1 = between(random, 0, 2);
        const double r2 = random() % 2 == 0 ? between(random, 0, 2) : r1 * between(random, 0.999, 1.001);
        const double x = between(random, -2, 2);
        const double y =
            random() % 4 == 0 ? std::ldexp(1.0, -static_cast<int>(random() % 300)) : between(random, -2, 2);
        const double expected = static_cast<double>(walkedDistance(r1, r2, x, y));
        EXPECT_NEAR(expected, upright(r1, r2).distToPoint({x, y}), 1e-13);
    }
}

TEST(Ellipse, DistanceInsideTheEvoluteNearTheAxisIsContinuous) {
    const gkEllipse ellipse = upright(5, 3);
    for (double x = 0.0; x < 5.0; x += 0.125)
        for (const double y : {1e-10, 1e-20, 1e-80, 1e-300})
            EXPECT_NEAR(ellipse.distToPoint({x, 0}), ellipse.distToPoint({x, y}), y + 8 * kEps);
}

TEST(Ellipse, DistanceKnowsNoRotationButThatOfThePoint) {
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const double turn = between(random, -7, 7);
        const double x = between(random, -9, 9);
        const double y = between(random, -9, 9);
        const gkVector<2> moved(100 + x * std::cos(turn) - y * std::sin(turn),
                                x * std::sin(turn) + y * std::cos(turn));
        EXPECT_NEAR(upright(5, 3).distToPoint({x, y}),
                    gkEllipse(Geom({100, 0}, {5, 3}, gkRadian(turn))).distToPoint(moved), 200 * kEps);
    }
}

// Thin and round ones; points on the curve, near it, in the middle, on the axes and far away.
TEST(Ellipse, SumsOfSquaresAreThoseOfTheDistances) {
    std::mt19937_64 random(8);
    const auto between = [&](double low, double high) {
        return low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53);
    };
    for (int round = 0; round < 20000; ++round) {
        const double big = std::pow(10.0, between(-3.0, 3.0));
        const double ratio = random() % 4 == 0 ? 1.0 : std::pow(10.0, between(-4.0, 0.0));
        const gkVector<2> radii =
            random() % 2 == 0 ? gkVector<2>(big, big * ratio) : gkVector<2>(big * ratio, big);
        const gkEllipse ellipse({gkPoint(between(-9.0, 9.0), 1.0), radii, gkRadian(between(-4.0, 4.0))});
        std::vector<gkVector<2>> points;
        double expected = 0.0;
        double reach = big;
        for (std::size_t i = 0; i < 1 + static_cast<std::size_t>(round) % 9; ++i) {
            const double size = random() % 5 == 0 ? 0.0 : std::pow(10.0, between(-18.0, 2.0)) * big;
            const gkVector<2> on = ellipse.point(gkRadian(between(-4.0, 4.0))).vector();
            const gkVector<2> from = random() % 4 == 0 ? ellipse.center().vector() : on;
            points.push_back(from + gkVector<2>(size, gkRadian(between(-4.0, 4.0))));
            const double distance = ellipse.distToPoint(points.back());
            expected += distance * distance;
            reach = std::max(reach, big + size);
        }
        const double sum = gk_EllipseFrame(ellipse.geom()).sumOfSquares(points);
        ASSERT_NEAR(std::sqrt(expected), std::sqrt(sum), 1e-14 * (reach + 20.0)) << "round " << round;
    }
}
