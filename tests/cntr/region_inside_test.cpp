// Whether a point lies in a region. Expected answers by hand: the ray's direction is the middle of the first
// gap between vertex directions, counted from the x axis, that is wider than pi / n.
#include "cntr/inside_count.h"
#include "cntr/outline.h"
#include "cntr/search/ray_direction.h"
#include "tests/support/outlines.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

const char* const kArrow = "0 0, 10 -10, 10 10"; // its vertex (0, 0) lies on the left side of its box

bool inside(const std::string& outline, const gkVector<2>& point) {
    return gkRegion(points(outline)).inside(point, false);
}

// The two regions are each other's hole until the end of the test.
class RegionRing : public ::testing::Test {
protected:
    const Shared outer = sharedSquare(0, 0, 10);
    const Shared inner = sharedSquare(2, 2, 6);

    void SetUp() override {
        outer->holes({inner});
        inner->holes({outer});
    }
    void TearDown() override {
        outer->holes({});
        inner->holes({});
    }
};

long countFrom(const std::vector<gkVector<2>>& points, const gkVector<2>& point, double rayLength,
               bool bothWays, const gk_CountTowards& countTowards) {
    return gk_InsideCount(gk_RayDirection(gk_Segments(points, true), point), point, rayLength, bothWays,
                          countTowards);
}

} // namespace

TEST(RegionInside, OfASquare) {
    const gkRegion region(square(0, 0, 10));
    EXPECT_TRUE(region.inside({5, 5}, false));
    EXPECT_TRUE(region.inside({0.5, 9.5}, false));
    EXPECT_FALSE(region.inside({11, 5}, false));
    EXPECT_FALSE(region.inside({5, -0.5}, false));
}

TEST(RegionInside, OfAnOutlineWithANotch) {
    const char* const notched = "0 0, 10 0, 10 10, 5 5, 0 10";
    EXPECT_FALSE(inside(notched, {5, 7}));
    EXPECT_TRUE(inside(notched, {5, 3}));
    EXPECT_TRUE(inside(notched, {1, 8}));
    EXPECT_TRUE(inside(notched, {9, 8}));
}

// A hair from the left side of a U nothing is known without a ray. The first wide gap is that between the
// vertices at 1 and at 59 degrees, and the ray leaves the left arm and passes the right one: three crossings.
TEST(RegionInside, ThreeCrossingsAreAsOddAsOne) {
    const char* const u = "0 0, 3 0, 3 5.05, 3 10, 2 10, 2 1, 1 1, 1 10, 0 10";
    const gkVector<2> point(1e-9, 5);
    EXPECT_TRUE(gk_Outline(points(u)).inside(point));
    EXPECT_TRUE(inside(u, point));
}

TEST(RegionInside, OfAnOutlineThatCrossesItselfIsEvenOdd) {
    EXPECT_TRUE(inside(kBowtie, {1, 2}));
    EXPECT_TRUE(inside(kBowtie, {3, 2}));
    EXPECT_FALSE(inside(kBowtie, {2, 3}));
    EXPECT_FALSE(inside(kBowtie, {2, 1}));
    // A pentagram's middle is wound around twice.
    const char* const pentagram = "0 10, 6 -8, -9.5 3, 9.5 3, -6 -8";
    EXPECT_FALSE(inside(pentagram, {0.25, 0.5}));
    EXPECT_TRUE(inside(pentagram, {0, 8}));
}

TEST(RegionInside, DoesNotDependOnTheOwnClosedFlag) {
    const gkRegion region(gkContour(square(0, 0, 10), false, 0), gkContourDefs::eKeepIntersections);
    EXPECT_TRUE(region.inside({0.5, 5}, false));
    EXPECT_FALSE(region.inside({-0.5, 5}, false));
}

TEST(RegionInside, OutsideTheBoxCastsNoRay) {
    const gkRegion region(square(0, 0, 10));
    region.encloseRect(gkXform<2>());
    EXPECT_FALSE(computes(region, [](const gkRegion& r) { EXPECT_FALSE(r.inside({11, 5}, false)); }));
    EXPECT_TRUE(computes(region, [](const gkRegion& r) { EXPECT_TRUE(r.inside({5, 5}, false)); }));
}

