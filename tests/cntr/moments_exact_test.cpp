// Area, centroid and second moments against exact rationals, within bounds that are derived here.
//
// u = 2^-53 throughout: one operation on doubles has a relative error of at most u. Bounds are to first order
// in u; each constant has room for the terms of second order.
#include "cntr/moments.h"
#include "tests/gen/each.h"
#include "tests/oracle/exact_moments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using gen::Points;
using oracle::errorOf;
using oracle::ExactMoments;

constexpr double kU = 0x1p-53;

double number(const oracle::Rational& value) { return value.convert_to<double>(); }

// The shape at a place: offsets eat the digits of the coordinates.
Points moved(Points points, const gkVector<2>& offset) {
    for (gkVector<2>& p : points) p += offset;
    return points;
}

const double kOffsets[] = {0.0, 1e2, 1e4, 1e6};

// Stars, lattice and random polygons, counter-clockwise, with an area far from the tolerances; check(points,
// exact).
template <class Check> void eachPolygon(std::uint64_t seeds, Check check) {
    const gen::Kind kinds[] = {{"star", &gen::star, true},
                               {"latticeOutline", &gen::latticeOutline, true},
                               {"latticePoints", &gen::latticePoints, true},
                               {"subdivided", &gen::subdivided, true},
                               {"randomPolygon", &gen::randomPolygon, true}};
    for (const gen::Kind& kind : kinds) {
        for (std::uint64_t seed = 1; seed <= gen::rounds(seeds); ++seed) {
            for (const double offset : kOffsets) {
                SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed) + ", at " +
                             std::to_string(offset));
                Points points = moved(gen::shape(kind, seed), {offset, -0.7 * offset});
                if (oracle::exactSignedArea(points) < 0) std::reverse(points.begin(), points.end());
                const double area = number(oracle::exactSignedArea(points));
                if (area < 0.5) continue;
                check(points, oracle::exactMoments(points));
                if (::testing::Test::HasFailure()) return;
            }
        }
    }
}

double greatestCoordinate(const Points& points) {
    double greatest = 0.0;
    for (const gkVector<2>& p : points) greatest = std::max({greatest, std::fabs(p.x()), std::fabs(p.y())});
    return greatest;
}

// Sum over the edges of the largest product of coordinates, times `weigh` of the edge's largest |x| and |y|.
template <class Weigh> double overEdges(const Points& points, Weigh weigh) {
    double sum = 0.0;
    for (const gkLineSeg& edge : oracle::segments(points, true)) {
        const double x = std::max(std::fabs(edge.p1().x()), std::fabs(edge.p2().x()));
        const double y = std::max(std::fabs(edge.p1().y()), std::fabs(edge.p2().y()));
        sum += x * y * weigh(x, y);
    }
    return sum;
}

// Every edge makes a proper triangle with the origin, or none at all: its doubled area is exactly 0 or above
// rounding.
bool edgesClearOfTheOrigin(const Points& points) {
    for (const gkLineSeg& edge : oracle::segments(points, true)) {
        const double x = std::max(std::fabs(edge.p1().x()), std::fabs(edge.p2().x()));
        const double y = std::max(std::fabs(edge.p1().y()), std::fabs(edge.p2().y()));
        const double w = std::fabs(edge.p1().cross(edge.p2()));
        if (w > 0.0 && w < 112.0 * kU * x * y) return false;
    }
    return true;
}

// What the bounds of the second moments are made of: the fan about the hub that the library uses.
struct Fan {
    double reach = 0.0;      // greatest distance of a vertex from the hub
    double coordinate = 0.0; // greatest coordinate
    double excess = 0.0;     // sum of the triangles' areas without sign, over the polygon's area
    bool clear = true;       // every apex falls within its base, not just beside it
};

// The apex falls within q1-q2 by the slack of the base search, but not in truth.
bool withinBySlackOnly(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& apex) {
    const gkLineSeg base(q1, q2);
    const double t = ((apex - q1) * (q2 - q1)) / ((q2 - q1) * (q2 - q1));
    const bool taken = base.line().distToPoint(apex) >= base.distToPoint(apex) - 1e-10;
    return taken && (t < -1e-12 || t > 1.0 + 1e-12);
}

Fan fanOf(const Points& points, double area) {
    Fan fan;
    fan.coordinate = greatestCoordinate(points);
    const gkVector<2> hub = gnContour::centerOfMass(points);
    for (const gkLineSeg& edge : oracle::segments(points, true)) {
        const gkVector<2>& p = edge.p1();
        fan.reach = std::max(fan.reach, p.distance(hub));
        fan.excess += std::fabs((p - hub).cross(edge.p2() - hub)) / 2.0 / area;
        if (withinBySlackOnly(hub, p, edge.p2()) || withinBySlackOnly(p, edge.p2(), hub) ||
            withinBySlackOnly(edge.p2(), hub, p)) {
            fan.clear = false;
        }
    }
    return fan;
}

} // namespace

