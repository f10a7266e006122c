// Everything the demo tells about one object.
#ifndef GK_EXAMPLES_DEMO_MEASURE_H
#define GK_EXAMPLES_DEMO_MEASURE_H

#include "cntr/region.h"

#include <cstddef>
#include <optional>
#include <vector>

struct FittedEllipse {
    gkEllipse ellipse;
    double error = 0.0; // root mean square distance of the vertices, in pixels
};

struct Measures {
    unsigned long number = 0;
    std::size_t vertices = 0;
    bool closed = false;
    double length = 0.0;
    gkVector<2> meanPosition;
    double diameter = 0.0;
    gkLineSeg farthestPair;
    gkRegion hull;
    std::optional<FittedEllipse> fit; // none where the vertices determine no ellipse
    bool crossesItself = false;
};

// `contour` has at least two vertices.
Measures measure(const gkContour& contour);

#endif
