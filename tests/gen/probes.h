// Points, segments and tolerances to ask a shape with, made from the shape itself.
#ifndef GK_TESTS_GEN_PROBES_H
#define GK_TESTS_GEN_PROBES_H

#include "platform/core/shapes/line_seg.h"
#include "tests/gen/kinds.h"

#include <cstdint>
#include <vector>

namespace gen {

// Vertices, edge midpoints, both one ulp beside, points 1e-6 from an edge (and one ulp nearer and farther), the
// topmost and bottommost row, points far away. Some 60 points however large the shape; without NaN for finite
// shapes.
Points probes(const Points& points, std::uint64_t seed);

// The shape's own edges, also reversed, extended and shifted along themselves; segments through vertices,
// ending on an edge or 1e-6 before or beyond it, long ones across the shape, ones of length zero, ones beside
// the shape.
std::vector<gkLineSeg> querySegments(const Points& points, std::uint64_t seed);

// Tolerances for nearness: the spacing of vertices, 1e-6, a size that holds all, one that holds none.
std::vector<double> tolerances(const Points& points);

} // namespace gen

#endif
