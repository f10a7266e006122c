// Fitting ellipses. Oracle: the published form of the method, by normal equations in long double.
#include "platform/core/fit/ellipse_fit.h"

#include <gtest/gtest.h>

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace {

using Points = std::vector<gkVector<2>>;
using Geom = gkEllipse::gkEllipseGeom;

constexpr double kPi = 3.141592653589793;
constexpr double kEps = std::numeric_limits<double>::epsilon();

gkEllipseFitParams params(unsigned long count = 0, double limit = HUGE_VAL, double angle = 0.0) {
    return gkEllipseFitParams(gkEllipseFitDefs::eDirectLeastSquares, gkRadian(angle), count, limit);
}

gkEllipseFitResults fit(const Points& points, const gkEllipseFitParams& how = params()) {
    gkEllipseFitResults results;
    gfEllipseFit(how, points, results);
    return results;
}

struct Shape {
    double x;
    double y;
    double r1;
    double r2;
    double rotation;
};

// `n` points from parameter `start` on, evenly over `angle`, the end left out.
Points pointsOf(const Shape& s, int n, double start = 0.3, double angle = 2 * kPi) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const long double t = start + static_cast<long double>(angle) * i / n;
        const long double u = s.r1 * std::cos(t);
        const long double v = s.r2 * std::sin(t);
        const long double c = std::cos(static_cast<long double>(s.rotation));
        const long double d = std::sin(static_cast<long double>(s.rotation));
        points.emplace_back(static_cast<double>(s.x + c * u - d * v), static_cast<double>(s.y + d * u + c * v));
    }
    return points;
}

// Largest difference of corresponding points, which says little of the angle of a circle, and rightly so.
void expectCurve(const Shape& expected, const gkEllipse& actual, double tolerance) {
    EXPECT_NEAR(expected.x, actual.center().x(), tolerance);
    EXPECT_NEAR(expected.y, actual.center().y(), tolerance);
    EXPECT_NEAR(std::max(expected.r1, expected.r2), actual.radii().x(), tolerance);
    EXPECT_NEAR(std::min(expected.r1, expected.r2), actual.radii().y(), tolerance);
    const double difference = expected.rotation - actual.rotation().toDouble();
    EXPECT_LE(std::fabs(std::sin(difference)) * std::fabs(expected.r1 - expected.r2), tolerance);
}

double rounding(const Shape& s) { return kEps * (std::fabs(s.x) + std::fabs(s.y) + std::max(s.r1, s.r2)); }

double between(std::mt19937_64& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53);
}

double root(const Points& points, const gkEllipse& ellipse) {
    double sum = 0.0;
    for (const gkVector<2>& p : points) sum += std::pow(ellipse.distToPoint(p), 2);
    return std::sqrt(sum / static_cast<double>(points.size()));
}

using Real = long double;
using Matrix3 = Eigen::Matrix<Real, 3, 3>;
using Vector3 = Eigen::Matrix<Real, 3, 1>;

// Halir and Flusser as printed, about the mean, without any scaling: xx, xy, yy, x, y, 1.
Eigen::Matrix<Real, 6, 1> publishedConic(const Points& points, const gkVector<2>& origin) {
    Matrix3 s1 = Matrix3::Zero();
    Matrix3 s2 = Matrix3::Zero();
    Matrix3 s3 = Matrix3::Zero();
    for (const gkVector<2>& p : points) {
        const Real x = static_cast<Real>(p.x()) - origin.x();
        const Real y = static_cast<Real>(p.y()) - origin.y();
        const Vector3 quadratic(x * x, x * y, y * y);
        const Vector3 linear(x, y, 1);
        s1 += quadratic * quadratic.transpose();
        s2 += quadratic * linear.transpose();
        s3 += linear * linear.transpose();
    }
    const Matrix3 t = -s3.inverse() * s2.transpose();
    const Matrix3 m = s1 + s2 * t;
    Matrix3 reduced;
    reduced << m.row(2) / 2, -m.row(1), m.row(0) / 2;
    const Eigen::EigenSolver<Matrix3> solver(reduced);
    for (int i = 0; i < 3; ++i) {
        const Vector3 a = solver.eigenvectors().col(i).real();
        if (4 * a(0) * a(2) - a(1) * a(1) <= 0) continue;
        Eigen::Matrix<Real, 6, 1> conic;
        conic << a, t * a;
        return conic;
    }
    return Eigen::Matrix<Real, 6, 1>::Zero();
}

