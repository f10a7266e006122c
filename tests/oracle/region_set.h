// A list of regions: every member is asked, in list order.
#ifndef GK_TESTS_ORACLE_REGION_SET_H
#define GK_TESTS_ORACLE_REGION_SET_H

#include "tests/oracle/region.h"

#include <algorithm>
#include <limits>

namespace oracle {

using RegionSet = std::vector<Region>;

inline void needsOne(const RegionSet& set) {
    if (set.empty()) throw Refusal{"EmptyRegionSet"};
}

inline bool inside(const RegionSet& set, const gkVector<2>& p, bool considerHoles) {
    return std::any_of(set.begin(), set.end(),
                       [&](const Region& region) { return inside(region, p, considerHoles); });
}

// A distance that is no number is passed over.
inline double distToPoint(const RegionSet& set, const gkVector<2>& p, bool verticesOnly, bool considerHoles,
                          bool zeroInside) {
    needsOne(set);
    double least = std::numeric_limits<double>::infinity();
    for (const Region& region : set) {
        const double distance = distToPoint(region, p, verticesOnly, considerHoles, zeroInside);
        if (least > distance) least = distance;
    }
    return least;
}

inline gkRect encloseRect(const RegionSet& set, const gkXform<2>& xform) {
    needsOne(set);
    gkRect rect = encloseRect(set.front().outline, xform);
    for (std::size_t i = 1; i < set.size(); ++i) rect = rect.enclose(encloseRect(set[i].outline, xform));
    return rect;
}

inline double area(const RegionSet& set, bool considerHoles) {
    double sum = 0.0;
    for (const Region& region : set) sum += area(region, considerHoles);
    return sum;
}

// Members that no set has asked before: a region tells its centre with holes once.
inline gkVector<2> centroid(const RegionSet& set, bool considerHoles) {
    needsOne(set);
    gkVector<2> moment(0.0, 0.0);
    double total = 0.0;
    for (const Region& region : set) {
        moment = moment + centroid(region, considerHoles) * area(region, considerHoles);
        total += area(region, considerHoles);
    }
    return gfRealEq(total, 0.0, 1e-15) ? gkVector<2>(0.0, 0.0) : moment / total;
}

inline gkMatrix<2> inertiaMatrix(const RegionSet& set, bool considerHoles) {
    needsOne(set);
    Inertia all;
    for (const Region& region : set) {
        const gkMatrix<2> m = inertiaMatrix(region, considerHoles);
        all = sum(all, {area(region, considerHoles), centroid(region, considerHoles), m.element(0, 0),
                        m.element(1, 1), m.element(0, 1)});
    }
    return gkMatrix<2>(all.xx, all.xy, all.xy, all.yy);
}

} // namespace oracle

#endif
