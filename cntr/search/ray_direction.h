// Where the ray goes that counts crossings: so that it stays clear of the vertices.
#ifndef GK_CNTR_SEARCH_RAY_DIRECTION_H
#define GK_CNTR_SEARCH_RAY_DIRECTION_H

#include "cntr/search/segment_tree.h"

#include <optional>

// The direction of the ray from a point, of length 1: through the middle of the first gap between vertex
// directions wider than pi / n, or along x when there is none. None within 1e-6 of a vertex.
std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gkVector<2>& point);
// The same by a tree of the closed outline's segments, for a point of moderate magnitude.
std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gk_SegmentTree& tree,
                                           const gkVector<2>& point);

#endif
