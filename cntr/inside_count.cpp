#include "cntr/inside_count.h"

#include <algorithm>

long gk_InsideCount(const std::optional<gkVector<2>>& direction, const gkVector<2>& point, double rayLength,
                    bool bothWays, const gk_CountTowards& countTowards) {
    if (!direction) return 1;
    const gkVector<2> ray = *direction * rayLength;
    const long count = countTowards(point + ray);
    return bothWays ? std::min(count, countTowards(point - ray)) : count;
}
