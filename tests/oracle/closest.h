// The nearest vertex and the nearest point of an outline.
#ifndef GK_TESTS_ORACLE_CLOSEST_H
#define GK_TESTS_ORACLE_CLOSEST_H

#include "tests/oracle/oracle.h"

#include <limits>

namespace oracle {

inline long closestVertexIndex(const Points& points, const gkVector<2>& p) {
    needsTwo(points);
    double best = std::numeric_limits<double>::infinity();
    long index = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double d = points[i].distance(p);
        if (d < best) {
            best = d;
            index = static_cast<long>(i);
        }
    }
    return index;
}

// The point of one segment: the ends outside, else the foot on the carrying line. NaN counts as before the
// start.
inline gkVector<2> closestOnSegment(const gkLineSeg& seg, const gkVector<2>& p) {
    const gkVector<2> along = seg.p2() - seg.p1();
    const double t = ((p - seg.p1()) * along) / (along * along);
    if (!(t > 0.0)) return seg.p1();
    if (t >= 1.0) return seg.p2();
    return seg.line().proj(p);
}

inline gkVector<2> closestPoint(const Points& points, bool closed, const gkVector<2>& p, bool verticesOnly) {
    needsTwo(points);
    if (verticesOnly) return points[static_cast<std::size_t>(closestVertexIndex(points, p))];
    gkVector<2> best(0.0, 0.0);
    double bestDistance = std::numeric_limits<double>::infinity();
    for (const gkLineSeg& seg : segments(points, closed)) {
        const double d = seg.distToPoint(p);
        if (d < bestDistance) {
            bestDistance = d;
            best = closestOnSegment(seg, p);
        }
    }
    return best;
}

inline double distToPoint(const Points& points, bool closed, const gkVector<2>& p, bool verticesOnly) {
    return p.distance(closestPoint(points, closed, p, verticesOnly));
}

} // namespace oracle

#endif