Shape shapeOf(const Eigen::Matrix<Real, 6, 1>& q, const gkVector<2>& origin) {
    Eigen::Matrix<Real, 2, 2> m;
    m << q(0), q(1) / 2, q(1) / 2, q(2);
    const Eigen::Matrix<Real, 2, 1> linear(q(3), q(4));
    const Eigen::Matrix<Real, 2, 1> center = -0.5L * m.inverse() * linear;
    const Real level = -(q(5) + 0.5L * linear.dot(center));
    const Eigen::SelfAdjointEigenSolver<Eigen::Matrix<Real, 2, 2>> solver(m / level);
    const auto& first = solver.eigenvectors().col(0);
    return {static_cast<double>(origin.x() + center(0)), static_cast<double>(origin.y() + center(1)),
            static_cast<double>(1 / std::sqrt(solver.eigenvalues()(0))),
            static_cast<double>(1 / std::sqrt(solver.eigenvalues()(1))),
            static_cast<double>(std::atan2(first(1), first(0)))};
}

Points noisy(std::uint64_t seed) {
    std::mt19937_64 random(seed);
    const Shape s{between(random, -9, 9), between(random, -9, 9), between(random, 1, 4), between(random, 1, 4),
                  between(random, -4, 4)};
    Points points = pointsOf(s, 8 + static_cast<int>(random() % 200), 0.0, between(random, 3.0, 6.3));
    const double noise = std::pow(10.0, between(random, -6, -0.7));
    for (gkVector<2>& p : points) p += {between(random, -noise, noise), between(random, -noise, noise)};
    return points;
}

} // namespace

TEST(EllipseFit, GivesBackAnUprightEllipse) {
    const gkEllipseFitResults results = fit(pointsOf({3, -2, 5, 2, 0.0}, 12));
    expectCurve({3, -2, 5, 2, 0.0}, results.ellipse(), 20 * kEps);
    EXPECT_LE(results.error(), 10 * kEps);
}

TEST(EllipseFit, PutsTheLargerRadiusFirst) {
    const gkEllipse ellipse = fit(pointsOf({0, 0, 1, 3, 0.0}, 12)).ellipse();
    EXPECT_NEAR(3.0, ellipse.radii().x(), 20 * kEps);
    EXPECT_NEAR(1.0, ellipse.radii().y(), 20 * kEps);
    EXPECT_NEAR(kPi / 2, std::fabs(ellipse.rotation().toDouble()), 20 * kEps);
}

TEST(EllipseFit, GivesTheRotationWithinAHalfTurn) {
    for (int degree = -180; degree <= 360; degree += 5) {
        const double rotation = degree * kPi / 180.0;
        const gkEllipse ellipse = fit(pointsOf({1, 2, 4, 3, rotation}, 20)).ellipse();
        EXPECT_GT(ellipse.rotation().toDouble(), -kPi / 2);
        EXPECT_LE(ellipse.rotation().toDouble(), kPi / 2);
        EXPECT_NEAR(0.0, std::sin(ellipse.rotation().toDouble() - rotation), 100 * kEps);
    }
}

TEST(EllipseFit, SetsNoFlag) {
    const gkEllipse ellipse = fit(pointsOf({0, 0, 2, 1, 0.0}, 6)).ellipse();
    EXPECT_FALSE(ellipse.geom().isReversed);
    EXPECT_FALSE(ellipse.geom().isHole);
}

TEST(EllipseFit, OfACircleHasEqualRadiiAndTheAngleAsked) {
    for (const double radius : {1e-6, 1.0, 7.3, 1e6}) {
        const gkEllipse ellipse =
            fit(pointsOf({3, 4, radius, radius, 0.0}, 100), params(0, HUGE_VAL, 0.7)).ellipse();
        EXPECT_EQ(ellipse.radii().x(), ellipse.radii().y());
        EXPECT_EQ(gkRadian(0.7), ellipse.rotation());
    }
}

