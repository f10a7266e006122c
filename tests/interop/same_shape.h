// Equality of shapes bit for bit, holes included.
#ifndef GK_TESTS_INTEROP_SAME_SHAPE_H
#define GK_TESTS_INTEROP_SAME_SHAPE_H

#include "cntr/regionst.h"

#include <cstring>
#include <vector>

using Points = std::vector<gkVector<2>>;

inline bool sameBits(const Points& a, const Points& b) {
    const auto same = [](double p, double q) { return std::memcmp(&p, &q, sizeof p) == 0; };
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!same(a[i].x(), b[i].x()) || !same(a[i].y(), b[i].y())) return false;
    return true;
}

inline bool sameContour(const gkContour& a, const gkContour& b) {
    return a == b && sameBits(a.points(), b.points());
}

inline bool sameRegion(const gkRegion& a, const gkRegion& b) {
    if (!sameContour(a, b) || a.holes().size() != b.holes().size()) return false;
    for (std::size_t i = 0; i < a.holes().size(); ++i)
        if (!sameRegion(*a.holes()[i], *b.holes()[i])) return false;
    return true;
}

inline bool sameSet(const gkRegionSet& a, const gkRegionSet& b) {
    if (a != b) return false;
    for (std::size_t i = 0; i < a.regions().size(); ++i)
        if (!sameRegion(*a.regions()[i], *b.regions()[i])) return false;
    return true;
}

#endif
