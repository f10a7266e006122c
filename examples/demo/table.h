// The measures as lines of text.
#ifndef GK_EXAMPLES_DEMO_TABLE_H
#define GK_EXAMPLES_DEMO_TABLE_H

#include "examples/demo/measure.h"
#include "examples/demo/scale.h"

#include <string>
#include <vector>

// Two heading lines, then one line per object; columns are aligned and numbers
// written the same way everywhere. One table tells of outlines, the other of the areas inside them.
std::string tableOfOutlines(const std::vector<Measures>& objects, const Scale& scale);
std::string tableOfAreas(const std::vector<Measures>& objects, const Scale& scale);

// `value` with this many digits after the point, which is always a point.
std::string fixed(double value, int digits);

// "1 hole", "2 holes".
std::string counted(std::size_t count, const std::string& noun);

#endif
