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
        EXPECT_LE(1, std::count(points.begin(), points.end(), hull[i]));
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

// The plain chain over all finite points, for more of them than wrapping can take.
Points plainChain(Points points) {
    const auto isNotFinite = [](const V& p) { return !std::isfinite(p.x()) || !std::isfinite(p.y()); };
    points.erase(std::remove_if(points.begin(), points.end(), isNotFinite), points.end());
    std::stable_sort(points.begin(), points.end(), isLower);
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (points.size() < 2) return points;
    Points hull;
    for (int side = 0; side < 2; ++side) {
        const std::size_t start = hull.size();
        for (const V& p : points) {
            while (hull.size() >= start + 2 && exact::orientation(hull[hull.size() - 2], hull.back(), p) <= 0)
                hull.pop_back();
            hull.push_back(p);
        }
        hull.pop_back();
        std::reverse(points.begin(), points.end());
    }
    return hull;
}

Points noisyCircle(std::mt19937_64& random, std::size_t count, double noise) {
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 6.283185307179586 * static_cast<double>(i) / static_cast<double>(count);
        const double radius = 1000.0 + between(random, -noise, noise);
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return points;
}

// All at whole numbers, many equal, many on one line.
Points latticeCircle(std::mt19937_64& random, std::size_t count, double size) {
    Points points = noisyCircle(random, count, 0.0);
    for (V& p : points) p = V(std::round(p.x() * size), std::round(p.y() * size));
    return points;
}

Points clusterAndOneFar(std::mt19937_64& random, std::size_t count) {
    Points points = inSquare(random, count);
    points[count / 3] = {between(random, -1e12, 1e12), between(random, -1e12, 1e12)};
    return points;
}

Points onAxis(std::mt19937_64& random, std::size_t count, bool upright) {
    Points points;
    while (points.size() < count) {
        const double at = between(random, -1, 1);
        points.push_back(upright ? V(3, at) : V(at, 3));
    }
    return points;
}

Points withStrays(std::mt19937_64& random, Points points) {
    const double strays[] = {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL};
    for (int i = 0; i < 50; ++i) {
        V& p = points[random() % points.size()];
        p = random() % 2 ? V(p.x(), strays[random() % 3]) : V(strays[random() % 3], p.y());
    }
    return points;
}

Points manyPoints(std::uint64_t seed, std::mt19937_64& random) {
    const std::size_t count = 900 + random() % 6000;
    switch (seed % 10) {
    case 0:
        return noisyCircle(random, count, 0.3);
    case 1:
        return noisyCircle(random, count, 0.0);
    case 2:
        return latticeCircle(random, count, 0.05);
    case 3:
        return onLattice(random, count, 4 + static_cast<int>(random() % 60));
    case 4:
        return clusterAndOneFar(random, count);
    case 5:
        return nearLine(random, count);
    case 6:
        return onAxis(random, count, random() % 2 == 0);
    case 7:
        return withStrays(random, noisyCircle(random, count, 200.0));
    case 8:
        return onCircle(random, count);
    default:
        return inSquare(random, count);
    }
}

void expectSameBits(const Points& expected, const Points& points) {
    ASSERT_EQ(expected, points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        ASSERT_EQ(std::signbit(expected[i].x()), std::signbit(points[i].x()));
        ASSERT_EQ(std::signbit(expected[i].y()), std::signbit(points[i].y()));
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

TEST(ConvexHull, OfManyPointsEqualsAPlainChain) {
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const Points points = manyPoints(seed, random);
        expectSameBits(plainChain(points), gfConvexHull(points));
    }
}

TEST(ConvexHull, OfManyPointsAtAnyScaleAndStretchEqualsAPlainChain) {
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        Points points = manyPoints(seed, random);
        const double across = std::ldexp(1.0, static_cast<int>(random() % 1980) - 1050);
        const double up = random() % 2 ? across : std::ldexp(1.0, static_cast<int>(random() % 1980) - 1050);
        for (V& p : points) p = V(p.x() * across, p.y() * up);
        expectSameBits(plainChain(points), gfConvexHull(points));
    }
}

TEST(ConvexHull, OfManyPointsKeepsTheFirstOfEqualPoints) {
    Points points(2000, {0.5, 0.5});
    points[500] = {-0.0, 0.0};
    points[900] = {0.0, -0.0};
    points[1000] = {1, -0.0};
    points[1100] = {1, 0.0};
    points[1200] = {0, 1};
    points[1300] = {1, 1};
    expectSameBits({{-0.0, 0.0}, {1, -0.0}, {1, 1}, {0, 1}}, gfConvexHull(points));
}

TEST(ConvexHull, OfManyPointsWiderThanADoubleEqualsAPlainChain) {
    std::mt19937_64 random(1);
    Points points = onCircle(random, 2000);
    for (V& p : points) p *= 1.7e306;
    expectSameBits(plainChain(points), gfConvexHull(points));
}
