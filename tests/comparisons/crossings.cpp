// Where contours are crossed.
#include "tests/oracle/crossings.h"
#include "tests/comparisons/asked_contour.h"

namespace comparisons {
namespace {

void withSegment(AskedContour& a, Tally& tally) {
    const gkLineSeg seg = a.questions.segment();
    const bool includeEnds = a.questions.flag();
    tally.compare(
        "intersections and segments, includeEnds",
        [&](Answer& answer) {
            Points found;
            std::vector<int> indices;
            for (const oracle::Crossing& crossing : oracle::crossings(a.points, a.closed, seg, includeEnds)) {
                found.push_back(crossing.point);
                indices.push_back(crossing.segment);
            }
            answer.add(found);
            answer.add(indices);
        },
        [&](Answer& answer) {
            std::vector<int> indices = {-7};
            answer.add(a.contour.intersections(seg, indices, includeEnds));
            answer.add(indices);
        },
        seg, includeEnds);
}

// With another outline in the same place, and with itself.
Points otherFor(AskedContour& a, bool& closed) {
    gen::Random& random = a.questions.random();
    closed = a.questions.flag();
    if (random.chance(0.1)) return a.points;
    const Outline other = outlineOf(random.next(), kQuadratic);
    if (a.points.empty() || other.points.empty() || a.questions.flag()) return other.points;
    Points moved = other.points;
    const gkVector<2> shift = a.points.front() - other.points.front();
    for (gkVector<2>& p : moved) p = p + shift;
    return moved;
}

void withContour(AskedContour& a, Tally& tally) {
    bool closed = false;
    const Points other = otherFor(a, closed);
    tally.compare(
        "intersections with a contour, closed",
        [&] { return oracle::crossingsWithContour(a.points, a.closed, other, closed); },
        [&] { return a.contour.gkContour::intersections(gkContour(other, closed, 0)); }, closed, other);
}

void withItself(AskedContour& a, Tally& tally) {
    tally.compare(
        "isSelfIntersecting", [&] { return oracle::isSelfIntersecting(a.points, a.closed); },
        [&] { return a.contour.isSelfIntersecting(); });
}

} // namespace

const std::vector<ContourQuestion>& crossingQuestions() {
    static const std::vector<ContourQuestion> list = {&withSegment, &withSegment, &withSegment};
    return list;
}

const std::vector<ContourQuestion>& quadraticQuestions() {
    static const std::vector<ContourQuestion> list = {&withContour, &withItself};
    return list;
}

Operations crossingOperations() {
    return {onContours("contour.crossings(segment)", kMiddling, 24, &withSegment),
            onContours("contour.crossings(contour)", kQuadratic, 3, &withContour),
            onContours("contour.crossesItself", kQuadratic, 1, &withItself)};
}

} // namespace comparisons
