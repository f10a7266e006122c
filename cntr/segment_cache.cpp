#include "cntr/segment_cache.h"

#include "cntr/segment_walk.h"

#include <utility>

gkRect gk_SegmentBox(const gkVector<2>& p1, const gkVector<2>& p2) {
    return gkRect(p1, gkVector<2>()).enclose(gkRect(p2, gkVector<2>()));
}

void gk_SegmentCache::build(const std::vector<gkVector<2>>& points, bool closed) {
    gk_SegmentCache fresh;
    const std::size_t count = gk_SegmentCount(points, closed);
    fresh.segments.reserve(count);
    fresh.lines.reserve(count);
    fresh.boxes.reserve(count);
    fresh.validLine.reserve(count);
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        const bool valid = !gfRealEq(current, previous, 1e-15);
        const gkLineSeg segment = valid ? gkLineSeg(previous, current) : gkLineSeg();
        fresh.segments.push_back(segment);
        fresh.lines.push_back(valid ? segment.line() : gkLine());
        fresh.boxes.push_back(valid ? gk_SegmentBox(previous, current) : gkRect());
        fresh.validLine.push_back(valid);
    });
    fresh.computed = true;
    *this = std::move(fresh);
}
