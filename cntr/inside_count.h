// How often a ray from a point crosses an outline, the ray chosen so that it stays clear of the vertices.
#ifndef GK_CNTR_INSIDE_COUNT_H
#define GK_CNTR_INSIDE_COUNT_H

#include "cntr/search/segment_tree.h"

#include <functional>
#include <optional>
#include <vector>

// The direction of the ray from a point, of length 1: through the middle of the first gap between vertex
// directions wider than pi / n, or along x when there is none. None within 1e-6 of a vertex.
std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gkVector<2>& point);
// The same by a tree of the closed outline's segments, for a point of moderate magnitude.
std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gk_SegmentTree& tree,
                                           const gkVector<2>& point);

// The number of crossings of the segment from the point to `end` with the outline, ends not included.
using gk_CountTowards = std::function<long(const gkVector<2>& end)>;

// The count for a point within the outline's box: 1 without a direction (on a vertex), else the crossings of a
// ray of the given length; with `bothWays` the lesser count of that ray and the opposite one.
long gk_InsideCount(const std::optional<gkVector<2>>& direction, const gkVector<2>& point, double rayLength,
                    bool bothWays, const gk_CountTowards& countTowards);

#endif
