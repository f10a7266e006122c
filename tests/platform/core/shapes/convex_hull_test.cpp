// Convex hulls. Oracle: gift wrapping with exact integers.
#include "platform/core/shapes/convex_hull.h"

#include "tests/platform/core/shapes/exact_sign.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using V = gkVector<2>;
using Points = std::vector<V>;

bool isLower(const V& a, const V& b) { return a.x() != b.x() ? a.x() < b.x() : a.y() < b.y(); }

// True when c lies beyond b as seen from a; the three are collinear.
bool isFarther(const V& a, const V& b, const V& c) {
    if (a.x() != b.x() || a.x() != c.x()) return a.x() < c.x() ? b.x() < c.x() : c.x() < b.x();
    return a.y() < c.y() ? b.y() < c.y() : c.y() < b.y();
}

Points giftWrapped(const Points& points) {
    if (points.empty()) return {};
    const V start = *std::min_element(points.begin(), points.end(), isLower);
    Points hull = {start};
    for (;;) {
        const V from = hull.back();
        V next = from;
        for (const V& p : points) {
            if (p == from) continue;
            const int turn = next == from ? -1 : exact::orientation(from, next, p);
            if (turn < 0 || (turn == 0 && isFarther(from, next, p))) next = p;
        }
        if (next == start || next == from) return hull;
        hull.push_back(next);
    }
}

void expectHullProperties(const Points& points, const Points& hull) {
    const std::size_t n = hull.size();
    for (std::size_t i = 0; i < n; ++i) {
        EXPECT_EQ(1, std::min<long>(1, std::count(points.begin(), points.end(), hull[i])));
        if (i > 0) {
            EXPECT_TRUE(isLower(hull[0], hull[i]));
        }
        if (n < 3) continue;
        EXPECT_EQ(1, exact::orientation(hull[i], hull[(i + 1) % n], hull[(i + 2) % n]));
        for (const V& p : points) ASSERT_GE(exact::orientation(hull[i], hull[(i + 1) % n], p), 0);
    }
}

double between(std::mt19937_64& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53);
}

Points onLattice(std::mt19937_64& random, std::size_t count, int side) {
    Points points;
    const auto coordinate = [&] { return static_cast<double>(random() % static_cast<unsigned>(side)); };
    while (points.size() < count) {
        const double x = coordinate();
        points.emplace_back(x, coordinate());
    }
    return points;
}

Points inSquare(std::mt19937_64& random, std::size_t count) {
    Points points;
    while (points.size() < count) {
        const double x = between(random, -1, 1);
        points.emplace_back(x, between(random, -1, 1));
    }
    return points;
}

Points nearLine(std::mt19937_64& random, std::size_t count) {
    Points points;
    while (points.size() < count) {
        const double x = between(random, -1, 1);
        points.emplace_back(x, 0.3 * x + 0.1);
    }
    return points;
}

Points onCircle(std::mt19937_64& random, std::size_t count) {
    Points points;
    while (points.size() < count) {
        const V p(between(random, -1, 1), between(random, -1, 1));
        if (p.length() > 0.1) points.push_back(p / p.length() * 100.0);
    }
    return points;
}

Points sample(std::uint64_t seed, std::mt19937_64& random) {
    const auto count = static_cast<std::size_t>(random() % 120);
    switch (seed % 5) {
    case 0:
        return onLattice(random, count, 3 + static_cast<int>(random() % 9));
    case 1:
        return inSquare(random, count);
    case 2:
        return nearLine(random, count);
    case 3:
        return onCircle(random, count);
    default:
        return onLattice(random, count * 4, 30);
    }
}

} // namespace

TEST(ConvexHull, OfNoPointIsEmpty) { EXPECT_TRUE(gfConvexHull({}).empty()); }

TEST(ConvexHull, OfOnePointIsThatPoint) { EXPECT_EQ((Points{{3, 4}}), gfConvexHull({{3, 4}})); }

TEST(ConvexHull, OfEqualPointsIsOnePoint) { EXPECT_EQ((Points{{3, 4}}), gfConvexHull(Points(100, {3, 4}))); }

TEST(ConvexHull, OfCollinearPointsHasTheTwoEnds) {
    EXPECT_EQ((Points{{-1, -2}, {3, 6}}), gfConvexHull({{1, 2}, {3, 6}, {0, 0}, {-1, -2}, {2, 4}}));
    EXPECT_EQ((Points{{5, -2}, {5, 6}}), gfConvexHull({{5, 2}, {5, 6}, {5, -2}}));
}

