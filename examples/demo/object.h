// One object of the picture.
#ifndef GK_EXAMPLES_DEMO_OBJECT_H
#define GK_EXAMPLES_DEMO_OBJECT_H

#include "ch_core/cntrtmpl.h"

#include <cstddef>
#include <vector>

using EdgeRegion = gkRegionT<gkEdgelet>;

struct Object {
    // What was found: edge points in pixels, vertices in units, and the same of each hole in the edgelet list.
    // This region draws the edge points.
    gkPtrHandle<EdgeRegion> edges;
    // What is measured: the same vertices with plain holes. It is a region of its own because plain holes are
    // not for an edgelet region, whose area and the like do not see its edgelet holes.
    gkPtrHandle<gkRegion> shape;
    std::size_t leftOut = 0; // vertices of the outline beside which there is no clear edge
};

#endif
