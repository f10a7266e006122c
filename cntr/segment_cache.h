// What the intersection queries need of every segment of an outline, built once and kept until the outline
// changes.
#ifndef GK_CNTR_SEGMENT_CACHE_H
#define GK_CNTR_SEGMENT_CACHE_H

#include "platform/core/shapes/line_seg.h"
#include "platform/core/shapes/rect.h"

#include <vector>

// One entry per segment in every vector. A segment whose ends are equal within 1e-15 is not a valid line: it
// keeps its index, but its entries are default-made placeholders, not the segment's own place.
struct gk_SegmentCache {
    bool computed = false;
    std::vector<gkLineSeg> segments;
    std::vector<gkLine> lines;
    std::vector<gkRect> boxes;
    std::vector<bool> validLine;

    void build(const std::vector<gkVector<2>>& points, bool closed);
};

// Box of a segment's two end points.
gkRect gk_SegmentBox(const gkVector<2>& p1, const gkVector<2>& p2);

#endif
