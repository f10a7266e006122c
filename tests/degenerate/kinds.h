// The outlines that the columns of docs/degenerate.md are named after.
#ifndef GK_TESTS_DEGENERATE_KINDS_H
#define GK_TESTS_DEGENERATE_KINDS_H

#include "cntr/contour.h"

#include <string>
#include <vector>

using Points = std::vector<gkVector<2>>;

// An outline and the place that its coordinates, those of the question and those of the answer count from.
struct Kind {
    Points points;
    gkVector<2> origin;
    bool inSet = true; // false: the set that is asked holds no region

    gkVector<2> at(double x, double y) const { return origin + gkVector<2>(x, y); }
    gkVector<2> place() const { return at(1.0, 1.0); }
    gkLineSeg segment() const { return gkLineSeg(at(-10.0, 1.0), at(20.0, 1.0)); }
};

// Throws std::out_of_range for a name that no column has.
Kind kindOf(const std::string& column);

#endif
