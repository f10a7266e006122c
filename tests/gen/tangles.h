// Outlines for repair, most of which cross themselves, and sets of outlines that cross each other.
#ifndef GK_TESTS_GEN_TANGLES_H
#define GK_TESTS_GEN_TANGLES_H

#include "tests/gen/kinds.h"

namespace gen {

// Kinds of outlines that cross themselves, from few crossings to many.
const std::vector<Kind>& tangles();

// One place where the outline crosses itself, now and then two.
Points figureEight(Random& random);
Points swappedVertices(Random& random);
// A smooth closed curve with noise: crossings of neighbouring edges only.
Points noisyCurve(Random& random);
// A curve around the centre several times; each round its own radius.
Points rosette(Random& random);
// A star polygon with its tips cut off, so that some edges are free of crossings.
Points bluntTips(Random& random);
Points manyVertices(Random& random);
// Some crossing points are vertices, of one of the edges or of both.
Points crossingsAsVertices(Random& random);
// Lobes that meet in one point, a vertex of each; one of them crosses itself.
Points touchingLobes(Random& random);
Points repeatedInTangle(Random& random);
// Edges that run along each other, forth and back.
Points overlappingEdges(Random& random);

struct SetKind {
    const char* name;
    std::vector<Points> (*make)(Random&);
};

const std::vector<SetKind>& setKinds();
std::vector<Points> shapes(const SetKind& kind, std::uint64_t seed);

std::vector<Points> twoSquares(Random& random);
std::vector<Points> rectangles(Random& random);
std::vector<Points> latticeRectangles(Random& random);
std::vector<Points> stars(Random& random);
std::vector<Points> chain(Random& random);
std::vector<Points> tangledSet(Random& random);

} // namespace gen

#endif
