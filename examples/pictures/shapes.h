// The outlines that the pictures ask.
#ifndef GK_EXAMPLES_PICTURES_SHAPES_H
#define GK_EXAMPLES_PICTURES_SHAPES_H

#include "cntr/region.h"

#include <vector>

using Points = std::vector<gkVector<2>>;

// A closed outline with a dent, and a shorter open one.
Points bean();
Points path();
// The bean with a hole.
gkRegion holed();
// Outlines that cross themselves: two lobes, and a loop within a loop.
Points eight();
Points twice();

#endif
