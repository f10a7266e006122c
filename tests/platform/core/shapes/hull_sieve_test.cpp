// Which points a hull sieve keeps. Oracle: the hull's own edges, exactly.
#include "platform/core/shapes/hull_sieve.h"

#include "platform/core/shapes/convex_hull.h"
#include "tests/platform/core/shapes/exact_sign.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace {

using V = gkVector<2>;
using Points = std::vector<V>;

double between(std::mt19937_64& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53);
}

// A round outline; its waves are as high as the noise.
Points outline(std::mt19937_64& random, std::size_t count) {
    const double noise = between(random, 0.0, 30.0);
    const double waves = 2.0 + static_cast<double>(random() % 5);
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 6.283185307179586 * static_cast<double>(i) / static_cast<double>(count);
        const double radius = 100.0 + noise * std::sin(waves * angle) + between(random, -noise, noise) / 10.0;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    if (random() % 2 == 0) std::reverse(points.begin(), points.end());
    return points;
}

// Teeth as long as the comb is wide: boxes of runs are as high as the comb.
Points comb(std::mt19937_64& random, std::size_t count) {
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const bool isTop = i % 4 == 1 || i % 4 == 2;
        points.emplace_back(static_cast<double>(i / 2),
                            isTop ? between(random, 0.7, 1.0) * static_cast<double>(count) : 0.0);
    }
    return points;
}

// Whole numbers, and many equal ones; in no order.
Points crowd(std::mt19937_64& random, std::size_t count) {
    const std::uint64_t size = 2 + random() % 90;
    const auto number = [&] { return static_cast<double>(random() % size) - static_cast<double>(size / 2); };
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const double x = number();
        points.emplace_back(x == 0.0 && random() % 2 == 0 ? -0.0 : x, number());
    }
    return points;
}

Points sample(std::uint64_t seed, std::mt19937_64& random) {
    const std::size_t count = 1 + random() % (seed % 4 == 0 ? 3000 : 300);
    switch (seed % 3) {
    case 0:
        return outline(random, count);
    case 1:
        return comb(random, count);
    default:
        return crowd(random, count);
    }
}

// Which indices are in a list.
std::vector<bool> keptOf(const std::vector<std::size_t>& indices, std::size_t count) {
    std::vector<bool> kept(count, false);
    for (const std::size_t i : indices) kept[i] = true;
    return kept;
}

// The distance to the nearest of the lines through the hull's edges, in higher precision where there is one.
long double depthOf(const V& p, const Points& hull) {
    long double depth = std::numeric_limits<long double>::infinity();
    for (std::size_t i = 0; i < hull.size(); ++i) {
        const V& a = hull[i];
        const V& b = hull[(i + 1) % hull.size()];
        const long double ex = static_cast<long double>(b.x()) - a.x();
        const long double ey = static_cast<long double>(b.y()) - a.y();
        const long double turn =
            ex * (static_cast<long double>(p.y()) - a.y()) - ey * (static_cast<long double>(p.x()) - a.x());
        depth = std::min(depth, turn / std::sqrt(ex * ex + ey * ey));
    }
    return depth;
}

} // namespace

TEST(HullSieve, KeepsEveryPointThatIsAVertexOfTheHullOnItsSide) {
    std::size_t dropped = 0;
    for (std::uint64_t seed = 1; seed <= 600; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const Points points = sample(seed, random);
        const gk_HullSieve::OuterPoints outer = gk_HullSieve(points).outerPoints(0.0);
        const std::vector<bool> isLower = keptOf(outer.lower, points.size());
        const std::vector<bool> isUpper = keptOf(outer.upper, points.size());
        const Points hull = gfConvexHull(points);
        const V& least = hull.front();
        const V greatest = *std::max_element(hull.begin(), hull.end(), [](const V& a, const V& b) {
            return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
        });
        for (std::size_t i = 0; i < points.size(); ++i) {
            dropped += isLower[i] || isUpper[i] ? 0 : 1;
            if (std::find(hull.begin(), hull.end(), points[i]) == hull.end()) continue;
            const int side = exact::orientation(least, greatest, points[i]);
            if (side <= 0) {
                ASSERT_TRUE(isLower[i]) << i;
            }
            if (side >= 0) {
                ASSERT_TRUE(isUpper[i]) << i;
            }
        }
    }
    EXPECT_LT(100000u, dropped);
}