TEST(RegionInside, WithinAMillionthOfAVertexIsTrue) {
    EXPECT_TRUE(inside(kArrow, {0, 0}));
    EXPECT_TRUE(inside(kArrow, {0, 5e-7}));
    EXPECT_TRUE(inside(kArrow, {0, 1e-6})) << "the bound itself";
    // One step farther a ray decides: the first wide gap, from 45 to 270 degrees, sends it out to the left.
    EXPECT_FALSE(inside(kArrow, {0, above(1e-6)}));
}

TEST(RegionInside, OutsideTheBoxIsFalseEvenWithinAMillionthOfAVertex) {
    EXPECT_FALSE(inside(kArrow, {-5e-7, 0}));
    EXPECT_FALSE(inside(kArrow, {-std::numeric_limits<double>::denorm_min(), 0}));
    EXPECT_TRUE(inside(kArrow, {0, 0}));
}

TEST(RegionInside, OnAnEdgeIsDecidedByTheOtherEdges) {
    const gkRegion region(square(0, 0, 10));
    EXPECT_TRUE(region.inside({5, 0}, false))
        << "the ray goes up to the right and leaves through the right side";
    EXPECT_TRUE(region.inside({0, 5}, false)) << "the ray goes up and leaves through the top";
    EXPECT_TRUE(region.inside({10, 5}, false)) << "the ray goes up to the left and leaves through the top";
    EXPECT_FALSE(region.inside({5, 10}, false)) << "the ray goes straight up and meets nothing";
}

TEST(RegionInside, WithinAMillionthOfAnEdgeDoesNotCountThatEdge) {
    const gkRegion region(square(0, 0, 10));
    EXPECT_FALSE(region.inside({5, 10 - 5e-7}, false));
    EXPECT_TRUE(region.inside({5, 10 - 3e-6}, false));
}

TEST(RegionInside, InAHoleIsFalseWhenHolesAreConsidered) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2), sharedSquare(6, 6, 2)});
    EXPECT_FALSE(region.inside({3, 3}, true));
    EXPECT_FALSE(region.inside({7, 7}, true));
    EXPECT_TRUE(region.inside({3, 3}, false));
    EXPECT_TRUE(region.inside({5, 5}, true));
    EXPECT_FALSE(region.inside({11, 5}, true));
}

TEST(RegionInside, AtAHolesVertexIsInTheHole) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    EXPECT_FALSE(region.inside({2, 2}, true));
    EXPECT_TRUE(region.inside({below(2), 2}, true)) << "beside the hole's box";
}

TEST(RegionInside, LooksAtHolesOfHolesToAnyDepth) {
    const Shared island = sharedSquare(3, 3, 4);
    island->holes({sharedSquare(4, 4, 2)});
    const Shared lake = sharedSquare(2, 2, 6);
    lake->holes({island});
    gkRegion land(square(0, 0, 10));
    land.holes({lake});
    EXPECT_TRUE(land.inside({1, 1}, true));
    EXPECT_FALSE(land.inside({2.5, 2.5}, true));
    EXPECT_TRUE(land.inside({3.5, 3.5}, true));
    EXPECT_FALSE(land.inside({5, 5}, true));
}

TEST(RegionInside, OutsideTheOutlineIsFalseWhateverTheHoles) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(20, 20, 2)});
    EXPECT_FALSE(region.inside({21, 21}, true));
    EXPECT_FALSE(region.inside({21, 21}, false));
}

// The first vertex sits in the middle, so the ray is 20 long, as long as the shape is wide. From (10, 8),
// beyond the side x + y = 10, it goes through the gap between (-9, 4) and (-8, -6), enters through that side
// and ends in (-8.1, -0.4), just before it would leave between those two: one crossing.
TEST(RegionInside, ARayThatFallsShortCallsAPointBesideTheHullInside) {
    gkRegion region(points("0 0, 7 -7, 7 -3, 10 0, 0 10, -9 4, -8 -6"));
    EXPECT_FALSE(region.isSelfIntersecting());
    EXPECT_TRUE(region.inside({10, 8}, false));
    // From another first vertex the ray is long enough.
    region.points(points("7 -7, 7 -3, 10 0, 0 10, -9 4, -8 -6, 0 0"));
    EXPECT_FALSE(region.inside({10, 8}, false));
}

