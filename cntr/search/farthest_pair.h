// The farthest pair of vertices, as the plain scan over all pairs finds it.
#ifndef GK_CNTR_SEARCH_FARTHEST_PAIR_H
#define GK_CNTR_SEARCH_FARTHEST_PAIR_H

#include "platform/core/math/vector.h"

#include <cstddef>
#include <cstdint>
#include <vector>

struct gk_VertexPair {
    std::size_t first;
    std::size_t second; // above `first`
    double distance;    // 0 when no pair is farther apart
};

// The pair with the greatest computed distance, the lowest first index among equals and then the lowest second,
// of the vertices `outer`: ascending indices, moderate coordinates (magnitude.h).
gk_VertexPair gk_FarthestPair(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& outer);

#endif
