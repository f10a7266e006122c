// Area, centroid and second moments of vertex lists, with values from mathematics.
#include "cntr/inertia_piece.h"
#include "cntr/moments.h"
#include "platform/core/object/errors.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

Points reversed(Points list) {
    std::reverse(list.begin(), list.end());
    return list;
}

std::vector<gkEdgelet> edgelets(const Points& list) {
    std::vector<gkEdgelet> result;
    for (const gkVector<2>& point : list)
        result.emplace_back(point, static_cast<unsigned short>(7), gkAngle8(3));
    return result;
}

void expectInertia(const gk_InertiaData& data, double area, gkVector<2> center, gkMatrix<2> moments,
                   double tolerance) {
    EXPECT_NEAR(area, data.area(), tolerance);
    EXPECT_NEAR(center.x(), data.centerOfMass().x(), tolerance);
    EXPECT_NEAR(center.y(), data.centerOfMass().y(), tolerance);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            EXPECT_NEAR(moments.element(row, column), data.inertiaMatrix().element(row, column), tolerance)
                << row << column;
        }
    }
}

constexpr double kRounding = 1e-13; // a few ulps of values up to 10

const char* const kSquare = "0 0, 1 0, 1 1, 0 1";
const char* const kEll = "0 0, 4 0, 4 1, 1 1, 1 3, 0 3";

} // namespace

TEST(PolygonArea, OfTheUnitSquareIsOneForBothOrientations) {
    EXPECT_EQ(1.0, gf_Area(points(kSquare)));
    EXPECT_EQ(1.0, gf_Area(reversed(points(kSquare))));
}

TEST(PolygonArea, OfOneOrTwoPointsIsZero) {
    EXPECT_EQ(0.0, gf_Area(points("3 4")));
    EXPECT_EQ(0.0, gf_Area(points("3 4, 5 9")));
}

TEST(PolygonArea, OfTwoEdgeletsIsZero) {
    EXPECT_EQ(0.0, gf_Area(edgelets(points("3 4, 5 9"))));
    EXPECT_EQ(0.0, gf_Area(std::vector<gkEdgelet>()));
}

TEST(PolygonArea, OfNoPointsFailsInACheckedAccess) {
    EXPECT_THROW(gf_Area(std::vector<gkVector<2>>()), std::out_of_range);
}

TEST(PolygonArea, OfEdgeletsIsThatOfTheirPositions) { EXPECT_EQ(6.0, gf_Area(edgelets(points(kEll)))); }

TEST(PolygonArea, RepeatedClosingVertexAddsNothing) {
    EXPECT_EQ(1.0, gf_Area(points("0 0, 1 0, 1 1, 0 1, 0 0")));
}

TEST(PolygonArea, OppositeLobesCancel) { EXPECT_EQ(0.0, gf_Area(points("0 0, 2 2, 2 0, 0 2"))); }

TEST(Centroid, OfFewerThanThreePointsIsTheOrigin) {
    EXPECT_EQ(gkVector<2>(), gnContour::centerOfMass({}));
    EXPECT_EQ(gkVector<2>(), gnContour::centerOfMass(points("3 4")));
    EXPECT_EQ(gkVector<2>(), gnContour::centerOfMass(points("3 4, 5 9")));
}

TEST(Centroid, OfCollinearVerticesIsTheOriginNotTheirMean) {
    EXPECT_EQ(gkVector<2>(), gf_CenterOfMass(points("1 1, 2 2, 3 3, 5 5")));
}

TEST(Centroid, DoesNotDependOnTheOrientation) {
    EXPECT_EQ(gf_CenterOfMass(points(kEll)), gf_CenterOfMass(reversed(points(kEll))));
    EXPECT_NEAR(1.5, gf_CenterOfMass(points(kEll)).x(), kRounding);
    EXPECT_NEAR(1.0, gf_CenterOfMass(points(kEll)).y(), kRounding);
}

TEST(Centroid, RepeatedClosingVertexChangesNothing) {
    EXPECT_EQ(gf_CenterOfMass(points(kSquare)), gf_CenterOfMass(points("0 0, 1 0, 1 1, 0 1, 0 0")));
}

