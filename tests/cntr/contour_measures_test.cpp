// Length, mean position, circles, extremal vertices, boxes, hull and ellipse of contours.
#include "cntr/region.h"
#include "platform/core/fit/ellipse_fit.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const char* const kUnitSquare = "0 0, 1 0, 1 1, 0 1";
const char* const kTwoSquare = "0 0, 2 0, 2 2, 0 2";
const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

gkXform<2> translation(double x, double y) { return gkXform<2>(gkMatrix<2>::identity(), {x, y}); }

// A contour whose kept boxes and angles can be told from computed ones: its vertices are swapped behind the
// caches by a transform the map holds but that no vertex set gives.
std::size_t keptAmong(const gkContour& contour, const std::vector<gkXform<2>>& asked) {
    std::size_t kept = 0;
    for (const gkXform<2>& xform : asked) {
        contour.clearChanged();
        gkContour copy(contour); // so that asking does not change what is kept
        copy.clearChanged();
        copy.encloseRect(xform);
        if (!copy.isChanged()) ++kept;
    }
    return kept;
}

std::size_t anglesKeptAmong(const gkContour& contour, const std::vector<double>& asked) {
    std::size_t kept = 0;
    for (const double angle : asked) {
        gkContour copy(contour);
        copy.clearChanged();
        copy.extremalVertexIndex(gkRadian(angle));
        if (!copy.isChanged()) ++kept;
    }
    return kept;
}

} // namespace

TEST(ContourLength, OfASquarePath) {
    EXPECT_EQ(3.0, open(kUnitSquare).length());
    EXPECT_EQ(4.0, closed(kUnitSquare).length());
}

TEST(ContourLength, WithoutVerticesIsZeroAndThrowsNothing) {
    EXPECT_EQ(0.0, open("").length());
    EXPECT_EQ(0.0, closed("").length());
    EXPECT_EQ(0.0, closed("5 5").length());
}

TEST(ContourMeanPosition, OfTheClosedUnitSquareIsItsMiddle) {
    EXPECT_EQ(gkVector<2>(0.5, 0.5), closed(kUnitSquare).meanPosition());
}

TEST(ContourMeanPosition, OfTwoEqualSegmentsIsTheirMiddle) {
    EXPECT_EQ(gkVector<2>(1, 0), closed("0 0, 2 0").meanPosition());
}

TEST(ContourMeanPosition, IsWeightedByLength) {
    // lengths 4, 3 and 5 with midpoints (2, 0), (0, 1.5), (2, 1.5)
    const gkVector<2> mean = closed("0 0, 4 0, 0 3").meanPosition();
    EXPECT_NEAR((4 * 2.0 + 5 * 2.0) / 12, mean.x(), 1e-15);
    EXPECT_NEAR((3 * 1.5 + 5 * 1.5) / 12, mean.y(), 1e-15);
}

TEST(ContourMeanPosition, OfCoincidingVerticesIsADivisionByZero) {
    EXPECT_TRUE(std::isnan(closed("3 4, 3 4").meanPosition().x()));
}

TEST(ContourMeanPosition, OfOneVertexThrows) {
    EXPECT_THROW(closed("3 4").meanPosition(), gkContourDefs::EmptyContour);
}

TEST(ContourDiameter, OfASquareInBothModes) {
    EXPECT_EQ(2 * std::sqrt(2.0), closed(kTwoSquare).diameter(gkContourDefs::eExact));
    EXPECT_EQ(4 * std::sqrt(2.0), closed(kTwoSquare).diameter(gkContourDefs::eApproximate));
}

TEST(ContourDiameter, WithAnInvalidModeThrowsAndKeepsNothing) {
    const gkContour contour = closed(kTwoSquare);
    contour.clearChanged();
    for (const int value : {2, -1, 1000}) {
        try {
            contour.diameter(static_cast<gkContourDefs::DiameterMode>(value));
            FAIL() << "nothing was thrown";
        } catch (const gkContourDefs::BadParams& error) {
            EXPECT_EQ(L"diameterMode is not one of the valid enums", error.message());
        }
    }
    EXPECT_FALSE(contour.isChanged());
}

