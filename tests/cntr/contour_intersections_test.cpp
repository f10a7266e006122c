// Crossings of contours with segments, with contours, and with themselves.
#include "cntr/crossings.h"
#include "cntr/region.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const char* const kUnitSquare = "0 0, 1 0, 1 1, 0 1"; // segments: 0 left (down), 1 bottom, 2 right, 3 top
const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

gkLineSeg seg(double x1, double y1, double x2, double y2) { return gkLineSeg({x1, y1}, {x2, y2}); }

} // namespace

TEST(ContourCrossings, OfASegmentThroughTheSquareAreOrderedAlongIt) {
    const OpenedContour square = closed(kUnitSquare);
    std::vector<int> sides;
    EXPECT_EQ((Points{{0, 0.5}, {1, 0.5}}), square.intersections(seg(-1, 0.5, 2, 0.5), sides, true));
    EXPECT_EQ((std::vector<int>{0, 2}), sides);
}

TEST(ContourCrossings, OfTheReversedSegmentComeInReverseOrder) {
    const OpenedContour square = closed(kUnitSquare);
    std::vector<int> sides;
    EXPECT_EQ((Points{{1, 0.5}, {0, 0.5}}), square.intersections(seg(2, 0.5, -1, 0.5), sides, true));
    EXPECT_EQ((std::vector<int>{2, 0}), sides);
}

TEST(ContourCrossings, ThroughAVertexGiveItTwice) {
    const OpenedContour square = closed(kUnitSquare);
    std::vector<int> sides;
    const Points found = square.intersections(seg(-1, 1, 1, -1), sides, true);
    ASSERT_EQ(2u, found.size());
    EXPECT_LT(found[0].distance({0, 0}), 1e-6);
    EXPECT_LT(found[1].distance({0, 0}), 1e-6);
    EXPECT_EQ((std::vector<int>{0, 1}), sides);
}

TEST(ContourCrossings, OfASegmentEndingOnASideCountWithItsEndsOnly) {
    const OpenedContour square = closed(kUnitSquare);
    EXPECT_EQ((Points{{0, 0.5}, {1, 0.5}}), square.intersections(seg(-1, 0.5, 1, 0.5), true));
    EXPECT_EQ((Points{{0, 0.5}}), square.intersections(seg(-1, 0.5, 1, 0.5), false));
}

TEST(ContourCrossings, ASideWithinTheTouchOfAnEndIsLeftOutTheBoundIncluded) {
    const OpenedContour line = open("0 -5, 0 5");
    EXPECT_TRUE(line.intersections(seg(-1, 0, 1e-6, 0), false).empty());
    EXPECT_EQ(1u, line.intersections(seg(-1, 0, above(1e-6), 0), false).size());
    EXPECT_TRUE(line.intersections(seg(-1e-6, 0, 1, 0), false).empty());
    EXPECT_EQ(1u, line.intersections(seg(-above(1e-6), 0, 1, 0), false).size());
}

TEST(ContourCrossings, APointMustBeStrictlyNearerThanTheTouchToTheContoursSegment) {
    // The lines cross exactly at (gap, 0), which is gap beyond the segment's start at the origin.
    const OpenedContour line = open("0 0, -4 0");
    const auto crosses = [&](double gap) {
        return !line.intersections(gkLineSeg({gap, 0}, {-1, -1}), true).empty();
    };
    EXPECT_TRUE(crosses(below(1e-6)));
    EXPECT_FALSE(crosses(1e-6));
}

TEST(ContourCrossings, APointMustBeStrictlyNearerThanTheTouchToTheQuery) {
    const auto crosses = [](double gap) {
        const OpenedContour line(Points{{gap, 0}, {-1, -1}}, false, 0);
        return !line.intersections(gkLineSeg({0, 0}, {-4, 0}), true).empty();
    };
    EXPECT_TRUE(crosses(below(1e-6)));
    EXPECT_FALSE(crosses(1e-6));
}