TEST(Centroid, OfEdgeletsIsThatOfTheirPositions) {
    EXPECT_EQ(gf_CenterOfMass(points(kEll)), gf_CenterOfMass(edgelets(points(kEll))));
}

TEST(Centroid, SkipsEdgesWithinTheFirstBoundOfTheOrigin) {
    // Doubled areas of 1e-15 are skipped, the bound included; three such edges leave no area at all.
    EXPECT_EQ(gkVector<2>(), gf_CenterOfMass(points("0 0, 1e-15 0, 0 1")));
}

TEST(Centroid, TotalWithinTheSecondBoundGivesTheOrigin) {
    const Points flat = {{0, 0}, {1, 0}, {0, 1e-6}};
    EXPECT_EQ(gkVector<2>(), gf_CenterOfMass(flat));
    const Points justMore = {{0, 0}, {1, 0}, {0, above(1e-6)}};
    EXPECT_NEAR(1.0 / 3.0, gf_CenterOfMass(justMore).x(), kRounding);
}

TEST(Centroid, AnEdgeOnALineThroughTheOriginDoesNotSpoilIt) {
    // The edge (1e7, 1e7+1) to (2e7, 2e7+2) lies on a line through the origin only up to rounding of the
    // medians.
    const Points list = {{3, 1e16}, {6, 2e16}, {1e16, 0}};
    const gkVector<2> centroid = gf_CenterOfMass(list);
    EXPECT_TRUE(std::isfinite(centroid.x()) && std::isfinite(centroid.y()));
}

TEST(Centroid, NanVerticesGiveNanNotAHang) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(gf_CenterOfMass({{0, 0}, {1, 0}, {nan, 1}}).x()));
}

TEST(Inertia, OfTheUnitSquareInBothOrientations) {
    const gkMatrix<2> moments(1.0 / 12, 0, 0, 1.0 / 12);
    expectInertia(gf_InertiaDataPolygon(points(kSquare)), 1.0, {0.5, 0.5}, moments, kRounding);
    expectInertia(gf_InertiaDataPolygon(reversed(points(kSquare))), -1.0, {0.5, 0.5}, moments, kRounding);
}

TEST(Inertia, OfFewerThanThreePointsIsTheZeroRecord) {
    for (const char* text : {"", "1 2", "1 2, 3 4"}) {
        const gk_InertiaData data = gf_InertiaDataPolygon(points(text));
        EXPECT_EQ(0.0, data.area());
        EXPECT_EQ(gkVector<2>(), data.centerOfMass());
        EXPECT_EQ(gkMatrix<2>(), data.inertiaMatrix());
    }
}

TEST(Inertia, OfTheEllIsExactCounterClockwise) {
    expectInertia(gf_InertiaDataPolygon(points(kEll)), 6.0, {1.5, 1.0}, gkMatrix<2>(8.5, -3, -3, 4), 1e-12);
}

TEST(Inertia, OfTheReversedEllKeepsAreaAndCentreButNotTheMoments) {
    const gk_InertiaData data = gf_InertiaDataPolygon(reversed(points(kEll)));
    EXPECT_NEAR(-6.0, data.area(), 1e-12);
    EXPECT_NEAR(1.5, data.centerOfMass().x(), 1e-12);
    EXPECT_NEAR(1.0, data.centerOfMass().y(), 1e-12);
    EXPECT_GT(std::fabs(data.inertiaMatrix().element(0, 0) - 8.5), 0.01);
}

TEST(Inertia, RepeatedClosingVertexChangesNothing) {
    expectInertia(gf_InertiaDataPolygon(points("0 0, 1 0, 1 1, 0 1, 0 0")), 1.0, {0.5, 0.5},
                  gkMatrix<2>(1.0 / 12, 0, 0, 1.0 / 12), kRounding);
}

