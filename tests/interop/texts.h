// What the tests of text share: shapes to write.
#ifndef GK_TESTS_INTEROP_TEXTS_H
#define GK_TESTS_INTEROP_TEXTS_H

#include "tests/interop/same_shape.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using Shared = gkPtrHandle_const<gkRegion>;

inline const double kNan = std::numeric_limits<double>::quiet_NaN();
inline const double kInfinity = std::numeric_limits<double>::infinity();

inline Points square(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

inline gkRegion regionWithHoles(const Points& outline, const std::vector<Points>& holes) {
    gkRegion region(outline);
    std::vector<Shared> shared;
    for (const Points& hole : holes) shared.emplace_back(new gkRegion(hole));
    region.holes(shared);
    return region;
}

inline gkRegionSet setOf(const std::vector<gkRegion>& regions) {
    std::vector<Shared> shared;
    for (const gkRegion& region : regions) shared.emplace_back(new gkRegion(region));
    return gkRegionSet(shared);
}

#endif
