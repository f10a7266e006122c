// Random outlines by kind: the same vertices from a kind and a seed on every platform.
#ifndef GK_TESTS_GEN_KINDS_H
#define GK_TESTS_GEN_KINDS_H

#include "platform/core/math/vector.h"
#include "tests/gen/random.h"

#include <cstdint>
#include <vector>

namespace gen {

using Points = std::vector<gkVector<2>>;

struct Kind {
    const char* name; // for failure messages
    Points (*make)(Random&);
    bool finite; // no NaN and no infinity among the vertices
};

// Every kind there is.
const std::vector<Kind>& kinds();

// The outline of a kind that belongs to a seed.
Points shape(const Kind& kind, std::uint64_t seed);

// Round shapes with long or thin parts (smooth.cpp).
Points star(Random& random);
Points comb(Random& random);
Points spiral(Random& random);
Points needle(Random& random);

// Regular vertices: many ties, collinear neighbours, repeats (lattice.cpp).
Points latticeOutline(Random& random);
Points latticePoints(Random& random);
Points staircase(Random& random);
Points subdivided(Random& random);
Points repeated(Random& random);
Points collinear(Random& random);
Points coincident(Random& random);

// Outlines that cross themselves (crossing.cpp).
Points lissajous(Random& random);
Points randomPolygon(Random& random);
Points pentagram(Random& random);
Points touching(Random& random);

// Another shape at another size, or few or bad vertices (extreme.cpp).
Points tiny(Random& random);
Points big(Random& random);
Points enormous(Random& random);
Points farAway(Random& random);
Points few(Random& random);
Points hostile(Random& random);

} // namespace gen

#endif
