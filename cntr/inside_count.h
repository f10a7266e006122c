// How often a ray from a point crosses an outline, the ray chosen so that it stays clear of the vertices.
#ifndef GK_CNTR_INSIDE_COUNT_H
#define GK_CNTR_INSIDE_COUNT_H

#include "platform/core/math/vector.h"

#include <functional>
#include <vector>

// The number of crossings of the segment from the point to `end` with the outline, ends not included.
using gk_CountTowards = std::function<long(const gkVector<2>& end)>;

// The count for a point within the outline's box: 1 within 1e-6 of a vertex, else the crossings of a ray of the
// given length through the middle of the first gap between vertex directions wider than pi / n, or of the x
// direction when there is none; with `bothWays` the lesser count of that ray and the opposite one.
long gk_InsideCount(const std::vector<gkVector<2>>& points, const gkVector<2>& point, double rayLength,
                    bool bothWays, const gk_CountTowards& countTowards);

#endif
