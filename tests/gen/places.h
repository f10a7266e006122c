// Random places, their coordinates drawn one after the other.
//
// The arguments of a call and the operands of an operator have no order among themselves: two draws in one
// expression would make other shapes with another compiler.
#ifndef GK_TESTS_GEN_PLACES_H
#define GK_TESTS_GEN_PLACES_H

#include "platform/core/math/vector.h"
#include "tests/gen/random.h"

namespace gen {

// In the box between the two corners. y is drawn before x: docs/repair.md counts the shapes that come of it.
inline gkVector<2> placeBetween(Random& random, const gkVector<2>& low, const gkVector<2>& high) {
    const double y = random.between(low.y(), high.y());
    const double x = random.between(low.x(), high.x());
    return gkVector<2>(x, y);
}

// In the square of half side `reach` around the origin.
inline gkVector<2> place(Random& random, double reach) {
    return placeBetween(random, {-reach, -reach}, {reach, reach});
}

// A point of the lattice in that square; y first as well.
inline gkVector<2> latticePlace(Random& random, int reach) {
    const int y = random.integer(-reach, reach);
    const int x = random.integer(-reach, reach);
    return gkVector<2>(x, y);
}

} // namespace gen

#endif
