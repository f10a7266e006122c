// The convex hull by wrapping: from the lowest x (then y), always to the point that has no other on its right.
// Signs are exact, so nearly collinear points are no special case. Cost: O(n h) exact determinants.
#ifndef GK_TESTS_ORACLE_HULL_H
#define GK_TESTS_ORACLE_HULL_H

#include "tests/oracle/oracle.h"
#include "tests/platform/core/shapes/exact_sign.h"

#include <algorithm>
#include <cmath>

namespace oracle {

// The different points with finite coordinates, of equal ones the first, by x and then y.
inline Points distinctFinite(const Points& points) {
    Points list;
    for (const gkVector<2>& p : points) {
        const bool finite = std::isfinite(p.x()) && std::isfinite(p.y());
        if (finite && std::find(list.begin(), list.end(), p) == list.end()) list.push_back(p);
    }
    std::sort(list.begin(), list.end(), [](const gkVector<2>& a, const gkVector<2>& b) {
        return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
    });
    return list;
}

// `far` lies beyond `near` as seen from `from`, along one axis.
inline bool isBeyond(double from, double near, double far) {
    return near > from ? far > near : near < from && far < near;
}

// The same for three points on one line, the latter two in the same direction.
inline bool isBeyond(const gkVector<2>& from, const gkVector<2>& near, const gkVector<2>& far) {
    return isBeyond(from.x(), near.x(), far.x()) || isBeyond(from.y(), near.y(), far.y());
}

inline Points convexHull(const Points& points) {
    const Points list = distinctFinite(points);
    if (list.size() < 2) return list;
    Points hull;
    gkVector<2> at = list.front();
    do {
        hull.push_back(at);
        gkVector<2> next = at;
        for (const gkVector<2>& p : list) {
            if (p == at) continue;
            const int turn = next == at ? -1 : exact::orientation(at, next, p);
            if (turn < 0 || (turn == 0 && isBeyond(at, next, p))) next = p;
        }
        at = next;
    } while (at != list.front() && hull.size() <= list.size());
    return hull;
}

} // namespace oracle

#endif