TEST(ContourCircle, IsOverTheFirstFarthestPair) {
    // Both diagonals of the square are as long; the pair (0, 2) comes first.
    const gkCircle circle = closed("0 0, 4 0, 4 3, 0 3").encloseCircle(gkContourDefs::eExact);
    EXPECT_EQ(2.0, circle.center().x());
    EXPECT_EQ(1.5, circle.center().y());
    EXPECT_EQ(2.5, circle.radius());
}

TEST(ContourCircle, OverTheFarthestPairNeedNotHoldEveryVertex) {
    const gkContour triangle = closed("0 0, 2 0, 1 1.7320508");
    const gkCircle circle = triangle.encloseCircle(gkContourDefs::eExact);
    EXPECT_EQ(1.0, circle.radius());
    EXPECT_GT(gkVector<2>(1, 1.7320508).distance(circle.center().vector()), 1.7);
}

TEST(ContourCircle, AroundTheFirstVertexReachesTheFarthest) {
    const gkCircle circle = closed("1 1, 4 5, 1 2").encloseCircle(gkContourDefs::eApproximate);
    EXPECT_EQ(1.0, circle.center().x());
    EXPECT_EQ(5.0, circle.radius());
    EXPECT_EQ(0.0, closed("1 1").encloseCircle(gkContourDefs::eApproximate).radius());
}

TEST(ContourCircle, KeepsItsOldSlotWhenNoPairIsApart) {
    gkContour contour = closed("0 0, 6 8");
    EXPECT_EQ(5.0, contour.encloseCircle(gkContourDefs::eExact).radius());
    contour.points(points("7 7, 7 7, 7 7"));
    EXPECT_EQ(5.0, contour.encloseCircle(gkContourDefs::eExact).radius());
    contour.points(Points());
    EXPECT_EQ(10.0, contour.diameter(gkContourDefs::eExact));
    EXPECT_EQ(0.0, closed("7 7").encloseCircle(gkContourDefs::eExact).radius());
    EXPECT_EQ(0.0, closed("").encloseCircle(gkContourDefs::eExact).radius());
}

TEST(ContourCircle, ApproximateWithoutVerticesThrows) {
    EXPECT_THROW(closed("").encloseCircle(gkContourDefs::eApproximate), gkContourDefs::EmptyContour);
}

TEST(ContourCircle, PassesOverVerticesThatAreNotNumbers) {
    const gkContour contour({{0, 0}, {kNan, 1}, {3, 4}}, true, 0);
    EXPECT_EQ(5.0, contour.diameter(gkContourDefs::eExact));
}

TEST(ContourExtremal, TiesKeepTheLowestIndex) {
    const gkContour contour = closed("0 0, 3 1, 3 5");
    EXPECT_EQ(1, contour.extremalVertexIndex(gkRadian(0.0)));
    EXPECT_EQ(2, contour.extremalVertexIndex(gkRadian(M_PI / 2)));
    EXPECT_EQ(0, contour.extremalVertexIndex(gkRadian(M_PI)));
    EXPECT_EQ(0, contour.extremalVertexIndex(gkRadian(-M_PI / 2)));
    EXPECT_EQ(gkVector<2>(3, 1), contour.extremalVertexPosition(gkRadian(0.0)));
}

TEST(ContourExtremal, AxisDirectionsCompareExactCoordinates) {
    // The sine of the rounded right angle's cosine is 6e-17, enough to tip a tie of large x against equal y.
    const gkContour contour({{-1e9, 1}, {1e9, 1}}, true, 0);
    EXPECT_EQ(0, contour.extremalVertexIndex(gkRadian(M_PI / 2)));
    EXPECT_EQ(1, gkContour({{1e9, 1}, {-1e9, below(1)}}, true, 0).extremalVertexIndex(gkRadian(-M_PI / 2)));
}

TEST(ContourExtremal, OtherDirectionsUseTheDotProduct) {
    EXPECT_EQ(2, closed("0 0, 3 0, 2 2, 0 3").extremalVertexIndex(gkRadian(M_PI / 4)));
}

