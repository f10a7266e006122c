// A million vertices of the worst kinds: every question ends. Where a definition looks at all pairs an index or
// a bound must spare it, or the test would not end soon. Oracle: what the outline's making tells.
#include "cntr/region.h"
#include "platform/core/archive/archive_memory.h"
#include "tests/support/kept_results.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kMillion = 1000000;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

Points inTurn(const Points& places) {
    Points outline;
    outline.reserve(kMillion);
    for (std::size_t i = 0; i < kMillion; ++i) outline.push_back(places[i % places.size()]);
    return outline;
}

void askEverything(const gkRegion& region) {
    for (const Kept<gkContour>& question : keptOfContours()) {
        SCOPED_TRACE(question.name);
        question.ask(region);
    }
    for (const Kept<gkRegion>& question : keptOfRegions()) {
        SCOPED_TRACE(question.name);
        answer([&] {
            question.ask(region);
            return true;
        });
    }
    for (int i = 0; i < 10; ++i) {
        const gkVector<2> place(0.5 * i, 1.0 + i);
        answer([&] { return region.gkContour::closestPoint(place, false); });
        answer([&] { return region.closestVertexIndex(place); });
        answer([&] { return region.inside(place, false); });
        answer([&] { return region.inside(region.points()[static_cast<std::size_t>(i)], false); });
        answer([&] { return region.intersections(gkLineSeg(place, {50, 70}), i % 2 == 0); });
    }
    answer([&] { return region.intersections(gkContour({{0, 0}, {9, 0}, {0, 9}}, true, 0)); });
    gkArchiveMemory archive;
    archive || const_cast<gkRegion&>(region);
    archive.finish();
}

} // namespace

TEST(AMillionVertices, AllEqual) {
    const gkRegion region(inTurn({{3, 4}}));
    askEverything(region);
    EXPECT_EQ(0.0, region.length());
    EXPECT_EQ(0.0, region.area(false));
    EXPECT_EQ(0, region.closestVertexIndex({9, 9}));
    EXPECT_FALSE(region.isSelfIntersecting());
}

TEST(AMillionVertices, ToAndFroBetweenTwoPlaces) {
    const gkRegion region(inTurn({{0, 0}, {3, 4}}));
    askEverything(region);
    EXPECT_EQ(5.0 * kMillion, region.length());
    EXPECT_EQ(5.0, region.diameter(gkContourDefs::eExact));
    EXPECT_FALSE(region.isSelfIntersecting());
}

TEST(AMillionVertices, AlongOneLine) {
    const gkRegion region(inTurn({{3, 0}, {3, 7}, {3, 2}, {3, 5}, {3, 1}}));
    askEverything(region);
    EXPECT_EQ(7.0, region.diameter(gkContourDefs::eExact));
    EXPECT_FALSE(region.isSelfIntersecting());
}

TEST(AMillionVertices, RoundAnEightAgainAndAgain) {
    const gkRegion region(inTurn({{0, 0}, {8, 6}, {8, 0}, {0, 6}}));
    askEverything(region);
    EXPECT_EQ(10.0, region.diameter(gkContourDefs::eExact));
    EXPECT_TRUE(region.isSelfIntersecting());
}

TEST(AMillionVertices, NoNumbers) {
    const gkRegion region(inTurn({{kNaN, kNaN}}));
    askEverything(region);
    EXPECT_FALSE(region.isSelfIntersecting());
    EXPECT_FALSE(region.inside({0, 0}, false));
}

TEST(AMillionVertices, NoNumbersAmongNumbers) {
    askEverything(gkRegion(inTurn({{0, 0}, {kNaN, 1}, {5, 3}, {2, kNaN}, {1, 8}})));
}

TEST(AMillionVertices, Infinite) {
    const gkRegion region(inTurn({{kInfinity, 1}, {-kInfinity, 2}, {0, kInfinity}, {1, -kInfinity}}));
    askEverything(region);
    EXPECT_FALSE(region.isSelfIntersecting());
}

TEST(AMillionVertices, AsLargeAsNumbersGet) {
    askEverything(
        gkRegion(inTurn({{kGreatest, kGreatest}, {-kGreatest, 1}, {0, -kGreatest}, {1e308, -1e308}})));
}

TEST(AMillionVertices, AsSmallAsNumbersGet) {
    const gkRegion region(inTurn({{kLeast, 0}, {0, 3 * kLeast}, {-kLeast, 2 * kLeast}}));
    askEverything(region);
    EXPECT_FALSE(region.isSelfIntersecting());
}

TEST(AMillionVertices, ZerosOfBothSigns) {
    const gkRegion region(inTurn({{0.0, -0.0}, {-0.0, 0.0}}));
    askEverything(region);
    EXPECT_EQ(0.0, region.length());
    EXPECT_EQ(0.0, region.diameter(gkContourDefs::eExact));
}

TEST(AMillionVertices, OnACircle) {
    Points outline;
    for (std::size_t i = 0; i < kMillion; ++i)
        outline.push_back(1000.0 *
                          gkVector<2>(1.0, gkRadian(6.283185307179586 * static_cast<double>(i) / kMillion)));
    const gkRegion region(outline);
    askEverything(region);
    EXPECT_NEAR(2000.0, region.diameter(gkContourDefs::eExact), 1e-9);
    EXPECT_NEAR(3141592.65359, region.area(false), 1e-3); // the circle's, less some 2e-5
    EXPECT_FALSE(region.isSelfIntersecting());
}

TEST(FewVertices, OfBadNumbersAreAnsweredAtOnce) {
    const double numbers[] = {kNaN, kInfinity, -kInfinity, kGreatest, -kGreatest, kLeast, -0.0, 0.0, 1.0};
    for (const double a : numbers) {
        for (const double b : numbers) {
            for (const Points& outline :
                 {Points{{a, b}}, Points{{a, b}, {b, a}}, Points{{a, a}, {b, a}, {1, b}}}) {
                const gkRegion region(outline);
                for (const Kept<gkContour>& question : keptOfContours()) question.ask(region);
                answer([&] { return region.inside({0, 0}, false); });
                answer([&] { return region.area(true); });
                answer([&] { return region.inertiaMatrix(false); });
            }
        }
    }
}
