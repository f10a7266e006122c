// Everything the demo tells about one object, in its scale's unit.
#ifndef GK_EXAMPLES_DEMO_MEASURE_H
#define GK_EXAMPLES_DEMO_MEASURE_H

#include "examples/demo/object.h"

#include <cstddef>
#include <optional>
#include <vector>

struct FittedEllipse {
    gkEllipse ellipse;
    double error = 0.0; // root mean square distance of the vertices
};

struct Measures {
    unsigned long number = 0;
    std::size_t vertices = 0;
    std::size_t leftOut = 0; // see Object
    double length = 0.0;
    gkVector<2> meanPosition;
    double diameter = 0.0;
    gkLineSeg farthestPair;
    gkRegion hull;
    double hullArea = 0.0;
    std::optional<FittedEllipse> fit; // none where the vertices determine no ellipse
    bool crossesItself = false;

    std::size_t holes = 0;
    double filledArea = 0.0; // inside the outline
    double area = 0.0;       // the same without the holes
    gkVector<2> centerOfMass;
    std::optional<gkEllipse> momentsEllipse; // solid, with the second moments of the region and its holes
};

// The shape has at least three vertices; they and those of its holes run counter-clockwise.
Measures measure(const Object& object);

#endif