TEST(EllipseFit, OfANearCircleKeepsItsAxes) {
    const gkEllipse ellipse =
        fit(pointsOf({3, 4, 1.000001, 1.0, 0.4}, 100), params(0, HUGE_VAL, -1.0)).ellipse();
    EXPECT_NEAR(1.000001, ellipse.radii().x(), 100 * kEps);
    EXPECT_NEAR(1.0, ellipse.radii().y(), 100 * kEps);
    EXPECT_NEAR(0.4, ellipse.rotation().toDouble(), 1e-8);
}

TEST(EllipseFit, IsExactForAnyNumberOfPointsOffsetAndUnit) {
    for (const int n : {5, 6, 7, 100, 101, 10000})
        for (const double offset : {0.0, 1.0, 1e6, 1e8})
            for (const double unit : {1e-6, 1.0, 1e6})
                for (const double ratio : {1.0, 1.0 + 1e-9, 1.01, 2.0, 50.0}) {
                    SCOPED_TRACE(testing::Message() << n << " points, offset " << offset << ", unit " << unit
                                                    << ", ratio " << ratio);
                    const Shape s{offset * unit, -0.7 * offset * unit, ratio * unit, unit, 0.6};
                    const gkEllipseFitResults results = fit(pointsOf(s, n));
                    expectCurve(s, results.ellipse(), 40 * ratio * rounding(s));
                    EXPECT_LE(results.error(), 8 * rounding(s));
                }
}

TEST(EllipseFit, IsExactForAnyNumberOfPointsOfACircle) {
    for (int n = 5; n <= 300; ++n) {
        SCOPED_TRACE(n);
        const Shape s{100, 200, 50, 50, 0.0};
        const gkEllipseFitResults results = fit(pointsOf(s, n));
        expectCurve(s, results.ellipse(), 20 * rounding(s));
        EXPECT_LE(results.error(), 4 * rounding(s));
    }
}

TEST(EllipseFit, IsExactAtTheEndsOfTheRange) {
    for (const double unit : {0x1p-1000, 0x1p-500, 0x1p500, 0x1p1000}) {
        const Shape s{3 * unit, -unit, 2 * unit, unit, 0.6};
        expectCurve(s, fit(pointsOf(s, 20)).ellipse(), 20 * rounding(s));
    }
}

TEST(EllipseFit, OfAnArcIsAsGoodAsItsPoints) {
    for (const double angle : {3.0, 1.0, 0.3, 0.1, 0.03, 0.01})
        for (const int n : {5, 20, 1000})
            for (const double ratio : {1.0, 1.5}) {
                SCOPED_TRACE(testing::Message() << n << " points, angle " << angle << ", ratio " << ratio);
                const Shape s{0, 0, ratio, 1, 0.2};
                const gkEllipseFitResults results = fit(pointsOf(s, n, 1.0, angle));
                EXPECT_LE(results.error(), 4 * rounding(s));
                const double tolerance = 20 * std::max(1.0, std::pow(4.0 / angle, 4)) * rounding(s);
                if (tolerance < 0.1) expectCurve(s, results.ellipse(), tolerance);
            }
}

TEST(EllipseFit, OfATinyArcPassesThroughItsPoints) {
    for (const double angle : {1e-3, 1e-4, 1e-5, 1e-6}) {
        SCOPED_TRACE(angle);
        EXPECT_LE(fit(pointsOf({0, 0, 1, 1, 0.0}, 100, 1.0, angle)).error(), 4 * kEps);
    }
}

TEST(EllipseFit, OfAThinEllipseIsExact) {
    for (const double ratio : {1e3, 1e6, 1e9}) {
        SCOPED_TRACE(ratio);
        const Shape s{0, 0, ratio, 1, 0.0};
        const gkEllipse ellipse = fit(pointsOf(s, 50)).ellipse();
        EXPECT_NEAR(1.0, ellipse.radii().x() / ratio, 40 * kEps);
        EXPECT_NEAR(1.0, ellipse.radii().y(), 40 * kEps);
    }
}

TEST(EllipseFit, OfNoisyPointsIsThePublishedOptimum) {
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        const Points points = noisy(seed);
        const Shape expected = shapeOf(publishedConic(points, points[0]), points[0]);
        expectCurve(expected, fit(points).ellipse(), 1e-10 * (expected.r1 + 10));
    }
}

