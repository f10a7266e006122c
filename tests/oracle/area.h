// Area and centroid of a closed polygon.
#ifndef GK_TESTS_ORACLE_AREA_H
#define GK_TESTS_ORACLE_AREA_H

#include "platform/core/math/real.h"
#include "tests/oracle/oracle.h"

#include <cmath>

namespace oracle {

inline double area(const Points& points) {
    if (points.empty()) throw Refusal{"out_of_range"};
    double sum = 0.0;
    for (const gkLineSeg& edge : segments(points, true)) sum += edge.p1().cross(edge.p2());
    return std::fabs(sum / 2.0);
}

// The crossing of two medians.
inline gkVector<2> triangleCentroid(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& q3) {
    const gkLineSeg first(q1, (q2 + q3) / 2.0);
    const gkLineSeg second(q2, (q1 + q3) / 2.0);
    return first.line().intersect(second.line());
}

inline gkVector<2> centroid(const Points& points) {
    if (points.size() <= 2) return gkVector<2>(0.0, 0.0);
    double sx = 0.0;
    double sy = 0.0;
    double s = 0.0;
    for (const gkLineSeg& edge : segments(points, true)) {
        const double w = edge.p1().cross(edge.p2());
        if (gfRealEq(w, 0.0, 1e-15)) continue;
        const gkVector<2> g = triangleCentroid(gkVector<2>(0.0, 0.0), edge.p1(), edge.p2());
        sx += w * g.x();
        sy += w * g.y();
        s += w;
    }
    if (gfRealEq(s, 0.0, 1e-6)) return gkVector<2>(0.0, 0.0);
    return gkVector<2>(sx / s, sy / s);
}

} // namespace oracle

#endif
