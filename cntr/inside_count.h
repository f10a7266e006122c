// How often a ray from a point crosses an outline.
#ifndef GK_CNTR_INSIDE_COUNT_H
#define GK_CNTR_INSIDE_COUNT_H

#include "platform/core/math/vector.h"

#include <functional>
#include <optional>

// The number of crossings of the segment from the point to `end` with the outline, ends not included.
using gk_CountTowards = std::function<long(const gkVector<2>& end)>;

// The count for a point within the outline's box: 1 without a direction (on a vertex), else the crossings of a
// ray of the given length; with `bothWays` the lesser count of that ray and the opposite one.
long gk_InsideCount(const std::optional<gkVector<2>>& direction, const gkVector<2>& point, double rayLength,
                    bool bothWays, const gk_CountTowards& countTowards);

#endif
