// Every operation of the public interface, each under one name.
#ifndef GK_TESTS_BITS_OPERATIONS_H
#define GK_TESTS_BITS_OPERATIONS_H

#include "tests/bits/record.h"
#include "tests/bits/world.h"

#include <string>
#include <vector>

namespace bits {

// No operation leaves anything behind that another one could notice: each makes its own objects.
struct Operation {
    std::string name;
    void (*run)(const World&, Record&);
};

using Operations = std::vector<Operation>;

Operations valueOperations();  // vectors, matrices, angles: much of it inline in the headers
Operations planeOperations();  // lines, rectangles, circles, ellipses, polygons
Operations momentOperations(); // free functions over vertices
Operations contourOperations();
Operations regionOperations();
Operations setOperations();
Operations edgeletOperations();
Operations archiveOperations();
Operations drawingOperations();

const Operations& operations(); // all of them

} // namespace bits

#endif