TEST(ExactMoments, OfTheUnitSquareAreThoseOfMathematics) {
    const ExactMoments m = oracle::exactMoments({{1, 2}, {2, 2}, {2, 3}, {1, 3}});
    EXPECT_EQ(1, m.area);
    EXPECT_EQ(oracle::Rational(3, 2), m.centroid.x);
    EXPECT_EQ(oracle::Rational(5, 2), m.centroid.y);
    EXPECT_EQ(oracle::Rational(1, 12), m.xx);
    EXPECT_EQ(oracle::Rational(1, 12), m.yy);
    EXPECT_EQ(0, m.xy);
    EXPECT_EQ(oracle::Rational(oracle::Rational(3602879701896397) / 36028797018963968), oracle::Rational(0.1));
}

// With S half the sum of |x_i y_j| + |y_i x_j|: a cross product has two rounded products and a rounded
// difference, an error of at most 2 u of its two terms; n terms are added in n - 1 roundings. Together (n + 1)
// u of 2 S, halved; the bound (n + 2) u S holds the second order as well.
TEST(ExactMoments, AreaIsWithinItsStatedBound) {
    std::size_t checked = 0;
    gen::eachShape(100, [&](const Points& points, std::uint64_t) {
        double s = 0.0;
        const double largest = greatestCoordinate(points);
        // Below and above, products lose digits by underflow or become infinite.
        if (points.empty() || !(largest > 1e-100 && largest < 1e152)) return;
        for (const gkLineSeg& edge : oracle::segments(points, true)) {
            s += std::fabs(edge.p1().x() * edge.p2().y()) + std::fabs(edge.p1().y() * edge.p2().x());
        }
        for (const gkVector<2>& p : points) {
            if (!std::isfinite(p.x()) || !std::isfinite(p.y())) return;
            if ((p.x() != 0.0 && std::fabs(p.x()) < 1e-100) || (p.y() != 0.0 && std::fabs(p.y()) < 1e-100))
                return;
        }
        const oracle::Rational area = oracle::exactSignedArea(points);
        const double bound = (static_cast<double>(points.size()) + 2.0) * kU * (s / 2.0);
        EXPECT_LE(errorOf(gf_Area(points), area < 0 ? oracle::Rational(-area) : area), bound);
        ++checked;
    });
    EXPECT_GT(checked, gen::rounds(1500));
}

// Per edge, with X and Y its largest |x| and |y|: the doubled area w is off by at most 4 u X Y. The medians'
// crossing is d t with t = 2/3, whose numerator (of size w / 2) is off by 7 u X Y and whose denominator (3 w /
// 4) by 10.5 u X Y, so that t is off by 34 u X Y / |w| of itself when |w| >= 112 u X Y. Thus w t d_x is off by
// 30 u X^2 Y; n such terms, each at most 4/3 X^2 Y, are added in n - 1 roundings. The sum of the w, at most 2 X
// Y each, is off by (4 + 2 n) u of the X Y, and the quotient inherits both. Edges within 1e-15 of a line
// through the origin are left out, which adds 1e-15 (X + |C|).
TEST(ExactMoments, CentroidIsWithinItsBound) {
    std::size_t checked = 0;
    std::size_t left = 0;
    eachPolygon(30, [&](const Points& points, const ExactMoments& exact) {
        if (!edgesClearOfTheOrigin(points)) {
            ++left;
            return;
        }
        ++checked;
        const double n = static_cast<double>(points.size());
        const double doubled = 2.0 * number(exact.area);
        const double cx = std::fabs(number(exact.centroid.x));
        const double cy = std::fabs(number(exact.centroid.y));
        const double roundX =
            (2.0 * n + 40.0) * kU * overEdges(points, [&](double x, double) { return x + cx; });
        const double roundY =
            (2.0 * n + 40.0) * kU * overEdges(points, [&](double, double y) { return y + cy; });
        const double skipped = 1e-15 * n * 2.0 * greatestCoordinate(points);
        const gkVector<2> c = gnContour::centerOfMass(points);
        EXPECT_LE(errorOf(c.x(), exact.centroid.x), (roundX + skipped) / doubled + kU * cx);
        EXPECT_LE(errorOf(c.y(), exact.centroid.y), (roundY + skipped) / doubled + kU * cy);
    });
    EXPECT_GT(checked, gen::rounds(400));
    EXPECT_LT(left, checked / 4);
}