TEST(HullSieve, LeavesOutOnlyRunsThatAreDeeperThanTheSlack) {
    std::size_t dropped = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const Points points = sample(seed, random);
        const Points hull = gfConvexHull(points);
        const gk_HullSieve sieve(points);
        const double size = std::max(sieve.box()[2] - sieve.box()[0], sieve.box()[3] - sieve.box()[1]);
        for (const double slack : {0.0, 1e-14 * size, 0.001 * size, 0.05 * size, 0.3 * size}) {
            const std::vector<bool> isKept =
                keptOf(sieve.outerRuns(slack).runs, points.size() / gk_HullSieve::kRun + 1);
            for (std::size_t i = 0; i < points.size(); ++i) {
                if (isKept[i / gk_HullSieve::kRun]) continue;
                ++dropped;
                ASSERT_LT(slack, depthOf(points[i], hull)) << i;
            }
        }
    }
    EXPECT_LT(50000u, dropped);
}

TEST(HullSieve, NotesCornersThatAreItsPoints) {
    std::mt19937_64 random(1);
    const Points points = outline(random, 1000);
    const gk_HullSieve::OuterRuns outer = gk_HullSieve(points).outerRuns(0.0);
    EXPECT_LT(8u, outer.corners.size());
    for (const V& corner : outer.corners)
        EXPECT_NE(points.end(), std::find(points.begin(), points.end(), corner));
}

TEST(HullSieve, TellsWhetherBoxesOfRunsTellMuch) {
    std::mt19937_64 random(1);
    Points points = outline(random, 3000);
    EXPECT_TRUE(gk_HullSieve(points).outerRuns(0.0).areTelling);
    EXPECT_TRUE(gk_HullSieve(comb(random, 3000)).outerRuns(0.0).areTelling);
    std::shuffle(points.begin(), points.end(), random);
    EXPECT_FALSE(gk_HullSieve(points).outerRuns(0.0).areTelling);
}

TEST(HullSieve, KeepsPointsThatRoundingBringsLevelWithTheHull) {
    // One unit in the last place below the upper side: no arithmetic with doubles tells them apart for certain.
    const Points points = {{0, 0}, {8, 0}, {8, 8}, {4, std::nextafter(8.0, 0.0)}, {0, 8}, {4, 4}};
    const gk_HullSieve::OuterPoints outer = gk_HullSieve(points).outerPoints(0.0);
    EXPECT_EQ(1, std::count(outer.upper.begin(), outer.upper.end(), 3u));
}

TEST(HullSieve, KnowsWhetherAllCoordinatesAreFinite) {
    const double strays[] = {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL};
    for (std::size_t count = 1; count < 40; ++count) {
        for (std::size_t at = 0; at < count; ++at) {
            Points points(count, {1, -2});
            EXPECT_TRUE(gk_HullSieve(points).areFinite());
            for (const double stray : strays) {
                points[at] = V(stray, 3);
                EXPECT_FALSE(gk_HullSieve(points).areFinite());
                points[at] = V(3, stray);
                EXPECT_FALSE(gk_HullSieve(points).areFinite());
            }
        }
    }
}

TEST(HullSieve, HasTheBoxOfAllPoints) {
    for (std::size_t count = 1; count < 40; ++count) {
        for (std::size_t at = 0; at < count; ++at) {
            Points points(count, {1, -2});
            points[at] = V(5, -7);
            const gk_HullBox expected = count == 1 ? gk_HullBox{5, -7, 5, -7} : gk_HullBox{1, -7, 5, -2};
            EXPECT_EQ(expected, gk_HullSieve(points).box());
        }
    }
}
