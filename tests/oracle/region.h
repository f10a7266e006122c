// A closed outline with holes: which points it contains, what its holes take away, and what is nearest.
#ifndef GK_TESTS_ORACLE_REGION_H
#define GK_TESTS_ORACLE_REGION_H

#include "tests/oracle/area.h"
#include "tests/oracle/circle.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/crossings.h"
#include "tests/oracle/inertia.h"

#include <algorithm>

namespace oracle {

struct Region {
    Points outline;
    std::vector<Region> holes;
};

inline void needsThree(const Points& points) {
    if (points.size() < 3) throw Refusal{"EmptyContour"};
}

inline double normalized(double angle) { return gkRadian(angle).norm().toDouble(); }

inline bool nearSomeVertex(const Points& points, const gkVector<2>& p) {
    return std::any_of(points.begin(), points.end(),
                       [&](const gkVector<2>& vertex) { return !((vertex - p).length() > 1e-6); });
}

// The unit vector through the middle of the first gap wider than pi / n, from the x axis on.
inline gkVector<2> rayDirection(const Points& points, const gkVector<2>& p) {
    const std::size_t n = points.size();
    std::vector<double> angles;
    for (const gkVector<2>& vertex : points) angles.push_back((vertex - p).angle().norm().toDouble());
    std::sort(angles.begin(), angles.end());
    for (std::size_t i = 0; i < n; ++i) {
        const double gap = normalized(angles[(i + 1) % n] - angles[i]);
        if (gap > 3.141592653589793 / static_cast<double>(n))
            return gkVector<2>(1.0, gkRadian(angles[i] + gap / 2.0));
    }
    return gkVector<2>(1.0, 0.0);
}

inline double rayLength(const Points& points) { return 2.0 * circleAroundFirst(points).radius(); }

inline long insideCount(const Points& points, const gkVector<2>& p) {
    if (!encloseRect(points, gkXform<2>()).within(p)) return 0;
    if (nearSomeVertex(points, p)) return 1;
    const gkLineSeg ray(p, p + rayDirection(points, p) * rayLength(points));
    return static_cast<long>(crossings(points, true, ray, false).size());
}

inline bool inside(const Region& region, const gkVector<2>& p, bool considerHoles) {
    if (insideCount(region.outline, p) % 2 != 1) return false;
    return !considerHoles || std::none_of(region.holes.begin(), region.holes.end(),
                                          [&](const Region& hole) { return inside(hole, p, true); });
}

inline double area(const Region& region, bool considerHoles) {
    needsThree(region.outline);
    if (!considerHoles) return area(region.outline);
    double holes = 0.0;
    for (const Region& hole : region.holes) {
        needsThree(hole.outline);
        holes += area(hole.outline);
    }
    return area(region.outline) - holes;
}

// What is computed, which with holes only the first question gets to see.
inline gkVector<2> centroid(const Region& region, bool considerHoles) {
    needsThree(region.outline);
    if (!considerHoles || region.holes.empty()) return centroid(region.outline);
    double remaining = area(region.outline);
    gkVector<2> moment = centroid(region.outline) * area(region.outline);
    for (const Region& hole : region.holes) {
        needsThree(hole.outline);
        moment = moment - centroid(hole.outline) * area(hole.outline);
        remaining = remaining - area(hole.outline);
    }
    return moment / remaining;
}

// With holes there are no second moments.
inline gkMatrix<2> inertiaMatrix(const Region& region, bool considerHoles) {
    needsThree(region.outline);
    if (considerHoles && !region.holes.empty()) throw Refusal{"BadParams"};
    const Inertia m = polygonInertia(region.outline);
    return gkMatrix<2>(m.xx, m.xy, m.xy, m.yy);
}

inline long closestVertexIndex(const Region& region, const gkVector<2>& p, bool considerHoles,
                               long& holeIndex) {
    holeIndex = -1;
    long best = closestVertexIndex(region.outline, p);
    double distance = region.outline[static_cast<std::size_t>(best)].distance(p);
    for (std::size_t i = 0; considerHoles && i < region.holes.size(); ++i) {
        const Points& hole = region.holes[i].outline;
        const long vertex = closestVertexIndex(hole, p);
        const double d = hole[static_cast<std::size_t>(vertex)].distance(p);
        if (d < distance) {
            distance = d;
            best = vertex;
            holeIndex = static_cast<long>(i);
        }
    }
    return best;
}

inline gkVector<2> closestPoint(const Region& region, const gkVector<2>& p, bool verticesOnly,
                                bool considerHoles) {
    if (verticesOnly) {
        long hole = -1;
        const auto vertex = static_cast<std::size_t>(closestVertexIndex(region, p, considerHoles, hole));
        return hole < 0 ? region.outline[vertex] : region.holes[static_cast<std::size_t>(hole)].outline[vertex];
    }
    gkVector<2> best = closestPoint(region.outline, true, p, false);
    for (const Region& hole : region.holes) { // considered or not
        const gkVector<2> candidate = closestPoint(hole.outline, true, p, false);
        if (p.distance(candidate) < p.distance(best)) best = candidate;
    }
    return best;
}

inline double distToPoint(const Region& region, const gkVector<2>& p, bool verticesOnly, bool considerHoles,
                          bool zeroInside) {
    if (zeroInside && inside(region, p, considerHoles)) return 0.0;
    return p.distance(closestPoint(region, p, verticesOnly, considerHoles));
}

inline Points crossingPoints(const Region& region, const gkLineSeg& seg, bool includeEnds, bool considerHoles) {
    Points all;
    const auto append = [&](const Points& outline) {
        needsTwo(outline);
        for (const Crossing& crossing : crossings(outline, true, seg, includeEnds))
            all.push_back(crossing.point);
    };
    append(region.outline);
    if (considerHoles) {
        for (const Region& hole : region.holes) append(hole.outline);
    }
    return all;
}

} // namespace oracle

#endif
