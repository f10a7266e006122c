// Segment numbering, nearest points and vertices, the vertex grid, the median segment length.
#include "cntr/search/vertex_cells.h"
#include "platform/system/assert.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

} // namespace

TEST(ContourSegments, OfAClosedTriangleBeginWithTheClosingOne) {
    const OpenedContour triangle = closed("0 0, 4 0, 0 3");
    ASSERT_EQ(3u, triangle.lineSegs().size());
    EXPECT_EQ(gkLineSeg({0, 3}, {0, 0}), triangle.lineSegs()[0]);
    EXPECT_EQ(gkLineSeg({0, 0}, {4, 0}), triangle.lineSegs()[1]);
    EXPECT_EQ(gkLineSeg({4, 0}, {0, 3}), triangle.lineSegs()[2]);
}

TEST(ContourSegments, OfTheOpenTriangleAreTwo) {
    const OpenedContour triangle = open("0 0, 4 0, 0 3");
    ASSERT_EQ(2u, triangle.lineSegs().size());
    EXPECT_EQ(gkLineSeg({0, 0}, {4, 0}), triangle.lineSegs()[0]);
    EXPECT_EQ(gkLineSeg({4, 0}, {0, 3}), triangle.lineSegs()[1]);
}

TEST(ContourSegments, OfEqualNeighboursArePlaceholdersMarkedInvalid) {
    const OpenedContour contour = open("0 0, 5 5, 5 5, 9 0");
    EXPECT_EQ((std::vector<bool>{true, false, true}), contour.validLine());
    EXPECT_EQ(gkLineSeg(), contour.lineSegs()[1]);
    EXPECT_EQ(gkVector<2>(5, 5), contour.closestPoint({5, 8}, false));
}

TEST(ContourSegments, AreInvalidWithin1eMinus15TheBoundIncluded) {
    EXPECT_FALSE(OpenedContour(Points{{0, 0}, {1e-15, -1e-15}}, false, 0).validLine()[0]);
    EXPECT_TRUE(OpenedContour(Points{{0, 0}, {above(1e-15), 0}}, false, 0).validLine()[0]);
    EXPECT_TRUE(OpenedContour(Points{{0, 0}, {0, above(1e-15)}}, false, 0).validLine()[0]);
}

TEST(ContourSegments, OfTooFewVerticesAreNoneOrOneDegenerate) {
    EXPECT_TRUE(closed("").lineSegs().empty());
    EXPECT_TRUE(open("3 4").lineSegs().empty());
    EXPECT_EQ((std::vector<bool>{false}), closed("3 4").validLine());
}

TEST(ContourSegments, OfAClosedPairAreTwoInOppositeDirections) {
    const OpenedContour pair = closed("0 0, 4 0");
    EXPECT_EQ(gkLineSeg({4, 0}, {0, 0}), pair.lineSegs()[0]);
    EXPECT_EQ(gkLineSeg({0, 0}, {4, 0}), pair.lineSegs()[1]);
}

TEST(ContourSegments, FollowAChangeOfTheVertices) {
    OpenedContour contour = open("0 0, 4 0");
    EXPECT_EQ(gkLineSeg({0, 0}, {4, 0}), contour.lineSegs()[0]);
    contour.points(points("1 1, 2 2, 3 3"));
    EXPECT_EQ(2u, contour.lineSegs().size());
}

TEST(ContourClosest, OnASegmentIsThePerpendicularFoot) {
    EXPECT_EQ(gkVector<2>(5, 0), open("0 0, 8 0").closestPoint({5, 3}, false));
    EXPECT_EQ(3.0, open("0 0, 8 0").distToPoint({5, 3}, false));
}

TEST(ContourClosest, BeyondASegmentIsItsEnd) {
    EXPECT_EQ(gkVector<2>(0, 0), open("0 0, 8 0").closestPoint({-3, 4}, false));
    EXPECT_EQ(gkVector<2>(8, 0), open("0 0, 8 0").closestPoint({11, 4}, false));
    EXPECT_EQ(5.0, open("0 0, 8 0").distToPoint({11, 4}, false));
}

TEST(ContourClosest, OfTwoEquallyNearSegmentsIsOnTheEarlier) {
    // (2, 2) is 2 away from the bottom (segment 1) and the left side (segment 0, walked first).
    EXPECT_EQ(gkVector<2>(0, 2), closed("0 0, 9 0, 9 9, 0 9").closestPoint({2, 2}, false));
    EXPECT_EQ(gkVector<2>(2, 0), open("0 0, 9 0, 9 9, 0 9, 0 0").closestPoint({2, 2}, false));
}

