// The outlines that are compared: every kind there is, and sizes beside every threshold of the searches.
#ifndef GK_TESTS_COMPARISONS_OUTLINES_H
#define GK_TESTS_COMPARISONS_OUTLINES_H

#include "tests/gen/kinds.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace comparisons {

using gen::Points;

struct Outline {
    std::string kind;
    std::uint64_t seed = 0;
    Points points;
    bool closed = true;
};

// How large the outlines are that a definition can be asked about.
struct Sizes {
    double share;     // of outlines whose size lies beside a threshold; the others are small, of every kind
    std::size_t most; // vertices of those, about
    std::size_t even; // thresholds up to here come equally often, greater ones the more seldom
};

// For definitions whose time grows with the size, with a little more (each hole has as many vertices; crossings
// are put in order by exchanges), with its square, and faster.
constexpr Sizes kLinear{0.5, 70000, 2048};
constexpr Sizes kMiddling{0.5, 2100, 512};
constexpr Sizes kQuadratic{0.25, 600, 256};
constexpr Sizes kSmall{0.125, 70, 70};

Outline outlineOf(std::uint64_t seed, const Sizes& sizes);

} // namespace comparisons

#endif
