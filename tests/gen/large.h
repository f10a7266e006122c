// Outlines of any wished size: large enough for several levels of boxes.
#ifndef GK_TESTS_GEN_LARGE_H
#define GK_TESTS_GEN_LARGE_H

#include "tests/gen/kinds.h"

namespace gen {

struct LargeKind {
    const char* name;                   // for failure messages
    Points (*make)(Random&, int count); // `count` vertices, up to a few
};

// A noisy star, a comb, a spiral, a curve through itself, a walk on a lattice, a round shape with all vertices
// on the hull, a crowd of vertices with one far away, repeated and tiny steps.
const std::vector<LargeKind>& largeKinds();

// The first `count` vertices of an outline of the kind.
Points exactly(const LargeKind& kind, Random& random, int count);

} // namespace gen

#endif
