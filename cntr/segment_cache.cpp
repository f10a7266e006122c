#include "cntr/segment_cache.h"

#include "cntr/search/crossing_test.h"
#include "cntr/segment_walk.h"

#include <utility>

void gk_SegmentCache::build(const std::vector<gkVector<2>>& points, bool closed) {
    gk_SegmentCache fresh;
    const std::size_t count = gk_SegmentCount(points, closed);
    fresh.segments.reserve(count);
    fresh.validLine.reserve(count);
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        const bool valid = gk_IsValidLine(previous, current);
        fresh.segments.push_back(valid ? gkLineSeg(previous, current) : gkLineSeg());
        fresh.validLine.push_back(valid);
    });
    fresh.computed = true;
    *this = std::move(fresh);
}
