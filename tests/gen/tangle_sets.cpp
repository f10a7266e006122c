#include "tests/gen/places.h"
#include "tests/gen/tangles.h"

#include <algorithm>

namespace {

using gen::Points;
using gen::Random;

Points rectangle(const gkVector<2>& corner, const gkVector<2>& size) {
    const gkVector<2> far = corner + size;
    return {corner, {far.x(), corner.y()}, far, {corner.x(), far.y()}};
}

Points anyStart(Points points, Random& random) {
    const auto first = static_cast<std::ptrdiff_t>(random.index(points.size()));
    std::rotate(points.begin(), points.begin() + first, points.end());
    if (random.chance(0.5)) std::reverse(points.begin(), points.end());
    return points;
}

Points moved(Points points, const gkVector<2>& by) {
    for (gkVector<2>& p : points) p += by;
    return points;
}

} // namespace

namespace gen {

// Of the same size, the second moved by half to one and a half sides.
std::vector<Points> twoSquares(Random& random) {
    const gkVector<2> by = place(random, 5.0);
    return {anyStart(rectangle({0.0, 0.0}, {4.0, 4.0}), random),
            anyStart(moved(rectangle({0.0, 0.0}, {4.0, 4.0}), by), random)};
}

std::vector<Points> rectangles(Random& random) {
    std::vector<Points> set;
    for (int i = random.integer(2, 6); i > 0; --i) {
        const gkVector<2> size = placeBetween(random, {1.0, 1.0}, {8.0, 8.0});
        const gkVector<2> corner = place(random, 8.0);
        set.push_back(anyStart(rectangle(corner, size), random));
    }
    return set;
}

// Corners meet corners and edges, edges lie on edges.
std::vector<Points> latticeRectangles(Random& random) {
    std::vector<Points> set;
    for (int i = random.integer(2, 5); i > 0; --i) {
        const int height = random.integer(1, 5);
        const int width = random.integer(1, 5);
        const gkVector<2> corner = latticePlace(random, 4);
        set.push_back(anyStart(rectangle(corner, gkVector<2>(width, height)), random));
    }
    return set;
}

std::vector<Points> stars(Random& random) {
    std::vector<Points> set;
    for (int i = random.integer(2, 4); i > 0; --i) set.push_back(anyStart(star(random), random));
    return set;
}

// Each overlaps the one before, in any order in the list.
std::vector<Points> chain(Random& random) {
    std::vector<Points> set;
    const int links = random.integer(3, 7);
    for (int i = 0; i < links; ++i) {
        const double height = random.between(2.0, 4.0);
        const double y = random.between(-1.0, 1.0);
        set.push_back(anyStart(rectangle({3.0 * i, y}, {4.0, height}), random));
    }
    for (std::size_t i = set.size(); i > 1; --i) std::swap(set[i - 1], set[random.index(i)]);
    return set;
}

// Regions that cross themselves as well.
std::vector<Points> tangledSet(Random& random) {
    std::vector<Points> set;
    for (int i = random.integer(1, 4); i > 0; --i) {
        const Kind& kind = tangles()[random.index(tangles().size())];
        const double x = random.between(-15.0, 15.0);
        const double y = random.between(-15.0, 15.0);
        set.push_back(moved(kind.make(random), {x, y}));
    }
    return set;
}

const std::vector<SetKind>& setKinds() {
    static const std::vector<SetKind> list = {
        {"two squares", &twoSquares},
        {"rectangles", &rectangles},
        {"rectangles on a lattice", &latticeRectangles},
        {"stars", &stars},
        {"chain of rectangles", &chain},
        {"crossing regions", &tangledSet},
    };
    return list;
}

std::vector<Points> shapes(const SetKind& kind, std::uint64_t seed) {
    Random random(seed);
    return kind.make(random);
}

} // namespace gen