TEST(Inertia, OfAnObtuseTriangleIsTheSameFromEveryCorner) {
    // Corners a, b, c: moments about the centroid are A/12 times the sums of squared corner offsets.
    const Points triangle = points("0 0, 1 0, 5 2");
    const double area = 1.0;
    const gkVector<2> center(2.0, 2.0 / 3.0);
    double xx = 0.0;
    double yy = 0.0;
    double xy = 0.0;
    for (const gkVector<2>& corner : triangle) {
        const gkVector<2> d = corner - center;
        xx += area / 12 * d.x() * d.x();
        yy += area / 12 * d.y() * d.y();
        xy += area / 12 * d.x() * d.y();
    }
    for (std::size_t first = 0; first < 3; ++first) {
        Points turned = triangle;
        std::rotate(turned.begin(), turned.begin() + static_cast<std::ptrdiff_t>(first), turned.end());
        expectInertia(gf_InertiaDataPolygon(turned), area, center, gkMatrix<2>(xx, xy, xy, yy), kRounding);
    }
}

TEST(Inertia, OfCoincidingVerticesEndsWithZeroArea) {
    for (const char* text : {"0 0, 0 0, 0 0", "2 3, 2 3, 2 3, 2 3", "0 0, 1 1, 0 0", "0 0, 1 0, 1 0, 0 0"}) {
        const gk_InertiaData data = gf_InertiaDataPolygon(points(text));
        EXPECT_EQ(0.0, data.area()) << text;
    }
}

TEST(Inertia, EndsForVerticesThatAreNotNumbers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (const double bad : {nan, inf, -inf}) {
        const gk_InertiaData data = gf_InertiaDataPolygon({{0, 0}, {1, 0}, {bad, 1}, {0, bad}});
        EXPECT_FALSE(std::isfinite(data.area()) && data.area() != 0.0);
    }
}

TEST(Inertia, EndsForEveryTriangleAtLargeCoordinates) {
    // At 1e7 the slack of the base search is far below rounding; every fan triangle must still find its base or
    // count for nothing, and the area must come out.
    for (int step = 0; step < 360; ++step) {
        const double angle = step * 0.0174532925199433;
        const gkVector<2> corner(1e7 + 1e6 * std::cos(angle), 1e7 + 1e6 * std::sin(angle));
        const Points triangle = {{1e7, 1e7}, corner, {corner.x() - 3e5, corner.y() + 7e5}};
        const gk_InertiaData data = gf_InertiaDataPolygon(triangle);
        EXPECT_NEAR(gf_Area(triangle), std::fabs(data.area()), 1e3) << step;
    }
}

TEST(InertiaSum, WithAnAreaOfExactlyZeroReturnsTheOtherUnchanged) {
    const gk_InertiaData zero(0.0, {5, 6}, gkMatrix<2>(1, 2, 3, 4));
    const gk_InertiaData piece(-2.0, {7, 8}, gkMatrix<2>(5, 6, 7, 8));
    for (const gk_InertiaData& sum : {zero + piece, piece + zero}) {
        EXPECT_EQ(-2.0, sum.area());
        EXPECT_EQ(gkVector<2>(7, 8), sum.centerOfMass());
        EXPECT_EQ(gkMatrix<2>(5, 6, 7, 8), sum.inertiaMatrix());
    }
}

TEST(InertiaSum, FirstAreaNotANumberReturnsTheSecond) {
    const gk_InertiaData bad(std::numeric_limits<double>::quiet_NaN(), {5, 6}, gkMatrix<2>());
    EXPECT_EQ(3.0, (bad + gk_InertiaData(3.0, {1, 1}, gkMatrix<2>())).area());
}

TEST(InertiaSum, OfASquareAndAClockwiseHoleSubtractsTheHole) {
    const gk_InertiaData square(4.0, {1, 1}, gkMatrix<2>(16.0 / 12, 0, 0, 16.0 / 12));
    const gk_InertiaData hole(-1.0, {0.5, 0.5}, gkMatrix<2>(1.0 / 12, 0, 0, 1.0 / 12));
    const gkVector<2> center((4 * 1 - 0.5) / 3, (4 * 1 - 0.5) / 3);
    const double da = center.x() - 1;
    const double db = center.x() - 0.5;
    const double diagonal = 16.0 / 12 + 4 * da * da - 1.0 / 12 - db * db;
    const double mixed = 4 * da * da - db * db;
    expectInertia(square + hole, 3.0, center, gkMatrix<2>(diagonal, mixed, mixed, diagonal), kRounding);
    expectInertia(hole + square, 3.0, center, gkMatrix<2>(diagonal, mixed, mixed, diagonal), kRounding);
}

