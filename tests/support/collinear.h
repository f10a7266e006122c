// Random outlines with collinear edges, whose vertices carry the rounding of where they were computed.
#ifndef GK_TESTS_SUPPORT_COLLINEAR_H
#define GK_TESTS_SUPPORT_COLLINEAR_H

#include "platform/core/math/random.h"
#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"

#include <utility>
#include <vector>

namespace collinear {

using Outline = std::vector<gkVector<2>>;

// How large the coordinates are and how large the shape in them.
struct Frame {
    double coordinates;
    double shape;
};

// A turn by a random angle, a stretch to the frame's shape, and a random place in its coordinates.
gkXform<2> place(gkRandomUniform& random, const Frame& frame);

Outline placed(const gkXform<2>& where, const Outline& outline);

// 4 to 8 random vertices in the unit square, in random order: nearly all of them cross themselves.
Outline scribble(gkRandomUniform& random);
// The same with coordinates that are multiples of 840 below 84000; cut into up to 8 pieces they stay whole
// numbers.
Outline latticeScribble(gkRandomUniform& random);
// The same with axis-parallel edges.
Outline latticeStairs(gkRandomUniform& random);
// A star-shaped outline of 5 to 9 vertices around the middle of the unit square: it never crosses itself.
Outline star(gkRandomUniform& random);

// Every edge cut into 2 to 8 equal pieces.
Outline subdivided(gkRandomUniform& random, const Outline& outline);
// One edge folded upon itself twice, so that a piece of it lies within another one without sharing an end.
Outline folded(gkRandomUniform& random, const Outline& outline);
// Two squares on either side of a common line, on which one's side lies partly or all within the other's.
std::pair<Outline, Outline> neighbours(gkRandomUniform& random);
// A bow whose edges of length 2 cross in the middle at an angle with this tangent, to first order.
Outline needle(double tangent);

} // namespace collinear

#endif