TEST(EllipseFit, FollowsAffineMaps) {
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        const Points points = noisy(seed);
        Points mapped;
        for (const gkVector<2>& p : points)
            mapped.emplace_back(2 * p.x() + 0.5 * p.y() + 3, 0.25 * p.y() - p.x());
        const gkEllipse plain = fit(points).ellipse();
        const gkEllipse image = fit(mapped).ellipse();
        for (int i = 0; i < 16; ++i) {
            const gkPoint p = plain.point(gkRadian(i * kPi / 8));
            EXPECT_LE(image.distToPoint({2 * p.x() + 0.5 * p.y() + 3, 0.25 * p.y() - p.x()}),
                      1e-11 * (1 + plain.radii().x()));
        }
    }
}

TEST(EllipseFit, ErrorIsTheRootMeanSquareOfTheDistances) {
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        SCOPED_TRACE(seed);
        const Points points = noisy(seed);
        const gkEllipseFitResults results = fit(points);
        EXPECT_NEAR(root(points, results.ellipse()), results.error(), 100 * kEps);
    }
}

TEST(EllipseFit, CountsRepeatedPoints) {
    Points points = noisy(3);
    const Points twice = [&] {
        Points all = points;
        all.insert(all.end(), points.begin(), points.end());
        return all;
    }();
    const gkEllipse once = fit(points).ellipse();
    expectCurve(
        {once.center().x(), once.center().y(), once.radii().x(), once.radii().y(), once.rotation().toDouble()},
        fit(twice).ellipse(), 1e-11);
    points.insert(points.end(), 50, points[0]);
    EXPECT_LT(fit(points).ellipse().distToPoint(points[0]), once.distToPoint(points[0]));
}

TEST(EllipseFit, LeavesOutTheWorstPoints) {
    const Shape s{1, 2, 5, 3, 0.4};
    Points points = pointsOf(s, 40);
    points.insert(points.begin() + 7, gkVector<2>(20, 2));
    points.insert(points.begin() + 21, gkVector<2>(1, 12));
    const gkEllipseFitResults results = fit(points, params(2));
    expectCurve(s, results.ellipse(), 20 * rounding(s));
    EXPECT_LE(results.error(), 8 * rounding(s));
    EXPECT_GT(fit(points, params(1)).error(), 0.01);
}

TEST(EllipseFit, RefusesAnErrorAboveTheLimit) {
    const Points points = noisy(11);
    const double error = fit(points).error();
    EXPECT_NO_THROW(fit(points, params(0, error)));
    EXPECT_THROW(fit(points, params(0, std::nextafter(error, 0.0))), gkEllipseFitDefs::LimitExceeded);
}

TEST(EllipseFit, RefusesTooFewDifferentPoints) {
    EXPECT_THROW(fit({}), gkEllipseFitDefs::TooFewPoints);
    EXPECT_THROW(fit(Points(100, {3, 4})), gkEllipseFitDefs::TooFewPoints);
    Points points = pointsOf({0, 0, 2, 1, 0}, 4);
    points.insert(points.end(), points.begin(), points.end());
    EXPECT_THROW(fit(points), gkEllipseFitDefs::TooFewPoints);
    EXPECT_THROW(fit(pointsOf({0, 0, 2, 1, 0}, 6), params(2)), gkEllipseFitDefs::TooFewPoints);
    EXPECT_THROW(fit(pointsOf({0, 0, 2, 1, 0}, 6), params(4000000000ul)), gkEllipseFitDefs::TooFewPoints);
}

TEST(EllipseFit, RefusesCollinearPoints) {
    for (const double offset : {0.0, 0.1, 1e6}) {
        Points level;
        Points slanted;
        for (int i = 0; i < 50; ++i) {
            level.emplace_back(i, offset);
            slanted.emplace_back(offset + 0.1 * i, 0.3 * (offset + 0.1 * i) + 0.7);
        }
        EXPECT_THROW(fit(level), gkEllipseFitDefs::Degenerate);
        EXPECT_THROW(fit(slanted), gkEllipseFitDefs::Degenerate);
    }
}