TEST(InertiaSum, OfTwoClockwisePiecesHasNegativeAreaAndPositiveMoments) {
    const gk_InertiaData left(-1.0, {0.5, 0.5}, gkMatrix<2>(1.0 / 12, 0, 0, 1.0 / 12));
    const gk_InertiaData right(-1.0, {1.5, 0.5}, gkMatrix<2>(1.0 / 12, 0, 0, 1.0 / 12));
    expectInertia(left + right, -2.0, {1.0, 0.5}, gkMatrix<2>(8.0 / 12, 0, 0, 2.0 / 12), kRounding);
}

TEST(InertiaSum, OfAreasThatCancelHasItsCentreAtTheOrigin) {
    const gk_InertiaData a(1.0, {5, 6}, gkMatrix<2>());
    EXPECT_EQ(gkVector<2>(), (a + gk_InertiaData(-1.0, {9, 9}, gkMatrix<2>())).centerOfMass());
}

TEST(InertiaSum, CentreBoundIsAboveNotAt) {
    const gk_InertiaData a(1e-16, {5, 5}, gkMatrix<2>());
    EXPECT_EQ(gkVector<2>(), (a + gk_InertiaData(1e-40, {5, 5}, gkMatrix<2>())).centerOfMass());
    const gk_InertiaData b(above(1e-16), {5, 5}, gkMatrix<2>());
    EXPECT_NEAR(5.0, (b + gk_InertiaData(1e-40, {5, 5}, gkMatrix<2>())).centerOfMass().x(), kRounding);
}

TEST(EllipseOfMoments, OfACircle) {
    const double moment = M_PI * 16 / 4;
    const gkEllipse ellipse =
        gf_EllipseFromInertiaData(gk_InertiaData(M_PI * 4, {3, 4}, gkMatrix<2>(moment, 0, 0, moment)));
    EXPECT_NEAR(2.0, ellipse.radii().x(), kRounding);
    EXPECT_NEAR(2.0, ellipse.radii().y(), kRounding);
    EXPECT_EQ(0.0, ellipse.rotation().toDouble());
    EXPECT_EQ(3.0, ellipse.center().x());
    EXPECT_EQ(4.0, ellipse.center().y());
}

TEST(EllipseOfMoments, FirstRadiusFollowsTheRotation) {
    const double alongY = M_PI * 27 * 1 / 4; // semi-axes 3 along y, 1 along x
    const double alongX = M_PI * 3 * 1 / 4;
    const gkEllipse upright =
        gf_EllipseFromInertiaData(gk_InertiaData(M_PI * 3, {0, 0}, gkMatrix<2>(alongX, 0, 0, alongY)));
    EXPECT_EQ(M_PI / 2, upright.rotation().toDouble());
    EXPECT_NEAR(3.0, upright.radii().x(), kRounding);
    EXPECT_NEAR(1.0, upright.radii().y(), kRounding);
    const gkEllipse lying =
        gf_EllipseFromInertiaData(gk_InertiaData(M_PI * 3, {0, 0}, gkMatrix<2>(alongY, 0, 0, alongX)));
    EXPECT_EQ(0.0, lying.rotation().toDouble());
    EXPECT_NEAR(3.0, lying.radii().x(), kRounding);
    EXPECT_NEAR(1.0, lying.radii().y(), kRounding);
}

TEST(EllipseOfMoments, TurnedByThirtyDegrees) {
    const double turn = M_PI / 6;
    const double major = M_PI * 8 * 1 / 4; // semi-axes 2 and 1
    const double minor = M_PI * 2 * 1 / 4;
    const double c = std::cos(turn);
    const double s = std::sin(turn);
    const gkMatrix<2> moments(major * c * c + minor * s * s, (major - minor) * s * c, (major - minor) * s * c,
                              major * s * s + minor * c * c);
    const gkEllipse ellipse = gf_EllipseFromInertiaData(gk_InertiaData(1.0, {0, 0}, moments));
    EXPECT_NEAR(turn, ellipse.rotation().toDouble(), kRounding);
    EXPECT_NEAR(2.0, ellipse.radii().x(), kRounding);
    EXPECT_NEAR(1.0, ellipse.radii().y(), kRounding);
}

