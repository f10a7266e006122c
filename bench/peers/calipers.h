// The greatest distance between two vertices of a convex polygon, for peers that have only the hull.
#ifndef GK_BENCH_PEERS_CALIPERS_H
#define GK_BENCH_PEERS_CALIPERS_H

#include "bench/plain.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace bench {

// Source: Shamos, Computational Geometry, 1978 (rotating calipers).
inline double diameterOfConvex(const Points& hull) {
    const std::size_t n = hull.size();
    const auto turn = [&](const Point& a, const Point& b, const Point& c) {
        return std::fabs((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x));
    };
    const auto squared = [&](const Point& a, const Point& b) {
        return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
    };
    double greatest = n > 1 ? squared(hull[0], hull[1]) : 0.0;
    std::size_t j = 1;
    for (std::size_t i = 0; i < n && n > 2; ++i) {
        const Point& from = hull[i];
        const Point& to = hull[(i + 1) % n];
        while (turn(from, to, hull[(j + 1) % n]) > turn(from, to, hull[j])) j = (j + 1) % n;
        greatest = std::max({greatest, squared(from, hull[j]), squared(to, hull[j])});
    }
    return std::sqrt(greatest);
}

} // namespace bench

#endif
