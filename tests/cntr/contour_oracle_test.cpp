// Every measure of a contour against its definition in tests/oracle, bit for bit, errors included.
#include "cntr/region.h"
#include "platform/core/fit/ellipse_fit.h"
#include "tests/gen/each.h"
#include "tests/gen/questions.h"
#include "tests/oracle/circle.h"
#include "tests/oracle/enclose.h"
#include "tests/oracle/extremal.h"
#include "tests/oracle/hull.h"
#include "tests/oracle/length.h"
#include "tests/oracle/segment_list.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

gkRegion hullOf(const gkContour& contour) {
    gkRegion hull;
    contour.convexHull(hull);
    return hull;
}

// Asks twice, so that the kept answer is held to the definition as well as the computed one.
template <class Ask> void expectTwice(const Answer& expected, Ask ask) {
    EXPECT_EQ(expected, answer(ask));
    EXPECT_EQ(expected, answer(ask)) << "asked again";
}

} // namespace

TEST(ContourOracle, LengthIsTheDefinitions) {
    gen::eachOutline(200, [](const Points& points, bool closed, std::uint64_t) {
        const gkContour contour(points, closed, 0);
        expectTwice(answer([&] { return oracle::length(points, closed); }), [&] { return contour.length(); });
    });
}

TEST(ContourOracle, MeanPositionIsTheDefinitions) {
    gen::eachOutline(200, [](const Points& points, bool closed, std::uint64_t) {
        const gkContour contour(points, closed, 0);
        expectTwice(answer([&] { return oracle::meanPosition(points, closed); }),
                    [&] { return contour.meanPosition(); });
    });
}

TEST(ContourOracle, MedianFeatureSizeIsTheDefinitions) {
    gen::eachOutline(200, [](const Points& points, bool closed, std::uint64_t) {
        const OpenedContour contour(points, closed, 0);
        expectTwice(answer([&] { return oracle::medianFeatureSize(points, closed); }),
                    [&] { return contour.medianFeatureSize(); });
    });
}

TEST(ContourOracle, CirclesAreTheDefinitions) {
    gen::eachShape(200, [](const Points& points, std::uint64_t) {
        const gkContour contour(points, true, 0);
        expectTwice(answer([&] { return oracle::circleOverFarthestPair(points); }),
                    [&] { return contour.encloseCircle(gkContourDefs::eExact); });
        expectTwice(answer([&] { return oracle::circleAroundFirst(points); }),
                    [&] { return contour.encloseCircle(gkContourDefs::eApproximate); });
        EXPECT_EQ(answer([&] { return 2.0 * oracle::circleOverFarthestPair(points).radius(); }),
                  answer([&] { return contour.diameter(gkContourDefs::eExact); }));
        EXPECT_EQ(answer([&] { return 2.0 * oracle::circleAroundFirst(points).radius(); }),
                  answer([&] { return contour.diameter(gkContourDefs::eApproximate); }));
    });
}

TEST(ContourOracle, ExactCircleOfANewOutlineStartsFromTheSlotOfTheOld) {
    gen::eachShape(100, [](const Points& points, std::uint64_t) {
        gkContour contour({{0, 0}, {6, 8}}, true, 0);
        const gkCircle before = contour.encloseCircle(gkContourDefs::eExact);
        contour.points(points);
        EXPECT_EQ(answer([&] { return oracle::circleOverFarthestPair(points, before); }),
                  answer([&] { return contour.encloseCircle(gkContourDefs::eExact); }));
    });
}

TEST(ContourOracle, ExtremalVerticesAreTheDefinitionsInEveryDirection) {
    gen::eachShape(200, [](const Points& points, std::uint64_t seed) {
        const gkContour contour(points, true, 0);
        for (const double angle : gen::angles(seed)) {
            SCOPED_TRACE(angle);
            const gkRadian direction(angle);
            expectTwice(answer([&] { return oracle::extremalVertexIndex(points, direction); }),
                        [&] { return contour.extremalVertexIndex(direction); });
            EXPECT_EQ(answer([&] { return oracle::extremalVertexPosition(points, direction); }),
                      answer([&] { return contour.extremalVertexPosition(direction); }));
        }
    });
}

TEST(ContourOracle, BoxesAreTheDefinitionsUnderEveryTransform) {
    gen::eachShape(200, [](const Points& points, std::uint64_t seed) {
        const gkContour contour(points, true, 0);
        for (const gkXform<2>& xform : gen::xforms(seed)) {
            expectTwice(answer([&] { return oracle::encloseRect(points, xform); }),
                        [&] { return contour.encloseRect(xform); });
        }
    });
}

TEST(ContourOracle, SegmentsAreTheDefinitions) {
    gen::eachOutline(200, [](const Points& points, bool closed, std::uint64_t) {
        const OpenedContour contour(points, closed, 0);
        expectTwice(answer([&] { return oracle::lineSegs(points, closed); }),
                    [&] { return contour.lineSegs(); });
        expectTwice(answer([&] { return oracle::validLine(points, closed); }),
                    [&] { return contour.validLine(); });
    });
}

// Where two vertices are equal but for the sign of a zero, either may stand for both; so values are compared
// here.
TEST(ContourOracle, HullHasTheVerticesThatWrappingFinds) {
    gen::eachShape(40, [](const Points& points, std::uint64_t) {
        const gkContour contour(points, true, 0);
        if (points.size() < 2) {
            EXPECT_THROW(hullOf(contour), gkContourDefs::EmptyContour);
            return;
        }
        EXPECT_EQ(oracle::convexHull(points), hullOf(contour).points());
        EXPECT_EQ(oracle::convexHull(points), hullOf(contour).points()) << "asked again";
    });
}

TEST(ContourOracle, EllipseIsTheFittersOwn) {
    gen::eachShape(100, [](const Points& points, std::uint64_t) {
        const gkContour contour(points, true, 0);
        const gkEllipseFitParams params(static_cast<gkEllipseFitDefs::fit_mode>(0), gkRadian(0.0), 0,
                                        std::numeric_limits<double>::infinity());
        double error = 0.0;
        gkEllipse ellipse;
        const Answer expected = answer([&] {
            oracle::needsTwo(points);
            gkEllipseFitResults results;
            gfEllipseFit(params, points, results);
            error = results.error();
            return results.ellipse();
        });
        double found = 0.0;
        expectTwice(expected, [&] {
            contour.fitEllipse(ellipse, found);
            return ellipse;
        });
        EXPECT_EQ(error, found);
    });
}