TEST(EllipseOfMoments, OfTheZeroRecordIsSingular) {
    EXPECT_THROW(gf_EllipseFromInertiaData(gk_InertiaData(0.0, {0, 0}, gkMatrix<2>())), gkMathError::Singular);
}

TEST(EllipseOfMoments, PrincipalMomentAtTheBoundIsSingularAndJustAboveIsNot) {
    EXPECT_THROW(gf_EllipseFromInertiaData(gk_InertiaData(1.0, {0, 0}, gkMatrix<2>(1, 0, 0, 1e-12))),
                 gkMathError::Singular);
    EXPECT_NO_THROW(gf_EllipseFromInertiaData(gk_InertiaData(1.0, {0, 0}, gkMatrix<2>(1, 0, 0, above(1e-12)))));
}

TEST(EllipseOfMoments, OfCollinearVerticesIsSingular) {
    EXPECT_THROW(gf_EllipseFromInertiaData(gf_InertiaDataPolygon(points("0 0, 1 1, 2 2, 4 4"))),
                 gkMathError::Singular);
}

TEST(FitEllipse, PassesThroughPointsOfACircle) {
    Points circle;
    for (int i = 0; i < 12; ++i)
        circle.emplace_back(3 + 2 * std::cos(i * M_PI / 6), 4 + 2 * std::sin(i * M_PI / 6));
    gkEllipse ellipse;
    double error = -1.0;
    gf_FitEllipse(circle, ellipse, error);
    EXPECT_NEAR(3.0, ellipse.center().x(), 1e-12);
    EXPECT_NEAR(4.0, ellipse.center().y(), 1e-12);
    EXPECT_NEAR(2.0, ellipse.radii().x(), 1e-12);
    EXPECT_NEAR(2.0, ellipse.radii().y(), 1e-12);
    EXPECT_NEAR(0.0, error, 1e-12);
    gkEllipse same;
    double sameError = -1.0;
    gf_FitEllipse(edgelets(circle), same, sameError);
    EXPECT_TRUE(ellipse == same);
    EXPECT_EQ(error, sameError);
}

TEST(FitEllipse, WithTooFewPointsThrowsAndLeavesTheOutputs) {
    gkEllipse ellipse;
    double error = -1.0;
    EXPECT_THROW(gf_FitEllipse(points("0 0, 1 0, 1 1, 0 1"), ellipse, error), gkException);
    EXPECT_TRUE(ellipse == gkEllipse());
    EXPECT_EQ(-1.0, error);
}

TEST(StdDev, DividesByTheCount) { EXPECT_EQ(std::sqrt(1.25), gf_StdDev({1, 2, 3, 4})); }

TEST(StdDev, OfOneValueIsZero) { EXPECT_EQ(0.0, gf_StdDev({42.0})); }

TEST(StdDev, OfNoValuesIsNotANumber) { EXPECT_TRUE(std::isnan(gf_StdDev({}))); }

// A piece without area has no centre to take part with, nor has one whose area is no number, where it comes
// first.
TEST(InertiaPiece, OfNoAreaOrNoneThatIsANumberLeavesTheOther) {
    gk_InertiaPiece piece;
    piece.area = 3.0;
    piece.center = gk_TwoDoubles::firsts(gk_TwoDoubles(1.0), gk_TwoDoubles(2.0));
    for (const double area : {0.0, -0.0, std::numeric_limits<double>::quiet_NaN()}) {
        gk_InertiaPiece none;
        none.area = area;
        none.xy = 7.0;
        const gk_InertiaPiece sum = gk_Sum(none, piece);
        EXPECT_EQ(3.0, sum.area) << area;
        EXPECT_EQ(0.0, sum.xy) << area;
        EXPECT_EQ(1.0, sum.center.first()) << area;
        EXPECT_EQ(2.0, sum.center.second()) << area;
    }
    EXPECT_EQ(3.0, gk_Sum(piece, gk_InertiaPiece()).area);
}
