// Lines and segments: distances, feet, crossings, and what counts as parallel.
#include "platform/core/math/random.h"
#include "platform/core/shapes/line.h"
#include "platform/core/shapes/line_seg.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Vector = gkVector<2>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isFinite(const Vector& v) { return std::isfinite(v.x()) && std::isfinite(v.y()); }

Vector anywhere(gkRandomUniform& random, double size) {
    const double x = random.next(-size, size);
    return Vector(x, random.next(-size, size));
}

} // namespace

TEST(Line, IsThePointZeroByDefault) {
    EXPECT_EQ(Vector(0, 0), gkLine().point());
    EXPECT_EQ(Vector(0, 0), gkLine().direction());
}

TEST(Line, KeepsItsDirectionAsGiven) { EXPECT_EQ(Vector(0, -3), gkLine({1, 2}, {0, -3}).direction()); }

TEST(Line, EqualsByPointAndDirectionNotByPlace) {
    const gkLine line({1, 2}, {3, 0});
    EXPECT_EQ(line, gkLine({1, 2}, {3, 0}));
    EXPECT_NE(line, gkLine({1, 2}, {6, 0}));
    EXPECT_NE(line, gkLine({4, 2}, {3, 0}));
}

TEST(Line, DistanceIsPerpendicularOnBothSidesAndBeyondTheDirection) {
    const gkLine line({1, 1}, {6, 8}); // length 10, normal (-4, 3) / 5
    EXPECT_EQ(5, line.distToPoint({-3, 4}));
    EXPECT_EQ(5, line.distToPoint({5, -2}));
    EXPECT_EQ(5, line.distToPoint({-3 + 60, 4 + 80}));
    EXPECT_EQ(0, line.distToPoint({1 - 3, 1 - 4}));
}

TEST(Line, ProjIsTheFootOfThePerpendicular) {
    const gkLine line({1, 1}, {0, 4});
    EXPECT_EQ(Vector(1, 9), line.proj({7, 9}));
    EXPECT_EQ(Vector(1, -2), line.proj({-1, -2}));
    EXPECT_EQ(Vector(1, 1), line.proj({5, 1}));
}

TEST(Line, WithoutADirectionIsItsPoint) {
    const gkLine point({1, 1}, {0, 0});
    EXPECT_EQ(5, point.distToPoint({4, 5}));
    EXPECT_EQ(Vector(1, 1), point.proj({4, 5}));
    EXPECT_TRUE(point.isParallel(gkLine({0, 0}, {1, 0})));
    EXPECT_TRUE(gkLine({0, 0}, {1, 0}).isParallel(point));
    EXPECT_TRUE(point.isParallel(point));
}

TEST(Line, IntersectIsTheCommonPoint) {
    const gkLine across({-4, 2}, {2, 0});
    const gkLine up({3, 9}, {0, -1});
    EXPECT_EQ(Vector(3, 2), across.intersect(up));
    EXPECT_EQ(Vector(3, 2), up.intersect(across));
    EXPECT_EQ(Vector(1, 1), gkLine({0, 0}, {4, 4}).intersect(gkLine({2, 0}, {-8, 8})));
}

TEST(Line, IntersectOfParallelLinesIsTheFirstLinesPoint) {
    const gkLine line({1, 2}, {3, 1});
    EXPECT_EQ(Vector(1, 2), line.intersect(gkLine({5, 5}, {6, 2})));
    EXPECT_EQ(Vector(1, 2), line.intersect(gkLine({5, 5}, {-3, -1})));
    EXPECT_EQ(Vector(1, 2), line.intersect(line));
    EXPECT_EQ(Vector(1, 2), line.intersect(gkLine({5, 5}, {0, 0})));
    EXPECT_EQ(Vector(5, 5), gkLine({5, 5}, {0, 0}).intersect(line));
}

TEST(Line, IntersectWithAQuotientThatIsNotFiniteIsTheFirstLinesPoint) {
    // The determinant is the least positive double and 1 / det overflows.
    const double least = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(Vector(0, 1), gkLine({0, 1}, {1, 0}).intersect(gkLine({0, 0}, {1, least})));
    // The determinant itself overflows, and with it the numerator.
    const gkLine huge({1, 2}, {1e200, -1e200});
    EXPECT_EQ(Vector(1, 2), huge.intersect(gkLine({1e200, 0}, {1e200, 1e200})));
}