// Four on a line and one beside it: the only conic through them is two lines. Rounding may leave a very thin
// ellipse of it; of these it does not.
TEST(EllipseFit, RefusesPointsOnTwoLines) {
    EXPECT_THROW(fit({{-1, 1}, {-2, 0}, {2, -2}, {0, 0}, {1, -1}}), gkEllipseFitDefs::Degenerate);
    EXPECT_THROW(fit({{0, 1}, {0, 2}, {0, 0}, {0, -1}, {-2, -3}}), gkEllipseFitDefs::Degenerate);
    EXPECT_THROW(fit({{0, -1}, {0, 0}, {0, 1}, {1, 2}, {0, -2}}), gkEllipseFitDefs::Degenerate);
}

TEST(EllipseFit, RefusesPointsThatAreNotFinite) {
    Points points = pointsOf({0, 0, 2, 1, 0}, 9);
    points[4].y(std::numeric_limits<double>::quiet_NaN());
    EXPECT_THROW(fit(points), gkEllipseFitDefs::NotFinite);
    points[4].y(HUGE_VAL);
    EXPECT_THROW(fit(points), gkEllipseFitDefs::NotFinite);
}

TEST(EllipseFit, RefusesUnknownModesAndLimits) {
    const Points points = pointsOf({0, 0, 2, 1, 0}, 9);
    const auto mode = static_cast<gkEllipseFitDefs::fit_mode>(1);
    EXPECT_THROW(fit(points, gkEllipseFitParams(mode, gkRadian(0.0), 0, HUGE_VAL)),
                 gkEllipseFitDefs::BadParams);
    EXPECT_THROW(fit(points, params(0, std::nan(""))), gkEllipseFitDefs::BadParams);
}

TEST(EllipseFit, LeavesTheResultsAloneWhenItThrows) {
    const gkEllipseFitResults before(gkEllipse(Geom({1, 2}, {3, 4}, gkRadian(5.0))), 6.0);
    gkEllipseFitResults results = before;
    EXPECT_ANY_THROW(gfEllipseFit(params(), {}, results));
    EXPECT_ANY_THROW(gfEllipseFit(params(), {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}}, results));
    EXPECT_ANY_THROW(gfEllipseFit(params(0, 0.0), noisy(5), results));
    EXPECT_EQ(before.ellipse(), results.ellipse());
    EXPECT_EQ(before.error(), results.error());
}

// A conic through the points exists but is no ellipse: the best ellipse is found or the points are refused.
TEST(EllipseFit, OfPointsOnOtherConicsIsFiniteOrRefused) {
    Points parabola;
    Points hyperbola;
    Points cross;
    for (int i = -5; i <= 5; ++i) {
        parabola.emplace_back(i, 0.5 * i * i);
        hyperbola.emplace_back(i, std::sqrt(1.0 + i * i));
        hyperbola.emplace_back(i, -std::sqrt(1.0 + i * i));
        cross.emplace_back(i, i);
        cross.emplace_back(i, -i);
    }
    for (const Points& points : {parabola, hyperbola, cross, Points{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}}}) {
        try {
            const gkEllipseFitResults results = fit(points);
            EXPECT_GT(results.ellipse().radii().y(), 0.0);
            EXPECT_TRUE(std::isfinite(results.ellipse().radii().x()));
            EXPECT_TRUE(std::isfinite(results.error()));
        } catch (const gkEllipseFitDefs::Degenerate&) {
        }
    }
}

TEST(EllipseFitErrors, HaveTheirNumbers) {
    EXPECT_EQ(0x10000401, gkEllipseFitDefs::TooFewPoints(L"").errorNumber());
    EXPECT_EQ(0x10000402, gkEllipseFitDefs::Degenerate(L"").errorNumber());
    EXPECT_EQ(0x10000403, gkEllipseFitDefs::NotFinite(L"").errorNumber());
    EXPECT_EQ(0x10000404, gkEllipseFitDefs::LimitExceeded(L"").errorNumber());
    EXPECT_EQ(0x10000405, gkEllipseFitDefs::BadParams(L"").errorNumber());
}

TEST(EllipseFitErrors, RethrowThemselvesByValue) {
    gkException* error = new gkEllipseFitDefs::Degenerate(L"flat");
    EXPECT_THROW(error->suicideAndRethrow(), gkEllipseFitDefs::Degenerate);
}
