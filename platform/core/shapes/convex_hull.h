/// \file
/// The convex hull of points in the plane.
#ifndef GK_PLATFORM_CORE_SHAPES_CONVEX_HULL_H
#define GK_PLATFORM_CORE_SHAPES_CONVEX_HULL_H

#include "platform/core/math/vector.h"
#include "platform/export.h"

#include <vector>

/// The vertices of the convex hull of `points`, counter-clockwise, from the one with the lowest x (among
/// equals, the lowest y).
///
/// Every vertex is one of the points, bit for bit; no two are equal and no three are collinear. The turns are
/// decided exactly, so this holds for all finite coordinates, however close or large. Of equal points (0.0 and
/// -0.0 are equal) the one with the lowest index is kept. A point with a NaN or infinite coordinate is left
/// out. No point gives an empty list, equal points give one vertex and collinear points their two ends.
///
/// The result is the same on every platform and, apart from the sign of zeros, for every order of the points.
///
/// Cost: O(n log n) at most. Of an outline, whose neighbours are near each other, most points are sorted out
/// eight at a time, by boxes of 4 bytes a point. Throws nothing but std::bad_alloc. Source: Andrew's monotone
/// chain (1979) over the points that a polygon grown as in Quickhull (Eddy, 1977) leaves outside.
GKCNTR_API std::vector<gkVector<2>> gfConvexHull(const std::vector<gkVector<2>>& points);

#endif
