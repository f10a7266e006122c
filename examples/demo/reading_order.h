// The order in which a reader would count.
#ifndef GK_EXAMPLES_DEMO_READING_ORDER_H
#define GK_EXAMPLES_DEMO_READING_ORDER_H

#include "examples/demo/object.h"

#include <vector>

// Rows from the top, each from the left. A row is what has its middle above the lower edge of the row's topmost
// object, so that neighbours in a row that is not quite level stay together.
void sortForReading(std::vector<Object>& objects);

#endif