TEST(ConvexHull, OfManyCollinearPointsHasTheTwoEnds) {
    Points points;
    for (int i = 0; i < 1000; ++i) points.emplace_back((i * 7919) % 1000, ((i * 7919) % 1000) * -3.0);
    EXPECT_EQ((Points{{0, 0}, {999, -2997}}), gfConvexHull(points));
}

TEST(ConvexHull, OfASquareStartsAtTheLowestXAndRunsCounterClockwise) {
    EXPECT_EQ((Points{{0, 0}, {1, 0}, {1, 1}, {0, 1}}), gfConvexHull({{1, 1}, {0, 1}, {0, 0}, {1, 0}}));
}

TEST(ConvexHull, LeavesOutPointsInsideAndOnTheEdges) {
    Points points;
    for (int x = 0; x <= 20; ++x)
        for (int y = 0; y <= 10; ++y) points.emplace_back(x, y);
    EXPECT_EQ((Points{{0, 0}, {20, 0}, {20, 10}, {0, 10}}), gfConvexHull(points));
}

TEST(ConvexHull, LeavesOutPointsThatAreNotFinite) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ((Points{{0, 0}, {1, 0}, {0, 1}}),
              gfConvexHull({{nan, 9}, {0, 0}, {9, nan}, {1, 0}, {HUGE_VAL, 0}, {0, 1}, {0, -HUGE_VAL}}));
    EXPECT_TRUE(gfConvexHull({{nan, nan}, {HUGE_VAL, 1}}).empty());
    Points many(200, {nan, 1});
    EXPECT_TRUE(gfConvexHull(many).empty());
    many[77] = {1, 2};
    EXPECT_EQ((Points{{1, 2}}), gfConvexHull(many));
}

TEST(ConvexHull, KeepsTheFirstOfEqualPoints) {
    const Points hull = gfConvexHull({{1, 0}, {-0.0, 0.0}, {0.0, -0.0}, {0, 1}, {1, -0.0}});
    ASSERT_EQ(3u, hull.size());
    EXPECT_TRUE(std::signbit(hull[0].x()));
    EXPECT_FALSE(std::signbit(hull[0].y()));
    EXPECT_FALSE(std::signbit(hull[1].y()));
}

TEST(ConvexHull, SeesACornerOfOneUlp) {
    const double above = std::nextafter(0.5, 1.0);
    EXPECT_EQ((Points{{0, 0}, {1, 1}, {0.5, above}}), gfConvexHull({{0, 0}, {0.5, above}, {1, 1}}));
    EXPECT_EQ((Points{{0, 0}, {1, 1}}), gfConvexHull({{0, 0}, {0.5, 0.5}, {1, 1}}));
}

TEST(ConvexHull, OfHugeAndTinyCoordinatesIsExact) {
    EXPECT_EQ(
        (Points{{-1e308, -1e308}, {1e308, -1e308}, {1e308, 1e308}, {-1e308, 1e308}}),
        gfConvexHull({{1e308, 1e308}, {0, 0}, {-1e308, 1e308}, {1e308, -1e308}, {-1e308, -1e308}, {1e308, 5}}));
    const double tiny = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ((Points{{0, 0}, {2 * tiny, 0}, {0, tiny}}),
              gfConvexHull({{0, tiny}, {tiny, 0}, {0, 0}, {2 * tiny, 0}}));
}

TEST(ConvexHull, EqualsExactGiftWrapping) {
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const Points points = sample(seed, random);
        ASSERT_EQ(giftWrapped(points), gfConvexHull(points));
    }
}

TEST(ConvexHull, IsStrictlyConvexAndHoldsEveryPoint) {
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const Points points = sample(seed, random);
        expectHullProperties(points, gfConvexHull(points));
    }
}

TEST(ConvexHull, DoesNotDependOnTheOrderOfThePoints) {
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        Points points = sample(seed, random);
        const Points hull = gfConvexHull(points);
        std::shuffle(points.begin(), points.end(), random);
        EXPECT_EQ(hull, gfConvexHull(points));
        std::sort(points.begin(), points.end(), isLower);
        EXPECT_EQ(hull, gfConvexHull(points));
    }
}

TEST(ConvexHull, OfItsOwnVerticesIsItself) {
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const Points hull = gfConvexHull(sample(seed, random));
        EXPECT_EQ(hull, gfConvexHull(hull));
    }
}

TEST(ConvexHull, OfScatteredPointsAtAnyScaleEqualsExactGiftWrapping) {
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        Points points = sample(seed, random);
        const double factor = std::ldexp(1.0, static_cast<int>(random() % 2000) - 1050);
        for (V& p : points) p *= factor;
        ASSERT_EQ(giftWrapped(points), gfConvexHull(points));
    }
}
