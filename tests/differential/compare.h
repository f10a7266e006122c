// What the comparisons with other libraries share.
#ifndef GK_TESTS_DIFFERENTIAL_COMPARE_H
#define GK_TESTS_DIFFERENTIAL_COMPARE_H

#include "tests/gen/each.h"

#include <algorithm>
#include <cmath>

using Points = gen::Points;

// The shapes that other libraries can take: finite, of moderate size, with at least `fewest` vertices.
template <class Check> void eachOrdinaryShape(std::uint64_t seeds, std::size_t fewest, Check check) {
    std::size_t taken = 0;
    gen::eachShape(seeds, [&](const Points& points, std::uint64_t seed) {
        double greatest = 0.0;
        for (const gkVector<2>& p : points) {
            if (!std::isfinite(p.x()) || !std::isfinite(p.y())) return;
            greatest = std::max({greatest, std::fabs(p.x()), std::fabs(p.y())});
        }
        if (points.size() < fewest || !(greatest > 1e-2 && greatest < 1e4)) return;
        ++taken;
        check(points, seed);
    });
    if (::testing::Test::HasFailure()) return;
    EXPECT_GT(taken, 12 * gen::rounds(seeds)) << "most kinds should be left";
}

// The greatest coordinate, which the rounding of sums and differences goes by.
inline double sizeOf(const Points& points) {
    double greatest = 0.0;
    for (const gkVector<2>& p : points) greatest = std::max({greatest, std::fabs(p.x()), std::fabs(p.y())});
    return greatest;
}

// The same vertices in the same turn, from the one with the lowest x, then y.
inline Points fromLowest(Points points) {
    const auto lowest = std::min_element(points.begin(), points.end(), [](const auto& a, const auto& b) {
        return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
    });
    std::rotate(points.begin(), lowest, points.end());
    return points;
}

#endif
