// Measures of contours.
#include "cntr/region.h"
#include "tests/comparisons/asked_contour.h"
#include "tests/oracle/circle.h"
#include "tests/oracle/enclose.h"
#include "tests/oracle/extremal.h"
#include "tests/oracle/hull.h"
#include "tests/oracle/length.h"
#include "tests/oracle/segment_list.h"

namespace comparisons {
namespace {

void length(AskedContour& a, Tally& tally) {
    tally.compare(
        "length", [&] { return oracle::length(a.points, a.closed); }, [&] { return a.contour.length(); });
}

void meanPosition(AskedContour& a, Tally& tally) {
    tally.compare(
        "meanPosition", [&] { return oracle::meanPosition(a.points, a.closed); },
        [&] { return a.contour.meanPosition(); });
}

void medianFeatureSize(AskedContour& a, Tally& tally) {
    tally.compare(
        "medianFeatureSize", [&] { return oracle::medianFeatureSize(a.points, a.closed); },
        [&] { return a.contour.medianFeatureSize(); });
}

void segments(AskedContour& a, Tally& tally) {
    tally.compare(
        "lineSegs and validLine",
        [&](Answer& answer) {
            answer.add(oracle::lineSegs(a.points, a.closed));
            answer.add(oracle::validLine(a.points, a.closed));
        },
        [&](Answer& answer) {
            answer.add(a.contour.lineSegs());
            answer.add(a.contour.validLine());
        });
}

void exactCircle(AskedContour& a, Tally& tally) {
    tally.compare(
        "exact circle and diameter",
        [&](Answer& answer) {
            const gkCircle circle = oracle::circleOverFarthestPair(a.points);
            answer.add(circle);
            answer.add(2.0 * circle.radius());
        },
        [&](Answer& answer) {
            answer.add(a.contour.encloseCircle(gkContourDefs::eExact));
            answer.add(a.contour.diameter(gkContourDefs::eExact));
        });
}

void approximateCircle(AskedContour& a, Tally& tally) {
    tally.compare(
        "approximate circle and diameter",
        [&](Answer& answer) {
            const gkCircle circle = oracle::circleAroundFirst(a.points);
            answer.add(circle);
            answer.add(2.0 * circle.radius());
        },
        [&](Answer& answer) {
            answer.add(a.contour.encloseCircle(gkContourDefs::eApproximate));
            answer.add(a.contour.diameter(gkContourDefs::eApproximate));
        });
}

void extremalVertex(AskedContour& a, Tally& tally) {
    const double angle = a.questions.angle();
    const gkRadian direction(angle);
    if (a.questions.flag()) {
        tally.compare(
            "extremalVertexIndex", [&] { return oracle::extremalVertexIndex(a.points, direction); },
            [&] { return a.contour.extremalVertexIndex(direction); }, angle);
    } else {
        tally.compare(
            "extremalVertexPosition", [&] { return oracle::extremalVertexPosition(a.points, direction); },
            [&] { return a.contour.extremalVertexPosition(direction); }, angle);
    }
}

void encloseRect(AskedContour& a, Tally& tally) {
    const gkXform<2> xform = a.questions.xform();
    tally.compare(
        "encloseRect", [&] { return oracle::encloseRect(a.points, xform); },
        [&] { return a.contour.encloseRect(xform); }, xform.matrix(), xform.translation());
}

// Of vertices that are equal but for the sign of a zero either may stand for both, so zeros lose theirs.
Points withPlainZeros(const Points& points) {
    Points list;
    for (const gkVector<2>& p : points) list.push_back(p + gkVector<2>(0.0, 0.0));
    return list;
}

// Exact determinants take their time: most outlines with more than a few vertices are passed over.
void convexHull(AskedContour& a, Tally& tally) {
    if (a.points.size() > 20 && a.questions.random().chance(0.9)) return;
    tally.compare(
        "convexHull",
        [&] {
            oracle::needsTwo(a.points);
            return withPlainZeros(oracle::convexHull(a.points));
        },
        [&] {
            gkRegion hull;
            a.contour.convexHull(hull);
            return withPlainZeros(hull.points());
        });
}

} // namespace

const std::vector<ContourQuestion>& measureQuestions() {
    static const std::vector<ContourQuestion> list = {&length,         &meanPosition,      &medianFeatureSize,
                                                      &segments,       &approximateCircle, &extremalVertex,
                                                      &extremalVertex, &encloseRect,       &encloseRect};
    return list;
}

Operations measureOperations() {
    return {onContours("contour.length", kLinear, 1, &length),
            onContours("contour.meanPosition", kLinear, 1, &meanPosition),
            onContours("contour.medianFeatureSize", kLinear, 1, &medianFeatureSize),
            onContours("contour.segments", kLinear, 1, &segments),
            onContours("contour.circle(exact)", kQuadratic, 1, &exactCircle),
            onContours("contour.circle(approximate)", kLinear, 1, &approximateCircle),
            onContours("contour.extremalVertex", kLinear, 16, &extremalVertex),
            onContours("contour.encloseRect", kLinear, 8, &encloseRect),
            onContours("contour.convexHull", kSmall, 1, &convexHull)};
}

} // namespace comparisons
