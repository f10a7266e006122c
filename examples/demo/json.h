// The measures for other programs.
#ifndef GK_EXAMPLES_DEMO_JSON_H
#define GK_EXAMPLES_DEMO_JSON_H

#include "examples/demo/measure.h"
#include "examples/demo/picture.h"
#include "examples/demo/scale.h"

#include <string>
#include <vector>

// One JSON object: the image's name and size, the scale, and the list of objects. Lengths are in "unit", angles
// in degrees; an ellipse that there is none of is null.
std::string jsonOf(const std::string& image, const Photograph& photograph, const std::vector<Measures>& objects,
                   const Scale& scale);

#endif
