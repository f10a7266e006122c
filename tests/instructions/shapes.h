// The shapes that work is done on, and the questions put to them.
#ifndef GK_TESTS_INSTRUCTIONS_SHAPES_H
#define GK_TESTS_INSTRUCTIONS_SHAPES_H

#include "cntr/regionst.h"
#include "tests/instructions/workload.h"

#include <memory>

namespace instructions {

enum class Kind { eStar, eComb, eSpiral, eLissajous };

Points outline(Kind kind, int count);
// A star, a comb and a spiral of that many vertices.
std::vector<Points> simpleOutlines(int count);

// In the outline's box, and segments between two such points.
Points pointsIn(const Points& outline, int count);
std::vector<gkLineSeg> segmentsIn(const Points& outline, int count);

// Objects that nobody has asked yet.
template <class Shape> using Fresh = std::vector<std::unique_ptr<Shape>>;
Fresh<gkContour> contours(const std::vector<Points>& outlines, int copies);
Fresh<gkRegion> regions(const std::vector<Points>& outlines, int copies);

// Stars of 20 vertices in rows; they meet their neighbours when `spacing` is below 20.
gkRegionSet rows(int count, double spacing);

} // namespace instructions

#endif
