// The vertex that lies furthest in a direction.
#ifndef GK_TESTS_ORACLE_EXTREMAL_H
#define GK_TESTS_ORACLE_EXTREMAL_H

#include "tests/oracle/oracle.h"

namespace oracle {

inline double extremalScore(const gkVector<2>& d, const gkVector<2>& vertex) {
    if (gfRealEq(d, gkVector<2>(1.0, 0.0), 1e-15)) return vertex.x();
    if (gfRealEq(d, gkVector<2>(-1.0, 0.0), 1e-15)) return -vertex.x();
    if (gfRealEq(d, gkVector<2>(0.0, 1.0), 1e-15)) return vertex.y();
    if (gfRealEq(d, gkVector<2>(0.0, -1.0), 1e-15)) return -vertex.y();
    return d * vertex;
}

inline long extremalVertexIndex(const Points& points, const gkRadian& angle) {
    needsTwo(points);
    const gkVector<2> direction(1.0, angle);
    double best = -1.7976931348623157e308;
    long index = -1;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double score = extremalScore(direction, points[i]);
        if (score > best) {
            best = score;
            index = static_cast<long>(i);
        }
    }
    return index;
}

inline gkVector<2> extremalVertexPosition(const Points& points, const gkRadian& angle) {
    const long index = extremalVertexIndex(points, angle);
    if (index < 0) throw Refusal{"BadParams"};
    return points[static_cast<std::size_t>(index)];
}

} // namespace oracle

#endif