TEST(ContourCrossings, AlongASideGiveNoneFromThatSide) {
    const OpenedContour square = closed(kUnitSquare);
    std::vector<int> sides;
    square.intersections(seg(-1, 0, 2, 0), sides, true);
    EXPECT_EQ((std::vector<int>{0, 2}), sides);
}

TEST(ContourCrossings, OfASegmentBesideTheContourAreNoneAndTheIndicesEmptied) {
    const OpenedContour square = closed(kUnitSquare);
    std::vector<int> sides = {7, 8};
    EXPECT_TRUE(square.intersections(seg(5, 5, 6, 6), sides, true).empty());
    EXPECT_TRUE(sides.empty());
}

TEST(ContourCrossings, BoxesThatOnlyTouchOverlap) {
    EXPECT_EQ((Points{{1, 1}, {1, 1}}), closed(kUnitSquare).intersections(seg(1, 1, 2, 3), true));
    EXPECT_TRUE(closed(kUnitSquare).intersections(seg(above(1), above(1), 2, 3), true).empty());
}

TEST(ContourCrossings, OfAPointAreNone) {
    EXPECT_TRUE(closed(kUnitSquare).intersections(seg(0, 0.5, 0, 0.5), true).empty());
}

TEST(ContourCrossings, SkipDegenerateSegmentsButKeepTheirIndex) {
    const OpenedContour contour = open("0 0, 4 0, 4 0, 8 0, 8 8");
    std::vector<int> found;
    contour.intersections(seg(6, -1, 6, 1), found, true);
    EXPECT_EQ((std::vector<int>{2}), found);
}

TEST(ContourCrossings, WithEqualKeysKeepTheExchangeOrder) {
    // Three segments through (2, 0) and one through (1, 0), in index order 2, 2, 2, 1. The first place is
    // exchanged with the last, which moves the first of the equal ones behind the other two.
    const gkLineSeg query = seg(0, 0, 4, 0);
    std::vector<gk_Crossing> crossings = {{{2, 0}, 0}, {{2, 0}, 1}, {{2, 0}, 2}, {{1, 0}, 3}};
    gk_OrderAlong(query, crossings);
    EXPECT_EQ(3, crossings[0].segment);
    EXPECT_EQ(1, crossings[1].segment);
    EXPECT_EQ(2, crossings[2].segment);
    EXPECT_EQ(0, crossings[3].segment);
}

TEST(ContourCrossings, UseTheKeptBoxOfATransformThatSharesTheIdentitysKey) {
    const OpenedContour square = closed(kUnitSquare);
    // Asked first, the stretched box [0,1] x [10,10 + ...] stands in for the contour's own, and the query
    // misses it.
    square.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, -5), {0, 0}));
    EXPECT_EQ(gkRect::fromCorners({0, -5}, {1, 0}), square.encloseRect(gkXform<2>()));
    EXPECT_TRUE(square.intersections(seg(-1, 0.5, 2, 0.5), true).empty());
    EXPECT_EQ(2u, closed(kUnitSquare).intersections(seg(-1, 0.5, 2, 0.5), true).size());
}

TEST(ContourCrossings, OfAnotherContourAreInItsSegmentOrderWithEnds) {
    const gkContour square = closed("0 0, 4 0, 4 4, 0 4");
    const gkContour path = open("-1 1, 5 1, 5 3, 4 3");
    EXPECT_EQ((Points{{0, 1}, {4, 1}, {4, 3}}), square.intersections(path));
    const gkContour triangle = closed("-1 1, 5 1, 5 3");
    const Points found = square.intersections(triangle); // closing segment first, from (5, 3) to (-1, 1)
    ASSERT_EQ(4u, found.size());
    EXPECT_NEAR(4, found[0].x(), 1e-12);
    EXPECT_NEAR(0, found[1].x(), 1e-12);
    EXPECT_EQ((Points{{0, 1}, {4, 1}}), Points(found.begin() + 2, found.end()));
}