TEST(RegionInside, UsesTheKeptBoxAsItIs) {
    gkRegion region(square(0, 0, 10));
    // Kept under the key of the identity, since element (1, 1) takes no part: a box of double height.
    region.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 0.25), {0, 0}));
    EXPECT_FALSE(region.inside({5, 5}, false));
    EXPECT_TRUE(region.inside({5, 2}, false));
}

// The box kept under the identity's key reaches 1e150 high, far beyond what an index can compare. By hand: from
// up there a ray as long as the outline is wide meets nothing.
TEST(RegionInside, FarOutsideTheOutlineButInTheKeptBoxIsFalse) {
    for (const int count : {12, 60, 600}) {
        const gkRegion region(starOutline(count, 10.0));
        region.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 1e150), {0, 0}));
        for (int time = 0; time < 12; ++time) {
            EXPECT_FALSE(region.inside({1, 1e145}, false)) << count;
            EXPECT_FALSE(region.inside({1, -1e145}, false)) << count;
            EXPECT_FALSE(region.inside({1, 1e6}, false)) << count;
            EXPECT_TRUE(region.inside({1, 1}, false)) << count;
        }
    }
}

TEST(RegionInside, OfTooFewVerticesIsRefused) {
    for (const char* text : {"", "1 1"}) {
        EXPECT_THROW(gkRegion(points(text)).inside({1, 1}, false), gkContourDefs::EmptyContour) << text;
    }
}

TEST(RegionInside, OfTwoVerticesIsTrueAtTheirPlacesAlone) {
    EXPECT_TRUE(inside("0 0, 10 10", {0, 0}));
    EXPECT_TRUE(inside("0 0, 10 10", {10, 10}));
    EXPECT_FALSE(inside("0 0, 10 10", {5, 5}));
    EXPECT_FALSE(inside("0 0, 10 10", {5, 0})) << "both ways along the segment are crossed";
}

TEST(RegionInside, OfNanIsFalse) {
    const double nan = std::nan("");
    EXPECT_FALSE(inside(kArrow, {nan, 0}));
    EXPECT_FALSE(inside(kArrow, {5, nan}));
    EXPECT_FALSE(inside(kArrow, {INFINITY, 0}));
}

TEST(RegionInside, AsksAHoleOfTooFewVerticesAndPassesItsErrorOn) {
    gkRegion region(square(0, 0, 10));
    region.holes({shared("5 5")});
    EXPECT_THROW(region.inside({1, 1}, true), gkContourDefs::EmptyContour);
    EXPECT_TRUE(region.inside({1, 1}, false));
    EXPECT_FALSE(region.inside({11, 1}, true)) << "outside no hole is asked";
}

// Were each hole asked as often as it is met, this would not end.
TEST(RegionInside, AsksAHoleThatIsSharedOnEveryLevelOnce) {
    std::vector<Shared> nested = {sharedSquare(0, 0, 1)};
    for (int level = 1; level < 150; ++level) {
        nested.push_back(sharedSquare(-level, -level, 1 + 2 * level));
        nested.back()->holes({nested[nested.size() - 2], nested[nested.size() - 2]});
    }
    for (std::size_t level = 0; level < nested.size(); ++level)
        EXPECT_EQ(level % 2 == 0, nested[level]->inside({0.5, 0.5}, true));
}

TEST_F(RegionRing, OfHolesEndsInAnError) {
    for (const Shared& region : {outer, inner}) {
        try {
            region->inside({5, 5}, true);
            FAIL() << "nothing was thrown";
        } catch (const gkContourDefs::BadParams& error) {
            EXPECT_EQ(L"a region is a hole within its own holes", error.message());
        }
    }
}

TEST_F(RegionRing, OfHolesIsNotFollowedWhereThePointIsOutsideOfOne) {
    EXPECT_TRUE(outer->inside({1, 1}, true));
    EXPECT_FALSE(inner->inside({1, 1}, true));
    EXPECT_TRUE(outer->inside({5, 5}, false));
    EXPECT_EQ(64.0, outer->area(true));
    EXPECT_EQ(-64.0, inner->area(true));
}

