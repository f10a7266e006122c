// The cells as lines of text.
#ifndef GK_EXAMPLES_ACCURACY_REPORT_H
#define GK_EXAMPLES_ACCURACY_REPORT_H

#include "examples/accuracy/cell.h"

#include <string>
#include <vector>

// Three heading lines, then one line per cell: bias and spread of every measure, and what theory expects.
std::string reportOf(const std::vector<Cell>& cells);

#endif
