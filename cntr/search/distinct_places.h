// One vertex for each place of an outline, for questions that take all pairs of places.
#ifndef GK_CNTR_SEARCH_DISTINCT_PLACES_H
#define GK_CNTR_SEARCH_DISTINCT_PLACES_H

#include "platform/core/math/vector.h"

#include <cstddef>
#include <vector>

// The first vertex at each place, in ascending order; those with a NaN, which is no place, are left out.
std::vector<std::size_t> gk_DistinctPlaces(const std::vector<gkVector<2>>& points);

// The vertices of these indices.
std::vector<gkVector<2>> gk_VerticesAt(const std::vector<gkVector<2>>& points,
                                       const std::vector<std::size_t>& indices);

#endif