TEST(ContourExtremal, ZeroAndAFullTurnAreDifferentKeysWithTheSameAnswer) {
    gkContour contour = closed("0 0, 3 1, 3 5");
    contour.cachedVectorSize(5);
    EXPECT_EQ(contour.extremalVertexIndex(gkRadian(0.0)), contour.extremalVertexIndex(gkRadian(2 * M_PI)));
    EXPECT_EQ(2u, anglesKeptAmong(contour, {0.0, 2 * M_PI}));
}

TEST(ContourExtremal, WithCachedVectorSizeZeroOneAngleIsKeptTheLaterOne) {
    gkContour contour = closed("0 0, 3 1, 3 5");
    contour.cachedVectorSize(0);
    contour.extremalVertexIndex(gkRadian(0.5));
    contour.extremalVertexIndex(gkRadian(1.5));
    EXPECT_EQ(0u, anglesKeptAmong(contour, {0.5}));
    EXPECT_EQ(1u, anglesKeptAmong(contour, {1.5}));
}

TEST(ContourExtremal, WithoutAFiniteScoreThereIsNoVertex) {
    const gkContour contour({{kNan, kNan}, {kNan, 0}}, true, 0);
    EXPECT_EQ(-1, contour.extremalVertexIndex(gkRadian(0.0)));
    EXPECT_THROW(contour.extremalVertexPosition(gkRadian(0.0)), gkContourDefs::BadParams);
    EXPECT_EQ(-1, closed("0 0, 1 1").extremalVertexIndex(gkRadian(kNan)));
}

TEST(ContourExtremal, OfOneVertexThrows) {
    EXPECT_THROW(closed("1 1").extremalVertexIndex(gkRadian(0.0)), gkContourDefs::EmptyContour);
    EXPECT_THROW(closed("1 1").extremalVertexPosition(gkRadian(0.0)), gkContourDefs::EmptyContour);
}

TEST(ContourBox, UnderTheIdentity) {
    const gkRect rect = closed("1 1, 3 2").encloseRect(gkXform<2>());
    EXPECT_EQ(gkRect({1, 1}, {2, 1}), rect);
}

TEST(ContourBox, IsOfTheMappedVertices) {
    const gkXform<2> quarterTurn(gkMatrix<2>(0, -1, 1, 0), {10, 0});
    EXPECT_EQ(gkRect::fromCorners({8, 1}, {9, 3}), closed("1 1, 3 2").encloseRect(quarterTurn));
}

TEST(ContourBox, TransformThatDiffersOnlyInTheLastElementSharesTheKeptBox) {
    const gkContour contour = closed("1 1, 3 2");
    const gkRect first = contour.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 5), {0, 0}));
    EXPECT_EQ(gkRect::fromCorners({1, 5}, {3, 10}), first);
    EXPECT_EQ(first, contour.encloseRect(gkXform<2>()));
}

TEST(ContourBox, AfterFiveTransformsFourAreKept) {
    const gkContour contour = closed("1 1, 3 2");
    std::vector<gkXform<2>> asked;
    for (int i = 0; i < 5; ++i) {
        asked.push_back(translation(i, 0));
        contour.encloseRect(asked.back());
        EXPECT_EQ(std::min<std::size_t>(asked.size(), 4), keptAmong(contour, asked));
    }
    EXPECT_EQ(1u, keptAmong(contour, {asked.back()}));
}

TEST(ContourBox, LoweringTheBoundKeepsTheMapAndLaterMissesReplace) {
    gkContour contour = closed("1 1, 3 2");
    std::vector<gkXform<2>> asked;
    for (int i = 0; i < 4; ++i) {
        asked.push_back(translation(i, 0));
        contour.encloseRect(asked.back());
    }
    contour.cachedVectorSize(1);
    EXPECT_EQ(4u, keptAmong(contour, asked));
    asked.push_back(translation(9, 9));
    contour.encloseRect(asked.back());
    EXPECT_EQ(4u, keptAmong(contour, asked));
}

TEST(ContourBox, EvictionDoesNotChangeAnyAnswer) {
    gkContour contour = closed("1 1, 3 2, -4 7");
    for (int round = 0; round < 200; ++round) {
        const gkXform<2> xform = translation((round * 7) % 11, 0);
        gkContour fresh = closed("1 1, 3 2, -4 7");
        ASSERT_EQ(fresh.encloseRect(xform), contour.encloseRect(xform)) << round;
        ASSERT_EQ(fresh.extremalVertexIndex(gkRadian(round % 13)),
                  contour.extremalVertexIndex(gkRadian(round % 13)));
    }
}

