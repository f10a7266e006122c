// Outlines that cross or touch themselves.
#include "tests/gen/kinds.h"
#include "tests/gen/places.h"

namespace {

constexpr double kTurn = 6.283185307179586;

double cosine(double angle) { return gkVector<2>(1.0, gkRadian(angle)).x(); }

} // namespace

namespace gen {

Points lissajous(Random& random) {
    const int count = random.integer(12, 60);
    const int a = random.integer(1, 4);
    const int b = random.integer(1, 5);
    const double phase = random.between(0.0, kTurn);
    Points points;
    for (int i = 0; i < count; ++i) {
        const double t = kTurn * i / count;
        points.emplace_back(10.0 * cosine(a * t), 7.0 * cosine(b * t + phase));
    }
    return points;
}

Points randomPolygon(Random& random) {
    const int count = random.integer(3, 24);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(place(random, 10.0));
    return points;
}

// A star polygon that runs around its centre several times.
Points pentagram(Random& random) {
    const int count = random.integer(5, 15);
    const int step = random.integer(2, 4);
    const double radius = random.between(1.0, 20.0);
    Points points;
    for (int i = 0; i < count; ++i) {
        points.emplace_back(radius, gkRadian(kTurn * (i * step % count) / count));
    }
    return points;
}

// A lattice path that runs into its own vertices and edges from all sides.
Points touching(Random& random) {
    const int count = random.integer(6, 40);
    gkVector<2> at(0.0, 0.0);
    Points points;
    for (int i = 0; i < count; ++i) {
        points.push_back(at);
        const double unit = random.chance(0.2) ? 0.5 : 1.0;
        at += latticePlace(random, 2) * unit;
    }
    return points;
}

} // namespace gen