TEST(ContourCrossings, OfAnotherContourWithFewVerticesAreNone) {
    const gkContour square = closed(kUnitSquare);
    EXPECT_TRUE(square.intersections(closed("")).empty());
    EXPECT_TRUE(square.intersections(closed("0 0.5")).empty());
    EXPECT_TRUE(square.intersections(open("0 0.5")).empty());
}

TEST(ContourCrossings, OfItself) {
    EXPECT_EQ(8u, closed(kUnitSquare).intersections(closed(kUnitSquare)).size());
}

TEST(ContourCrossings, OfTooFewVerticesThrow) {
    std::vector<int> indices;
    for (const char* text : {"", "1 1"}) {
        EXPECT_THROW(closed(text).intersections(seg(0, 0, 1, 1), true), gkContourDefs::EmptyContour);
        EXPECT_THROW(closed(text).intersections(seg(0, 0, 1, 1), indices, true), gkContourDefs::EmptyContour);
        EXPECT_THROW(closed(text).intersections(closed(kUnitSquare)), gkContourDefs::EmptyContour);
    }
}

TEST(ContourCrossings, WithVerticesThatAreNotNumbersEnd) {
    for (const double bad : {kNan, kInf, -kInf}) {
        const gkContour contour({{0, 0}, {bad, 1}, {1, bad}, {1, 1}}, true, 0);
        EXPECT_NO_THROW(contour.intersections(seg(-1, 0.5, 2, 0.5), true));
        EXPECT_NO_THROW(contour.intersections(gkLineSeg({bad, 0}, {0, bad}), false));
        EXPECT_NO_THROW(contour.isSelfIntersecting());
    }
}

TEST(SelfIntersection, OfAFigureEight) { EXPECT_TRUE(closed("0 0, 2 2, 2 0, 0 2").isSelfIntersecting()); }

TEST(SelfIntersection, OfASimplePolygon) {
    EXPECT_FALSE(closed("0 0, 4 0, 4 1, 1 1, 1 3, 0 3").isSelfIntersecting());
}

TEST(SelfIntersection, OfAClosedPair) { EXPECT_FALSE(closed("0 0, 4 0").isSelfIntersecting()); }

TEST(SelfIntersection, OfTooFewVerticesIsFalse) {
    EXPECT_FALSE(closed("").isSelfIntersecting());
    EXPECT_FALSE(closed("1 1").isSelfIntersecting());
    EXPECT_FALSE(open("1 1").isSelfIntersecting());
    EXPECT_FALSE(gkContour({{kNan, 1}}, true, 0).isSelfIntersecting());
}

TEST(SelfIntersection, TheClosingSegmentCounts) {
    const char* const bow = "0 0, 2 0, 0 2, 2 2"; // (2,0)-(0,2) crosses the closing segment (2,2)-(0,0)
    EXPECT_FALSE(open(bow).isSelfIntersecting());
    EXPECT_TRUE(closed(bow).isSelfIntersecting());
}

TEST(SelfIntersection, AVertexOnAnotherSegmentIsFoundFromThatSegmentsSide) {
    // The spike's tip (2, 0) lies on the bottom edge's interior.
    EXPECT_TRUE(closed("0 0, 4 0, 4 4, 2 0, 0 4").isSelfIntersecting());
}

TEST(SelfIntersection, CollinearOverlapsAreNotFound) {
    EXPECT_FALSE(closed("0 0, 4 0, 2 0, 6 0").isSelfIntersecting());
    EXPECT_FALSE(open("0 0, 4 0, 2 0").isSelfIntersecting());
}

TEST(SelfIntersection, IsForgottenWhenTheVerticesChange) {
    gkContour contour = closed("0 0, 2 2, 2 0, 0 2");
    EXPECT_TRUE(contour.isSelfIntersecting());
    contour.points(points(kUnitSquare));
    EXPECT_FALSE(contour.isSelfIntersecting());
}
