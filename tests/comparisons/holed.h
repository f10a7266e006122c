// Regions with holes, as the library has them and as the definitions do.
#ifndef GK_TESTS_COMPARISONS_HOLED_H
#define GK_TESTS_COMPARISONS_HOLED_H

#include "tests/comparisons/outlines.h"
#include "tests/oracle/region.h"
#include "tests/support/regions.h"

namespace comparisons {

struct Holed {
    Shared region;
    oracle::Region plain;
};

Holed withoutHoles(const Points& points);

// What is inside it more often than not: smaller copies of the outline, some with a hole of their own, and
// another outline.
std::vector<Holed> holesFor(const Points& points, gen::Random& random);

// With those of the holes that the region accepts, one after the other.
Holed withHoles(const Points& points, const std::vector<Holed>& holes);

} // namespace comparisons

#endif
