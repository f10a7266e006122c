// The one way in which an outline's segments are visited, which is also how they are numbered.
#ifndef GK_CNTR_SEGMENT_WALK_H
#define GK_CNTR_SEGMENT_WALK_H

#include "platform/core/math/two_doubles.h"

#include <cstddef>
#include <vector>

// Calls visit(previous, current) for every segment. A closed outline of n vertices has n segments, the closing
// one first: segment k ends at vertex k. An open one has n - 1: segment k starts at vertex k. The asymmetry is
// meant, callers see it in segment indices.
template <class Visit> void gk_WalkSegments(const std::vector<gkVector<2>>& points, bool closed, Visit visit) {
    if (points.empty()) return;
    std::size_t previous = closed ? points.size() - 1 : 0;
    for (std::size_t current = closed ? 0 : 1; current < points.size(); ++current) {
        visit(points[previous], points[current]);
        previous = current;
    }
}

// Calls visit(previous, current, areTwo) for two segments at a time, in the same order; a last single one comes
// twice, and areTwo is false.
template <class Visit> void gk_WalkTwoByTwo(const std::vector<gkVector<2>>& points, bool closed, Visit visit) {
    if (points.empty()) return;
    std::size_t i = closed ? 0 : 1;
    gk_TwoDoubles previous = gk_TwoOf(closed ? points.back() : points.front());
    for (; i + 1 < points.size(); i += 2) {
        const gk_TwoDoubles middle = gk_TwoOf(points[i]);
        const gk_TwoDoubles last = gk_TwoOf(points[i + 1]);
        visit(gk_TwoVectors::of(previous, middle), gk_TwoVectors::of(middle, last), true);
        previous = last;
    }
    if (i >= points.size()) return;
    const gk_TwoDoubles last = gk_TwoOf(points[i]);
    visit(gk_TwoVectors::of(previous, previous), gk_TwoVectors::of(last, last), false);
}

// The number of segments that gk_WalkSegments visits.
inline std::size_t gk_SegmentCount(const std::vector<gkVector<2>>& points, bool closed) {
    return closed || points.empty() ? points.size() : points.size() - 1;
}

#endif
