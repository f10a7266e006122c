#include "tests/cntr/search/search_shapes.h"

namespace search {
namespace {

constexpr double kTurn = 6.283185307179586;

gkVector<2> polar(double length, double angle) { return gkVector<2>(length, gkRadian(angle)); }

Points star(gen::Random& random, int count) {
    const gkVector<2> center(random.between(-500.0, 500.0), random.between(-500.0, 500.0));
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(center + polar(100.0 + random.unit(), kTurn * i / count));
    return points;
}

Points comb(gen::Random& random, int teeth) {
    const double length = random.between(50.0, 5000.0);
    Points points;
    for (int i = 0; i < teeth; ++i) {
        points.emplace_back(3.0 * i, random.unit());
        points.emplace_back(3.0 * i + 1.0, length + random.unit());
        points.emplace_back(3.0 * i + 2.0, length + random.unit());
        points.emplace_back(3.0 * i + 2.5, random.unit());
    }
    points.emplace_back(3.0 * teeth, -5.0);
    points.emplace_back(0.0, -5.0);
    return points;
}

Points spiral(gen::Random& random, int steps) {
    const double growth = random.between(0.2, 2.0);
    Points points;
    for (int i = 0; i < steps; ++i) points.push_back(polar(3.0 + 0.1 * growth * i, 0.1 * i));
    for (int i = steps; i-- > 0;) points.push_back(polar(3.0 + 0.1 * growth * (i + kTurn * 5.0), 0.1 * i));
    return points;
}

Points lissajous(gen::Random& random, int count) {
    const int across = random.integer(2, 7);
    Points points;
    for (int i = 0; i < count; ++i) {
        const double t = kTurn * i / count;
        points.emplace_back(90.0 * polar(1.0, across * t).y() + 0.01 * random.unit(),
                            70.0 * polar(1.0, (across + 1) * t).x() + 0.01 * random.unit());
    }
    return points;
}

Points latticeWalk(gen::Random& random, int count) {
    Points points = {{0.0, 0.0}};
    while (static_cast<int>(points.size()) < count) {
        const gkVector<2> step = random.chance(0.5) ? gkVector<2>(random.integer(-2, 2), 0.0)
                                                    : gkVector<2>(0.0, random.integer(-2, 2));
        points.push_back(points.back() + step);
    }
    return points;
}

Points round(gen::Random& random, int count) {
    const double radius = random.between(1.0, 1000.0);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(polar(radius, kTurn * i / count));
    return points;
}

Points crowd(gen::Random& random, int count) {
    Points points;
    for (int i = 0; i < count; ++i) points.emplace_back(random.unit(), random.unit());
    points.emplace_back(1e5, -1e5);
    return points;
}

Points halting(gen::Random& random, int count) {
    const double steps[] = {0.0, 1e-16, 1e-9, 1e-6, 0.5};
    Points points = {{random.between(-9.0, 9.0), 0.0}};
    while (static_cast<int>(points.size()) < count)
        points.push_back(points.back() + polar(steps[random.index(5)], random.between(0.0, kTurn)));
    return points;
}

} // namespace

std::vector<Shape> largeShapes(std::uint64_t seed) {
    gen::Random random(seed);
    const int count = random.integer(100, 700);
    return {{"large star", star(random, count)},
            {"large comb", comb(random, count / 4)},
            {"large spiral", spiral(random, count / 2)},
            {"large lissajous", lissajous(random, count)},
            {"lattice walk", latticeWalk(random, count)},
            {"round", round(random, count)},
            {"crowd", crowd(random, count)},
            {"halting", halting(random, count)}};
}

} // namespace search
