// Changes to outlines that bring out what random bytes never do.
#ifndef GK_TESTS_FUZZ_OUTLINE_MUTATOR_H
#define GK_TESTS_FUZZ_OUTLINE_MUTATOR_H

#include "tests/fuzz/outlines.h"
#include "tests/gen/random.h"

namespace fuzz {

// One change: a vertex or all of an outline snapped to a lattice, a vertex repeated, a vertex put on a crossing
// of two edges or on an edge, the direction or the start changed, places moved by as little as 1e-15, vertices
// left out or added, an outline copied or left out, all scaled.
void change(std::vector<Points>& outlines, gen::Random& random);

} // namespace fuzz

#endif
