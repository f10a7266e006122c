// The loop of every random test: all kinds, all seeds, open and closed, named in each failure.
#ifndef GK_TESTS_GEN_EACH_H
#define GK_TESTS_GEN_EACH_H

#include "tests/gen/kinds.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace gen {

// Seeds per kind: `standard` times the environment variable GKCNTR_ORACLE_ROUNDS, when it is set to a number
// above 0; at least one.
inline std::uint64_t rounds(std::uint64_t standard) {
    const char* text = std::getenv("GKCNTR_ORACLE_ROUNDS");
    const double factor = text ? std::strtod(text, nullptr) : 1.0;
    const double wanted = static_cast<double>(standard) * (factor > 0.0 ? factor : 1.0);
    return wanted > 1.0 ? static_cast<std::uint64_t>(wanted) : 1;
}

// Calls check(points, seed) for `standard` seeds of every kind; ends with the first shape that fails.
template <class Check> void eachShape(std::uint64_t standard, Check check) {
    for (const Kind& kind : kinds()) {
        for (std::uint64_t seed = 1; seed <= rounds(standard); ++seed) {
            SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed));
            check(shape(kind, seed), seed);
            if (::testing::Test::HasFailure()) return;
        }
    }
}

// Calls check(points, closed, seed), for every shape open and closed.
template <class Check> void eachOutline(std::uint64_t standard, Check check) {
    eachShape(standard, [&](const Points& points, std::uint64_t seed) {
        for (const bool closed : {false, true}) {
            SCOPED_TRACE(closed ? "closed" : "open");
            check(points, closed, seed);
            if (::testing::Test::HasFailure()) return;
        }
    });
}

} // namespace gen

#endif
