// Nearest vertices and points of regions, distances and crossings, with and without holes.
#include "tests/support/regions.h"

#include <gtest/gtest.h>

namespace {

gkRegion withHoles(const Holes& holes) {
    gkRegion region(square(0, 0, 10));
    region.holes(holes);
    return region;
}

gkRegion withOneHole() { return withHoles({sharedSquare(4, 4, 2)}); }

} // namespace

TEST(RegionClosestVertex, IsTheOutlinesUnlessHolesAreConsidered) {
    const gkRegion region = withOneHole();
    long hole = 99;
    EXPECT_EQ(2, region.closestVertexIndex({6.5, 6.5}, false, hole));
    EXPECT_EQ(-1, hole);
    EXPECT_EQ(2, region.closestVertexIndex({6.5, 6.5}));
}

TEST(RegionClosestVertex, OfAStrictlyNearerHoleNamesTheHole) {
    const gkRegion region = withHoles({sharedSquare(1, 1, 1), sharedSquare(6, 6, 2)});
    long hole = 99;
    EXPECT_EQ(3, region.closestVertexIndex({5.5, 8}, true, hole));
    EXPECT_EQ(1, hole);
    EXPECT_EQ(2, region.closestVertexIndex({2.5, 2.5}, true, hole));
    EXPECT_EQ(0, hole);
}

TEST(RegionClosestVertex, OfTheOutlineWinsATie) {
    const gkRegion region = withOneHole();
    long hole = 99;
    EXPECT_EQ(0, region.closestVertexIndex({2, 2}, true, hole)); // (0, 0) and (4, 4) are equally far
    EXPECT_EQ(-1, hole);
    EXPECT_EQ(0, region.closestVertexIndex({1, 1}, true, hole));
    EXPECT_EQ(-1, hole);
}

TEST(RegionClosestVertex, OfTheEarlierHoleWinsATie) {
    const gkRegion region = withHoles({sharedSquare(2, 4, 2), sharedSquare(6, 4, 2)});
    long hole = 99;
    EXPECT_EQ(1, region.closestVertexIndex({5, 4}, true, hole)); // (4, 4) of the first, (6, 4) of the second
    EXPECT_EQ(0, hole);
}

TEST(RegionClosestVertex, WithoutHolesNamesNone) {
    long hole = 99;
    EXPECT_EQ(2, gkRegion(square(0, 0, 10)).closestVertexIndex({9, 9}, true, hole));
    EXPECT_EQ(-1, hole);
}

TEST(RegionClosestPoint, AmongVerticesConsidersHolesWhenAsked) {
    const gkRegion region = withOneHole();
    EXPECT_EQ(gkVector<2>(6, 6), region.closestPoint({6.5, 6.5}, true, true));
    EXPECT_EQ(gkVector<2>(10, 10), region.closestPoint({6.5, 6.5}, true, false));
}

TEST(RegionClosestPoint, OnEdgesConsidersHolesWhetherAskedOrNot) {
    const gkRegion region = withOneHole();
    for (const bool considerHoles : {false, true}) {
        EXPECT_EQ(gkVector<2>(5, 6), region.closestPoint({5, 6.5}, false, considerHoles));
        EXPECT_EQ(gkVector<2>(5, 10), region.closestPoint({5, 9}, false, considerHoles));
    }
    EXPECT_EQ(gkVector<2>(5, 10), region.closestPoint({5, 6.5}, false))
        << "the contour's own query knows no holes";
}

TEST(RegionClosestPoint, OfTheOutlineAndOfTheEarlierHoleWinTies) {
    EXPECT_EQ(gkVector<2>(5, 0), withOneHole().closestPoint({5, 2}, false, true));
    const gkRegion two = withHoles({sharedSquare(2, 4, 2), sharedSquare(6, 4, 2)});
    EXPECT_EQ(gkVector<2>(4, 5), two.closestPoint({5, 5}, false, true));
}

TEST(RegionClosestPoint, LeavesOutTheHolesOfHoles) {
    const Shared hole = sharedSquare(2, 2, 6);
    hole->holes({sharedSquare(4, 4, 2)});
    const gkRegion region = withHoles({hole});
    EXPECT_EQ(gkVector<2>(5, 2), region.closestPoint({5, 3.5}, false, true));
    long index = 99;
    EXPECT_EQ(0, region.closestVertexIndex({4, 4}, true, index));
    EXPECT_EQ(0, index);
}

TEST(RegionDistance, IsToTheClosestPoint) {
    const gkRegion region = withOneHole();
    EXPECT_EQ(0.5, region.distToPoint({5, 6.5}, false, true, false));
    EXPECT_EQ(0.5, region.distToPoint({5, 6.5}, false, false, false)) << "holes take part on edges";
    EXPECT_EQ(5.0, region.distToPoint({7, 6}, true, false, false)) << "3 4 5 to (10, 10)";
    EXPECT_EQ(1.0, region.distToPoint({7, 6}, true, true, false));
    EXPECT_EQ(5.0, region.distToPoint({13, 14}, true, true, false));
}