// With R the reach of the fan, L the largest coordinate: a foot of a perpendicular is a point of the plane,
// rounded to u L, and lengths from it are off by e = u (L + 10 R). A triangle's area is off by some R e, its
// moments by some R^3 e, its centre by e; the sums of n pieces keep that, times the excess of the unsigned
// areas over the area each time a reversed piece is taken away from a sum. The origin enters only through L,
// not through its square: the fan's own centre is far better than the hub when the polygon is far away. 64
// stands for "some" and is mostly a hundred times too much.
TEST(ExactMoments, SecondMomentsAreWithinTheirBound) {
    std::size_t checked = 0;
    std::size_t left = 0;
    eachPolygon(30, [&](const Points& points, const ExactMoments& exact) {
        const double area = number(exact.area);
        const Fan fan = fanOf(points, area);
        if (!fan.clear) {
            ++left;
            return;
        }
        ++checked;
        const gk_InertiaData data = gf_InertiaDataPolygon(points);
        const double unit = static_cast<double>(points.size()) * kU * fan.excess * fan.excess *
                            (fan.coordinate + 10.0 * fan.reach);
        const double r = fan.reach;
        EXPECT_LE(errorOf(data.area(), exact.area), 64.0 * unit * r);
        EXPECT_LE(errorOf(data.centerOfMass().x(), exact.centroid.x), 64.0 * unit * (1.0 + r * r / area));
        EXPECT_LE(errorOf(data.centerOfMass().y(), exact.centroid.y), 64.0 * unit * (1.0 + r * r / area));
        const double bound = 64.0 * unit * r * r * r;
        const double xx = errorOf(data.inertiaMatrix().element(0, 0), exact.xx);
        const double yy = errorOf(data.inertiaMatrix().element(1, 1), exact.yy);
        const double xy = errorOf(data.inertiaMatrix().element(0, 1), exact.xy);
        EXPECT_LE(std::max({xx, yy, xy}), bound);
    });
    EXPECT_GT(checked, gen::rounds(400));
    EXPECT_LT(left, checked / 4);
}

// A base is accepted although the apex falls a little beside it, and lengths carry no sign: a parallelogram
// whose diagonals are 1e-5 off the right angle gains twice that share of a triangle, two times. Part of the
// definition.
TEST(ExactMoments, FanTakesAnApexJustBesideItsBaseForOneWithin) {
    const Points points = {{1, 0}, {-1e-5, 1}, {-1, 0}, {1e-5, -1}};
    EXPECT_NEAR(2.0, number(oracle::exactSignedArea(points)), 1e-12);
    EXPECT_NEAR(2.0 + 2e-5, gf_InertiaDataPolygon(points).area(), 1e-9);
    EXPECT_NEAR(2.0, gf_Area(points), 1e-12);
}

namespace {

// The greatest error over 10-unit squares in all directions at a distance.
struct FarErrors {
    double centroid = 0.0;
    double area = 0.0;
};

FarErrors errorsAt(double distance, bool wholeNumbers) {
    gen::Random random(static_cast<std::uint64_t>(distance));
    FarErrors worst;
    for (int i = 0; i < 300; ++i) {
        gkVector<2> at(distance, gkRadian(random.between(0.0, 6.283185307179586)));
        if (wholeNumbers) at = gkVector<2>(std::floor(at.x()), std::floor(at.y()));
        const Points square = {at, at + gkVector<2>(10, 0), at + gkVector<2>(10, 10), at + gkVector<2>(0, 10)};
        const ExactMoments exact = oracle::exactMoments(square);
        const gkVector<2> c = gnContour::centerOfMass(square);
        worst.centroid =
            std::max({worst.centroid, errorOf(c.x(), exact.centroid.x), errorOf(c.y(), exact.centroid.y)});
        worst.area = std::max(worst.area, errorOf(gf_Area(square), exact.area));
    }
    return worst;
}

// A figure of the header: not exceeded by more than a third, and not far too careful either.
void expectFigure(double stated, double measured) {
    EXPECT_LE(measured, 1.35 * stated);
    EXPECT_GE(measured, stated / 8.0);
}

} // namespace

// These are the figures at the head of cntr/moments.h.
TEST(ExactMoments, OfASquareFarAwayAreOffAsTheHeaderSays) {
    const struct {
        double distance;
        double centroid;
        double area;
        double centroidOfWholeNumbers;
    } figures[] = {
        {1e2, 1e-12, 1e-12, 1e-13}, {1e4, 1e-6, 1e-8, 1e-9}, {1e6, 1.0, 1e-4, 1e-5}, {1e8, 1e6, 1.0, 1e-1}};
    for (const auto& figure : figures) {
        SCOPED_TRACE(figure.distance);
        const FarErrors any = errorsAt(figure.distance, false);
        expectFigure(figure.centroid, any.centroid);
        expectFigure(figure.area, any.area);
        const FarErrors whole = errorsAt(figure.distance, true);
        expectFigure(figure.centroidOfWholeNumbers, whole.centroid);
        EXPECT_EQ(0.0, whole.area);
    }
}
