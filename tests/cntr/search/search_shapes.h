// Shapes large enough for several levels of boxes, and all the small kinds.
#ifndef GK_TESTS_CNTR_SEARCH_SEARCH_SHAPES_H
#define GK_TESTS_CNTR_SEARCH_SEARCH_SHAPES_H

#include "tests/gen/each.h"
#include "tests/gen/probes.h"

#include <string>

namespace search {

using gen::Points;

struct Shape {
    std::string name;
    Points points;
};

// Some hundreds of vertices each, of every large kind.
std::vector<Shape> largeShapes(std::uint64_t seed);

// Calls check(points, seed) for every kind of generator and every large shape.
template <class Check> void each(std::uint64_t standard, Check check) {
    gen::eachShape(standard, check);
    for (std::uint64_t seed = 1; seed <= gen::rounds(standard); ++seed) {
        for (const Shape& shape : largeShapes(seed)) {
            SCOPED_TRACE(shape.name + ", seed " + std::to_string(seed));
            check(shape.points, seed);
            if (::testing::Test::HasFailure()) return;
        }
    }
}

} // namespace search

#endif
