// The circle over the farthest pair and the one around the first vertex.
#ifndef GK_TESTS_ORACLE_CIRCLE_H
#define GK_TESTS_ORACLE_CIRCLE_H

#include "platform/core/shapes/circle.h"
#include "tests/oracle/oracle.h"

namespace oracle {

// `slot` is what the contour held before; it stays when no pair is farther apart than 0.
inline gkCircle circleOverFarthestPair(const Points& points, gkCircle slot = gkCircle()) {
    double best = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = 0; j < points.size(); ++j) {
            const double d = points[j].distance(points[i]);
            if (d > best) {
                best = d;
                slot = gkCircle(gkPoint((points[i] + points[j]) / 2.0), d / 2.0);
            }
        }
    }
    return slot;
}

inline gkCircle circleAroundFirst(const Points& points) {
    if (points.empty()) throw Refusal{"EmptyContour"};
    double radius = 0.0;
    for (std::size_t k = 1; k < points.size(); ++k) {
        const double d = points[0].distance(points[k]);
        if (d > radius) radius = d;
    }
    return gkCircle(gkPoint(points[0]), radius);
}

} // namespace oracle

#endif
