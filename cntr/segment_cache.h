// The segments of an outline as values, for classes derived from it that ask for them.
#ifndef GK_CNTR_SEGMENT_CACHE_H
#define GK_CNTR_SEGMENT_CACHE_H

#include "platform/core/shapes/line_seg.h"

#include <vector>

// One entry per segment in both vectors. A segment whose ends are equal within 1e-15 is not a valid line: it
// keeps its index, but its entry is a default-made placeholder, not the segment's own place.
struct gk_SegmentCache {
    bool computed = false;
    std::vector<gkLineSeg> segments;
    std::vector<bool> validLine;

    void build(const std::vector<gkVector<2>>& points, bool closed);
};

#endif
