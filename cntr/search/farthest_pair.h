// The farthest pair of vertices, as the plain scan over all pairs finds it.
#ifndef GK_CNTR_SEARCH_FARTHEST_PAIR_H
#define GK_CNTR_SEARCH_FARTHEST_PAIR_H

#include "platform/core/math/vector.h"

#include <cstddef>
#include <optional>
#include <vector>

struct gk_VertexPair {
    std::size_t first;
    std::size_t second; // above `first`
    double distance;    // 0 when no pair is farther apart
};

// The pair with the greatest computed distance, the lowest first index among equals and then the lowest second.
// None without vertices or with coordinates that are not moderate (magnitude.h).
std::optional<gk_VertexPair> gk_FarthestPair(const std::vector<gkVector<2>>& points);

#endif