TEST(ContourClosest, VertexIsTheLowestIndexAmongEquals) {
    EXPECT_EQ(0, closed("0 0, 2 0, 2 2, 0 2").closestVertexIndex({1, 1}));
    EXPECT_EQ(gkVector<2>(0, 0), closed("0 0, 2 0, 2 2, 0 2").closestPoint({1, 1}, true));
    EXPECT_EQ(2, closed("0 0, 2 0, 2 2, 0 2").closestVertexIndex({3, 3}));
    EXPECT_EQ(std::sqrt(2.0), closed("0 0, 2 0, 2 2, 0 2").distToPoint({3, 3}, true));
}

TEST(ContourClosest, CountsTheClosingSegmentOfAClosedContourOnly) {
    EXPECT_EQ(gkVector<2>(0, 1), closed("0 0, 4 0, 4 2, 0 2").closestPoint({-1, 1}, false));
    EXPECT_EQ(gkVector<2>(0, 0), open("0 0, 4 0, 4 2, 0 2").closestPoint({-1, 1}, false));
}

TEST(ContourClosest, OfTooFewVerticesThrows) {
    const OpenedContour one = closed("1 1");
    EXPECT_THROW(one.closestPoint({0, 0}, false), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.closestPoint({0, 0}, true), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.closestVertexIndex({0, 0}), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.distToPoint({0, 0}, false), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.vertexIndex({0, 0}, 1.0), gkContourDefs::EmptyContour);
    EXPECT_THROW(one.medianFeatureSize(), gkContourDefs::EmptyContour);
}

TEST(ContourClosest, WithoutAFiniteDistanceIsTheOrigin) {
    const gkContour contour({{kNan, 0}, {kNan, 1}}, false, 0);
    EXPECT_EQ(gkVector<2>(), contour.closestPoint({1, 1}, false));
    EXPECT_EQ(0, contour.closestVertexIndex({1, 1}));
    EXPECT_EQ(gkVector<2>(), closed("3 3, 4 4").closestPoint({kNan, 1}, false));
}

TEST(VertexIndex, LeavesOutAVertexExactlyAtTheTolerance) {
    const gkContour contour = open("0 0, 3 4, 1 0");
    EXPECT_EQ((std::vector<int>{0, 2}), contour.vertexIndex({0, 0}, 5.0));
    EXPECT_EQ((std::vector<int>{0, 2, 1}), contour.vertexIndex({0, 0}, above(5.0)));
}

TEST(VertexIndex, AnswersCellByCellNotSorted) {
    // Cells of width 1 around (0, 0): column -1 first, whatever the index.
    const gkContour contour = open("0.6 0, -0.6 0, 0 0.6, 0 -0.6, 0 0");
    EXPECT_EQ((std::vector<int>{1, 3, 4, 2, 0}), contour.vertexIndex({0, 0}, 1.0));
}

TEST(VertexIndex, KeepsOneGridPerTolerance) {
    gk_VertexCells cells;
    const Points list = points("0 0, 3 4, 1 0");
    cells.near(list, nullptr, {0, 0}, 1.0);
    cells.near(list, nullptr, {0, 0}, 2.0);
    cells.near(list, nullptr, {0, 0}, 1.0);
    EXPECT_EQ(2u, cells.count());
}

TEST(VertexIndex, MarksTheContourChangedOnlyWhenItBuildsAGrid) {
    const gkContour contour = open("0 0, 3 4");
    const auto marks = [&](double tolerance) {
        contour.clearChanged();
        contour.vertexIndex({0, 0}, tolerance);
        return contour.isChanged();
    };
    EXPECT_TRUE(marks(1.0));
    EXPECT_FALSE(marks(1.0));
    EXPECT_TRUE(marks(2.0));
    EXPECT_FALSE(marks(1.0));
}

TEST(VertexIndex, FollowsAMovedVertex) {
    gkContour contour = open("0 0, 3 4");
    EXPECT_EQ((std::vector<int>{0}), contour.vertexIndex({0, 0}, 1.0));
    EXPECT_EQ((std::vector<int>{0}), contour.vertexIndex({0, 0}, 2.0));
    contour.points(points("5 5, 0.5 0"));
    EXPECT_EQ((std::vector<int>{1}), contour.vertexIndex({0, 0}, 1.0));
}

