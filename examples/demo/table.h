// The measures as lines of text.
#ifndef GK_EXAMPLES_DEMO_TABLE_H
#define GK_EXAMPLES_DEMO_TABLE_H

#include "examples/demo/measure.h"

#include <string>
#include <vector>

// Two heading lines, then one line per object; columns are aligned and numbers written the same way everywhere.
std::string table(const std::vector<Measures>& objects);

// `value` with this many digits after the point, which is always a point.
std::string fixed(double value, int digits);

#endif