TEST(RegionDistance, IsZeroInsideWhenAsked) {
    const gkRegion region = withOneHole();
    EXPECT_EQ(0.0, region.distToPoint({1, 2}, false, true, true));
    EXPECT_EQ(1.0, region.distToPoint({1, 2}, false, true, false));
    EXPECT_EQ(2.0, region.distToPoint({12, 5}, false, true, true)) << "outside";
    EXPECT_EQ(0.5, region.distToPoint({5, 5.5}, false, true, true)) << "in the hole";
    EXPECT_EQ(0.0, region.distToPoint({5, 5.5}, false, false, true)) << "in the hole, which is not considered";
}

TEST(RegionDistance, OfTheContourPartIsStillThere) {
    EXPECT_EQ(3.5, withOneHole().distToPoint({5, 6.5}, false));
}

TEST(RegionCrossings, WithASegmentListTheOutlinesThenEachHoles) {
    const gkRegion region = withHoles({sharedSquare(6, 4, 2), sharedSquare(2, 4, 2)});
    const gkLineSeg across({-1, 5}, {11, 5});
    EXPECT_EQ(points("0 5, 10 5"), region.intersections(across, true, false));
    EXPECT_EQ(points("0 5, 10 5, 6 5, 8 5, 2 5, 4 5"), region.intersections(across, true, true));
}

TEST(RegionCrossings, KeepPointsThatAppearTwice) {
    const gkRegion region = withOneHole();
    const gkLineSeg diagonal({-1, -1}, {5, 5});
    // Vertices belong to two edges each.
    EXPECT_EQ(points("0 0, 0 0, 4 4, 4 4"), region.intersections(diagonal, true, true));
}

TEST(RegionCrossings, WithASegmentThatEndsOnAnEdgeDependOnItsEnds) {
    const gkRegion region = withOneHole();
    const gkLineSeg ending({5, -1}, {5, 4});
    EXPECT_EQ(points("5 0, 5 4"), region.intersections(ending, true, true));
    EXPECT_EQ(points("5 0"), region.intersections(ending, false, true));
}

TEST(RegionCrossings, WithAContourListTheOutlinesThenEachHoles) {
    const gkRegion region = withHoles({sharedSquare(6, 4, 2), sharedSquare(2, 4, 2)});
    const gkContour line(points("-1 5, 11 5"), false, 0);
    EXPECT_EQ(points("0 5, 10 5"), region.intersections(line, false));
    EXPECT_EQ(points("0 5, 10 5"), region.intersections(line));
    EXPECT_EQ(points("0 5, 10 5, 6 5, 8 5, 2 5, 4 5"), region.intersections(line, true));
}

TEST(RegionCrossings, LeaveOutTheHolesOfHoles) {
    const Shared hole = sharedSquare(2, 2, 6);
    hole->holes({sharedSquare(4, 4, 2)});
    const gkRegion region = withHoles({hole});
    EXPECT_EQ(points("0 5, 10 5, 2 5, 8 5"), region.intersections(gkLineSeg({-1, 5}, {11, 5}), true, true));
    EXPECT_EQ(points("0 5, 10 5, 2 5, 8 5"),
              region.intersections(gkContour(points("-1 5, 11 5"), false, 0), true));
}

TEST(RegionProximity, OfTooFewVerticesFailsAsTheContourDoes) {
    const gkRegion one(points("3 3"));
    long hole = 99;
    EXPECT_THROW(one.closestVertexIndex({0, 0}), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.closestVertexIndex({0, 0}, true, hole), gkContourDefs::EmptyContour);
    EXPECT_EQ(-1, hole);
    EXPECT_THROW(one.closestPoint({0, 0}, true, true), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.closestPoint({0, 0}, false, true), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.distToPoint({0, 0}, false, true, false), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.distToPoint({0, 0}, false, true, true), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.intersections(gkLineSeg({0, 0}, {6, 6}), true, false), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.intersections(gkContour(points("0 0, 6 6"), false, 0), false),
                 gkContourDefs::EmptyContour);
}

TEST(RegionProximity, PassesOnWhatAHoleOfTooFewVerticesThrows) {
    const gkRegion region = withHoles({shared("5 5")});
    long hole = 99;
    EXPECT_THROW(region.closestVertexIndex({5, 5}, true, hole), gkContourDefs::EmptyContour);
    EXPECT_NO_THROW(region.closestVertexIndex({5, 5}, false, hole));
    EXPECT_NO_THROW(region.closestPoint({5, 5}, true, false));
    EXPECT_THROW(region.closestPoint({5, 5}, false, false), gkContourDefs::EmptyContour)
        << "holes always take part";
    EXPECT_THROW(region.intersections(gkLineSeg({0, 5}, {9, 5}), true, true), gkContourDefs::EmptyContour);
    EXPECT_NO_THROW(region.intersections(gkLineSeg({0, 5}, {9, 5}), true, false));
}

TEST(RegionProximity, KeepsNoResults) {
    const gkRegion region = withOneHole();
    EXPECT_FALSE(computes(region, [](const gkRegion& r) {
        long hole = 0;
        r.closestVertexIndex({5, 5}, true, hole);
        r.closestPoint({5, 5}, false, true);
        r.distToPoint({5, 5}, true, true, false);
    }));
}