TEST(ContourBox, TransformWithNanIsAnsweredButNotKept) {
    const gkContour contour = closed("1 1, 3 2");
    const gkXform<2> bad = translation(kNan, 0);
    EXPECT_TRUE(std::isnan(contour.encloseRect(bad).ul().x()));
    EXPECT_EQ(gkRect({1, 1}, {2, 1}), contour.encloseRect(gkXform<2>()));
    EXPECT_EQ(0u, keptAmong(contour, {bad}));
}

TEST(ContourBox, PassesOverNanExceptInTheFirstVertex) {
    EXPECT_EQ(gkRect({1, 1}, {2, 1}),
              gkContour({{1, 1}, {kNan, kNan}, {3, 2}}, true, 0).encloseRect(gkXform<2>()));
    EXPECT_TRUE(std::isnan(gkContour({{kNan, 1}, {3, 2}}, true, 0).encloseRect(gkXform<2>()).ul().x()));
}

TEST(ContourBox, OfInfiniteVerticesReachesInfinity) {
    EXPECT_EQ(kInf, gkContour({{1, 1}, {kInf, 2}}, true, 0).encloseRect(gkXform<2>()).lr().x());
}

TEST(ContourBox, OfOneVertexThrows) {
    EXPECT_THROW(closed("1 1").encloseRect(gkXform<2>()), gkContourDefs::EmptyContour);
}

TEST(ContourHull, IsARegionWithoutTheInnerVertices) {
    gkRegion hull;
    open("0 0, 2 0, 1 1, 2 2, 0 2, 1 0").convexHull(hull);
    EXPECT_EQ(points("0 0, 2 0, 2 2, 0 2"), hull.points());
    EXPECT_TRUE(hull.isClosed());
}

TEST(ContourHull, OfCollinearVerticesHasTheTwoEnds) {
    gkRegion hull;
    open("0 0, 1 1, 3 3, 2 2").convexHull(hull);
    EXPECT_EQ(points("0 0, 3 3"), hull.points());
}

TEST(ContourHull, OntoTheRegionItself) {
    gkRegion region(points("0 0, 2 0, 1 1, 2 2, 0 2"));
    region.convexHull(region);
    EXPECT_EQ(points("0 0, 2 0, 2 2, 0 2"), region.points());
    region.convexHull(region);
    EXPECT_EQ(points("0 0, 2 0, 2 2, 0 2"), region.points());
}

TEST(ContourHull, OntoARegionThatSharesTheKeptHull) {
    gkRegion region(points("0 0, 2 0, 1 1, 2 2, 0 2"));
    gkRegion hull;
    region.convexHull(hull);
    gkRegion copy(region);
    copy.convexHull(copy);
    region.convexHull(hull);
    EXPECT_EQ(copy.points(), hull.points());
}

TEST(ContourHull, OfOneVertexThrowsAndLeavesTheOutput) {
    gkRegion hull(points("9 9"));
    EXPECT_THROW(closed("1 1").convexHull(hull), gkContourDefs::EmptyContour);
    EXPECT_EQ(points("9 9"), hull.points());
}

TEST(ContourEllipse, IsKeptAndFailuresAreNot) {
    Points circle;
    for (int i = 0; i < 12; ++i)
        circle.emplace_back(3 + 2 * std::cos(i * M_PI / 6), 4 + 2 * std::sin(i * M_PI / 6));
    gkContour contour(circle, true, 0);
    gkEllipse ellipse;
    double error = -1.0;
    contour.fitEllipse(ellipse, error);
    EXPECT_NEAR(2.0, ellipse.radii().x(), 1e-12);
    contour.points(points("0 0, 1 1"));
    gkEllipse untouched = ellipse;
    EXPECT_THROW(contour.fitEllipse(ellipse, error), gkException);
    EXPECT_TRUE(untouched == ellipse);
    EXPECT_THROW(contour.fitEllipse(ellipse, error), gkException);
    EXPECT_THROW(closed("1 1").fitEllipse(ellipse, error), gkContourDefs::EmptyContour);
}
