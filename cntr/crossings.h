// Where a segment crosses an outline.
#ifndef GK_CNTR_CROSSINGS_H
#define GK_CNTR_CROSSINGS_H

#include "cntr/segment_cache.h"

#include <vector>

// A crossing point and the outline's segment on which it was found.
struct gk_Crossing {
    gkVector<2> point;
    int segment = 0;
};

// The crossings of `seg` with the outline's segments, in segment order. A crossing at an outline's vertex is
// found on both segments that meet there; parallel and collinear segments give none. Without `includeEnds`,
// outline segments within 1e-6 of an end of `seg` are left out.
std::vector<gk_Crossing> gk_Crossings(const gk_SegmentCache& outline, const gkLineSeg& seg, bool includeEnds);

// Puts crossings in order along `seg` by exchanges. Not a stable sort: which of two crossings with the same key
// comes first follows from the exchanges made, and callers rely on that order.
void gk_OrderAlong(const gkLineSeg& seg, std::vector<gk_Crossing>& crossings);

#endif