TEST(Line, IntersectOfFiniteLinesIsNeverNaN) {
    const double parts[] = {0.0, 1.0, -1.0, 1e-200, 1e200, std::numeric_limits<double>::max()};
    const Vector at(3, 4);
    for (const double a : parts) {
        for (const double b : parts) {
            for (const double c : parts) {
                for (const double d : parts) {
                    const Vector x = gkLine(at, {a, b}).intersect(gkLine({1, -1}, {c, d}));
                    EXPECT_FALSE(std::isnan(x.x()) || std::isnan(x.y()))
                        << a << " " << b << " " << c << " " << d;
                }
            }
        }
    }
}

TEST(Line, OfTwoEdgesThatShareAVertexCrossesThereHoweverSmallTheAngle) {
    // With the shared vertex as end of one and start of the other, numerator and determinant are the same
    // number.
    for (unsigned long seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        gkRandomUniform random(seed);
        const Vector from = anywhere(random, 1e3);
        const Vector along = anywhere(random, 10);
        const Vector middle = from + along / 3;
        const gkLineSeg one(from, middle);
        const gkLineSeg next(middle, from + along);
        const Vector x = one.line().intersect(next.line());
        if (one.line().direction().cross(next.line().direction()) != 0) {
            EXPECT_LT(x.distance(middle), 1e-12);
            EXPECT_EQ(middle, next.line().intersect(one.line()));
        }
    }
}

TEST(Line, IsParallelInEitherSense) {
    const gkLine line({1, 2}, {3, 1});
    EXPECT_TRUE(line.isParallel(line));
    EXPECT_TRUE(line.isParallel(gkLine({9, 9}, {6, 2})));
    EXPECT_TRUE(line.isParallel(gkLine({9, 9}, {-3, -1})));
    EXPECT_FALSE(line.isParallel(gkLine({1, 2}, {-1, 3})));
    EXPECT_FALSE(line.isParallel(gkLine({1, 2}, {3, 1.0001})));
}

TEST(Line, IsParallelUpToTheToleranceTheBoundIncluded) {
    // (1, s) has the length 1 in doubles, and its cross product with (1, 0) is s itself.
    const gkLine axis({0, 0}, {1, 0});
    const double bound = gkLine::kParallelSine;
    for (const double sign : {1.0, -1.0}) {
        EXPECT_TRUE(axis.isParallel(gkLine({5, 5}, {1, sign * bound})));
        EXPECT_TRUE(gkLine({5, 5}, {-1, sign * bound}).isParallel(axis));
        EXPECT_FALSE(axis.isParallel(gkLine({5, 5}, {1, sign * std::nextafter(bound, 1)})));
        EXPECT_FALSE(gkLine({5, 5}, {-1, sign * std::nextafter(bound, 1)}).isParallel(axis));
    }
}

TEST(Line, IsParallelByTheAngleWhateverTheLengths) {
    const double bound = gkLine::kParallelSine;
    for (const double a : {0x1p-100, 1.0, 0x1p100}) {
        for (const double b : {0x1p-100, 1.0, 0x1p100}) {
            const gkLine axis({0, 0}, {a, 0});
            EXPECT_TRUE(axis.isParallel(gkLine({5, 5}, {b, b * bound})));
            EXPECT_FALSE(axis.isParallel(gkLine({5, 5}, {b, b * std::nextafter(bound, 1)})));
        }
    }
}

TEST(Line, WithNaNOrAnInfiniteDirectionIsParallelToEverything) {
    const gkLine axis({0, 0}, {1, 0});
    for (const Vector& bad : {Vector(kNaN, 1), Vector(1, kNaN), Vector(kInfinity, 1), Vector(-1, kInfinity)}) {
        EXPECT_TRUE(axis.isParallel(gkLine({1, 1}, bad)));
        EXPECT_TRUE(gkLine({1, 1}, bad).isParallel(axis));
    }
}

