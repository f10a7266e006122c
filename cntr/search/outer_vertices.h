// The vertices that can be farthest out in some direction, also as distances and products round.
#ifndef GK_CNTR_SEARCH_OUTER_VERTICES_H
#define GK_CNTR_SEARCH_OUTER_VERTICES_H

#include "platform/core/math/vector.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Indices, ascending, of all vertices that are not certainly deeper inside the convex hull than the slack of a
// distance between them (magnitude.h). None for numbers beyond the bounds given there, or when the hull is
// flat.
//
// A vertex at depth d lies at least d short of the hull's reach in every direction, so its product with a unit
// vector is computed below that of a hull vertex when d exceeds the roundings. And an end of a pair that is e
// short of the farthest two is at a depth of at most e: from the other end, a hull vertex beyond it would be
// farther than the farthest.
std::optional<std::vector<std::uint32_t>> gk_OuterVertices(const std::vector<gkVector<2>>& points);

#endif