TEST(VertexIndex, FindsRepeatedVerticesAll) {
    EXPECT_EQ((std::vector<int>{0, 2}), open("1 1, 2 2, 1 1").vertexIndex({1, 1}, 1e-6));
}

TEST(VertexIndex, WorksFarBeyond32BitCells) {
    const gkContour contour({{2148, -2148}, {1e15, 1e15}, {-1e300, 1e300}}, false, 0);
    EXPECT_EQ((std::vector<int>{0}), contour.vertexIndex({2148, -2148}, 1e-6));
    EXPECT_EQ((std::vector<int>{1}), contour.vertexIndex({1e15, 1e15}, 1e-6));
    EXPECT_EQ((std::vector<int>{2}), contour.vertexIndex({-1e300, 1e300}, 1e-6));
    EXPECT_TRUE(contour.vertexIndex({1e300, 1e300}, 1e-6).empty());
}

TEST(VertexIndex, AssertsOnAQuotientThatIsNotANumber) {
    const gkContour contour = open("0 0, 3 4");
    EXPECT_THROW(contour.vertexIndex({kNan, 0}, 1.0), gkAssertionFailed);
    EXPECT_THROW(contour.vertexIndex({0, 0}, 0.0), gkAssertionFailed);
    EXPECT_THROW(gkContour({{kNan, 0}, {3, 4}}, false, 0).vertexIndex({3, 4}, 1.0), gkAssertionFailed);
    try {
        contour.vertexIndex({kNan, 0}, 1.0);
    } catch (const gkAssertionFailed& failed) {
        EXPECT_EQ(31, failed.line());
    }
    EXPECT_EQ((std::vector<int>{0}), contour.vertexIndex({0, 0}, 1.0));
}

TEST(VertexIndex, WithAnInfiniteToleranceFindsEveryFiniteVertex) {
    EXPECT_EQ((std::vector<int>{0, 1}), open("0 0, 3 4").vertexIndex({9, 9}, kInf));
}

TEST(GridCell, RoundsNegativeCoordinatesSymmetrically) {
    EXPECT_EQ(-1, gk_GridCell(-0.5, 1.0));
    EXPECT_EQ(1, gk_GridCell(0.5, 1.0));
    EXPECT_EQ(0, gk_GridCell(-0.49, 1.0));
    EXPECT_EQ(0, gk_GridCell(0.49, 1.0));
}

TEST(GridCell, IsTheIntegerPartOfTheQuotientPlusAHalf) {
    EXPECT_EQ(1,
              gk_GridCell(0.49999999999999994, 1.0)); // the sum rounds up to 1; no rounding function's answer
    EXPECT_EQ(-1, gk_GridCell(-0.49999999999999994, 1.0));
    EXPECT_EQ(3, gk_GridCell(5.0, 2.0));
}

TEST(GridCell, SaturatesInsteadOfOverflowing) {
    EXPECT_EQ(gk_GridCell(1e300, 1e-6), gk_GridCell(kInf, 1.0));
    EXPECT_EQ(-gk_GridCell(1e300, 1e-6), gk_GridCell(-1e300, 1e-6));
    EXPECT_EQ(2148000000, gk_GridCell(2148, 1e-6));
}

TEST(MedianFeatureSize, OfASquareIsItsSide) {
    EXPECT_EQ(1.0, closed("0 0, 1 0, 1 1, 0 1").medianFeatureSize());
}

TEST(MedianFeatureSize, OfAnEvenCountIsTheUpperMiddle) {
    EXPECT_EQ(3.0, open("0 0, 1 0, 3 0, 6 0, 10 0").medianFeatureSize());
}

TEST(MedianFeatureSize, CountsDegenerateSegments) {
    EXPECT_EQ(0.0, open("0 0, 0 0, 0 0, 5 0").medianFeatureSize());
}

TEST(MedianFeatureSize, PutsLengthsThatAreNotNumbersLast) {
    EXPECT_EQ(2.0, OpenedContour(Points{{0, 0}, {1, 0}, {3, 0}, {kNan, 0}}, false, 0).medianFeatureSize());
    EXPECT_TRUE(std::isnan(OpenedContour(Points{{kNan, 0}, {1, 0}, {kNan, 0}}, false, 0).medianFeatureSize()));
}
