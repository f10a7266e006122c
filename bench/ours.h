// Plain shapes as the library's own, each built from its vertices so that it has no kept result.
#ifndef GK_BENCH_OURS_H
#define GK_BENCH_OURS_H

#include "bench/plain.h"
#include "bench/shapes.h"
#include "gkcntr.h"

#include <memory>
#include <vector>

namespace bench {

inline gkVector<2> vectorOf(const Point& p) { return {p.x, p.y}; }

inline std::vector<gkVector<2>> vectorsOf(const Points& points) {
    std::vector<gkVector<2>> list;
    list.reserve(points.size());
    for (const Point& p : points) list.push_back(vectorOf(p));
    return list;
}

inline gkLineSeg segmentOf(const Segment& s) { return gkLineSeg(vectorOf(s.from), vectorOf(s.to)); }

inline std::unique_ptr<gkContour> contourOf(const Points& points) {
    return std::make_unique<gkContour>(vectorsOf(points), true, 0);
}

std::unique_ptr<gkRegion> regionOf(const Points& points);
// Giving a region its holes asks it and them for crossings; what that kept is forgotten again.
std::unique_ptr<gkRegion> regionOf(const Polygon& polygon);

} // namespace bench

#endif
