// Inside or not by one pass over the segments, without a ray.
#ifndef GK_CNTR_SEARCH_INSIDE_SCAN_H
#define GK_CNTR_SEARCH_INSIDE_SCAN_H

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segments.h"

#include <optional>

struct gk_InsideScan {
    std::optional<gk_Box> box; // the vertices' own; none when one of them is beyond the bounds of magnitude.h
    gk_Inside inside = gk_Inside::eUnknown; // where the certificate allows rays from the point and holds
};

// Of a closed outline about which nothing is known. The pass that tells inside from outside brings the box,
// too, and that gives bounds on the ray's length, so that neither takes a pass of its own.
gk_InsideScan gk_ScanInside(const gk_Segments& outline, const gkVector<2>& point);

#endif
