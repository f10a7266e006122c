// The measures for a spreadsheet.
#ifndef GK_EXAMPLES_DEMO_CSV_H
#define GK_EXAMPLES_DEMO_CSV_H

#include "examples/demo/measure.h"
#include "examples/demo/scale.h"

#include <string>
#include <vector>

// One line that names the columns and their units, then one line per object, ended by '\n'. Numbers are the
// shortest text that reads back as the same, with a point whatever the locale; a measure that there is none of
// is empty.
std::string csvOf(const std::vector<Measures>& objects, const Scale& scale);

#endif