TEST(LineSeg, IsThePointZeroByDefault) {
    EXPECT_EQ(gkLineSeg({0, 0}, {0, 0}), gkLineSeg());
    EXPECT_EQ(0, gkLineSeg().length());
}

TEST(LineSeg, KeepsItsEndsInOrder) {
    const gkLineSeg seg({1, 2}, {4, 6});
    EXPECT_EQ(Vector(1, 2), seg.p1());
    EXPECT_EQ(Vector(4, 6), seg.p2());
    EXPECT_EQ(gkLine({1, 2}, {3, 4}), seg.line());
    EXPECT_EQ(5, seg.length());
    EXPECT_NE(seg, gkLineSeg({4, 6}, {1, 2}));
    EXPECT_NE(seg, gkLineSeg({1, 2}, {4, 7}));
}

TEST(LineSeg, DistanceIsToTheEndsBeyondThemAndToTheLineBetween) {
    const gkLineSeg seg({0, 0}, {8, 0});
    EXPECT_EQ(3, seg.distToPoint({5, -3}));
    EXPECT_EQ(5, seg.distToPoint({-3, 4}));
    EXPECT_EQ(5, seg.distToPoint({11, 4}));
    EXPECT_EQ(4, seg.distToPoint({0, 4}));
    EXPECT_EQ(4, seg.distToPoint({8, 4}));
    EXPECT_EQ(0, seg.distToPoint({2, 0}));
    EXPECT_EQ(2, seg.distToPoint({10, 0}));
}

TEST(LineSeg, ClosestPointFollowsTheSameCases) {
    const gkLineSeg seg({0, 0}, {8, 0});
    EXPECT_EQ(Vector(5, 0), seg.closestPoint({5, -3}));
    EXPECT_EQ(Vector(0, 0), seg.closestPoint({-3, 4}));
    EXPECT_EQ(Vector(8, 0), seg.closestPoint({11, 4}));
    EXPECT_EQ(Vector(8, 0), seg.closestPoint({8, 1}));
}

TEST(LineSeg, OfLengthZeroIsAPoint) {
    const gkLineSeg point({1, 1}, {1, 1});
    EXPECT_EQ(5, point.distToPoint({4, 5}));
    EXPECT_EQ(Vector(1, 1), point.closestPoint({4, 5}));
    EXPECT_EQ(0, point.distToPoint({1, 1}));
    EXPECT_TRUE(point.line().isParallel(gkLine({0, 0}, {1, 0})));
}

TEST(LineSeg, WhoseSquaredLengthVanishesIsMeasuredFromItsFirstEnd) {
    EXPECT_EQ(5, gkLineSeg({0, 0}, {1e-200, 0}).distToPoint({3, 4}));
}

TEST(LineSeg, WithAFootInsideHasTheBitsOfItsLinesDistance) {
    int inside = 0;
    for (unsigned long seed = 1; seed <= 500; ++seed) {
        SCOPED_TRACE(seed);
        gkRandomUniform random(seed);
        const gkLineSeg seg(anywhere(random, 100), anywhere(random, 100));
        const Vector p = anywhere(random, 100);
        const double position = (p - seg.p1()) * seg.line().direction();
        const double squared = seg.line().direction() * seg.line().direction();
        // Away from the ends, where rounding cannot move the foot to the other case.
        if (position > 1e-9 * squared && position < (1 - 1e-9) * squared) {
            ++inside;
            EXPECT_EQ(seg.line().distToPoint(p), seg.distToPoint(p));
            EXPECT_EQ(seg.line().proj(p), seg.closestPoint(p));
        } else {
            EXPECT_EQ(std::fmin(p.distance(seg.p1()), p.distance(seg.p2())), seg.distToPoint(p));
        }
    }
    EXPECT_GT(inside, 100);
}

TEST(LineSeg, DistanceWithNaNIsNaNAndTheClosestPointAnEnd) {
    const gkLineSeg seg({0, 0}, {8, 0});
    EXPECT_TRUE(std::isnan(seg.distToPoint({kNaN, 0})));
    EXPECT_EQ(Vector(0, 0), seg.closestPoint({kNaN, 0}));
    EXPECT_TRUE(isFinite(seg.closestPoint({kInfinity, 1})));
}