TEST(RegionInside, OneHoleReachedOnTwoWaysIsNoRing) {
    const Shared common = sharedSquare(4, 4, 2);
    const Shared left = sharedSquare(3, 3, 4);
    const Shared right = sharedSquare(3.5, 3.5, 3);
    left->holes({common});
    right->holes({common});
    gkRegion region(square(0, 0, 10));
    region.holes({left, right, common});
    EXPECT_FALSE(region.inside({5, 5}, true));
    EXPECT_FALSE(region.inside({3.75, 3.75}, true));
    EXPECT_TRUE(region.inside({1, 1}, true));
}

TEST(InsideCount, NearAVertexIsOneWithoutARay) {
    int asked = 0;
    const auto count = [&](const gkVector<2>&) { return static_cast<long>(++asked); };
    EXPECT_EQ(1, countFrom(points("0 0, 4 0, 0 3"), {4, 1e-7}, 10.0, true, count));
    EXPECT_EQ(0, asked);
}

TEST(InsideCount, SendsTheRayThroughTheMiddleOfTheFirstWideGap) {
    gkVector<2> end;
    const auto count = [&](const gkVector<2>& towards) {
        end = towards;
        return 3L;
    };
    // Directions 45, 135, 225, 315 degrees, wider apart than pi / 4: straight up.
    EXPECT_EQ(3, countFrom(square(0, 0, 10), {5, 5}, 20.0, false, count));
    EXPECT_NEAR(5.0, end.x(), 1e-12);
    EXPECT_NEAR(25.0, end.y(), 1e-12);
    // Directions 0 and 30 and 180 degrees: the gap of 30 is not wider than pi / 3, that of 150 is.
    countFrom({{10, 0}, {std::sqrt(3.0), 1}, {-10, 0}}, {0, 0}, 1.0, false, count);
    EXPECT_NEAR(std::cos(105 * std::acos(-1.0) / 180), end.x(), 1e-12);
    EXPECT_NEAR(std::sin(105 * std::acos(-1.0) / 180), end.y(), 1e-12);
    // Directions 0, 45, 180 and 225 degrees: a gap of just pi / 4 is not wider than pi / 4.
    countFrom({{10, 0}, {5, 5}, {-5, 0}, {-5, -5}}, {0, 0}, 1.0, false, count);
    EXPECT_NEAR(std::cos(5 * std::acos(-1.0) / 8), end.x(), 1e-12);
    EXPECT_NEAR(std::sin(5 * std::acos(-1.0) / 8), end.y(), 1e-12);
    // The only wide gap goes over the x axis.
    countFrom({{-1, 1}, {-1, 0.5}, {-1, 0}, {-1, -0.5}, {-1, -1}}, {0, 0}, 2.0, false, count);
    EXPECT_NEAR(2.0, end.x(), 1e-12);
    EXPECT_NEAR(0.0, end.y(), 1e-12);
}

TEST(InsideCount, WithoutAWideGapLooksAlongTheXAxis) {
    gkVector<2> end;
    const auto count = [&](const gkVector<2>& towards) {
        end = towards;
        return 0L;
    };
    // The one vertex leaves a gap of a whole turn, which is none.
    countFrom({{0, 5}}, {0, 0}, 2.0, false, count);
    EXPECT_EQ(gkVector<2>(2, 0), end);
}

TEST(InsideCount, BothWaysIsTheLesserOfTwoOppositeRays) {
    std::vector<gkVector<2>> ends;
    const auto upMeetsMore = [&](const gkVector<2>& end) {
        ends.push_back(end);
        return end.y() > 5.0 ? 4L : 2L;
    };
    EXPECT_EQ(2, countFrom(square(0, 0, 10), {5, 5}, 20.0, true, upMeetsMore));
    ASSERT_EQ(2u, ends.size());
    EXPECT_NEAR(25.0, ends[0].y(), 1e-12);
    EXPECT_NEAR(-15.0, ends[1].y(), 1e-12);
    const auto downMeetsMore = [](const gkVector<2>& end) { return end.y() > 5.0 ? 1L : 2L; };
    EXPECT_EQ(1, countFrom(square(0, 0, 10), {5, 5}, 20.0, true, downMeetsMore));
}
