// What lies near a point.
#include "tests/comparisons/asked_contour.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/vertex_cells.h"

namespace comparisons {
namespace {

void closestPoint(AskedContour& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const bool verticesOnly = a.questions.flag();
    tally.compare(
        "closestPoint, verticesOnly", [&] { return oracle::closestPoint(a.points, a.closed, p, verticesOnly); },
        [&] { return a.contour.closestPoint(p, verticesOnly); }, p, verticesOnly);
}

void closestVertex(AskedContour& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    tally.compare(
        "closestVertexIndex", [&] { return oracle::closestVertexIndex(a.points, p); },
        [&] { return a.contour.closestVertexIndex(p); }, p);
}

void distance(AskedContour& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const bool verticesOnly = a.questions.flag();
    tally.compare(
        "distToPoint, verticesOnly", [&] { return oracle::distToPoint(a.points, a.closed, p, verticesOnly); },
        [&] { return a.contour.distToPoint(p, verticesOnly); }, p, verticesOnly);
}

void verticesWithin(AskedContour& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const double tolerance = a.questions.tolerance(p);
    tally.compare(
        "vertexIndex, tolerance", [&] { return oracle::vertexIndex(a.points, p, tolerance); },
        [&] { return a.contour.vertexIndex(p, tolerance); }, p, tolerance);
}

} // namespace

const std::vector<ContourQuestion>& proximityQuestions() {
    static const std::vector<ContourQuestion> list = {&closestPoint, &closestVertex, &distance,
                                                      &verticesWithin};
    return list;
}

Operations proximityOperations() {
    return {onContours("contour.closestPoint", kLinear, 24, &closestPoint),
            onContours("contour.closestVertex", kLinear, 24, &closestVertex),
            onContours("contour.distance", kLinear, 24, &distance),
            onContours("contour.verticesWithin", kLinear, 24, &verticesWithin)};
}

} // namespace comparisons
