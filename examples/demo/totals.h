// All objects of a picture as one.
#ifndef GK_EXAMPLES_DEMO_TOTALS_H
#define GK_EXAMPLES_DEMO_TOTALS_H

#include "cntr/regionst.h"
#include "examples/demo/scale.h"

#include <string>

// One line: how many regions, their areas, their centre of mass and whether outlines cross. The set is not
// empty, and nobody has asked its regions for centerOfMass(true) yet, which is answered truly only once.
std::string totals(const gkRegionSet& regions, const Scale& scale);

#endif
