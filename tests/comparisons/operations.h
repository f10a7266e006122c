// The operations whose answers are compared, each under one name.
#ifndef GK_TESTS_COMPARISONS_OPERATIONS_H
#define GK_TESTS_COMPARISONS_OPERATIONS_H

#include "tests/comparisons/tally.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace comparisons {

// Makes the shape of a seed and asks it.
struct Operation {
    std::string name;
    std::function<void(std::uint64_t seed, Tally&)> run;
};

using Operations = std::vector<Operation>;

Operations measureOperations();   // of contours
Operations proximityOperations(); // of contours
Operations crossingOperations();  // of contours
Operations contourOperations();   // all of a contour's in any order
Operations momentOperations();    // of plain vertices
Operations regionOperations();
Operations repairOperations();
Operations setOperations();

} // namespace comparisons

#endif
