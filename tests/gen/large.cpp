#include "tests/gen/large.h"

#include "tests/gen/places.h"

// Some kinds are also names of small outlines.
namespace large {
namespace {

using gen::Points;
using gen::Random;

constexpr double kTurn = 6.283185307179586;

gkVector<2> polar(double length, double angle) { return gkVector<2>(length, gkRadian(angle)); }

Points star(Random& random, int count) {
    const gkVector<2> center = gen::place(random, 500.0);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(center + polar(100.0 + random.unit(), kTurn * i / count));
    return points;
}

Points comb(Random& random, int teeth) {
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

Points spiral(Random& random, int steps) {
    const double growth = random.between(0.2, 2.0);
    Points points;
    for (int i = 0; i < steps; ++i) points.push_back(polar(3.0 + 0.1 * growth * i, 0.1 * i));
    for (int i = steps; i-- > 0;) points.push_back(polar(3.0 + 0.1 * growth * (i + kTurn * 5.0), 0.1 * i));
    return points;
}

Points lissajous(Random& random, int count) {
    const int across = random.integer(2, 7);
    Points points;
    for (int i = 0; i < count; ++i) {
        const double t = kTurn * i / count;
        const gkVector<2> place(90.0 * polar(1.0, across * t).y(), 70.0 * polar(1.0, (across + 1) * t).x());
        points.push_back(place + gen::placeBetween(random, {0.0, 0.0}, {0.01, 0.01}));
    }
    return points;
}

Points latticeWalk(Random& random, int count) {
    Points points = {{0.0, 0.0}};
    while (static_cast<int>(points.size()) < count) {
        const gkVector<2> step = random.chance(0.5) ? gkVector<2>(random.integer(-2, 2), 0.0)
                                                    : gkVector<2>(0.0, random.integer(-2, 2));
        points.push_back(points.back() + step);
    }
    return points;
}

Points round(Random& random, int count) {
    const double radius = random.between(1.0, 1000.0);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(polar(radius, kTurn * i / count));
    return points;
}

Points crowd(Random& random, int count) {
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(gen::placeBetween(random, {0.0, 0.0}, {1.0, 1.0}));
    points.emplace_back(1e5, -1e5);
    return points;
}

Points halting(Random& random, int count) {
    const double steps[] = {0.0, 1e-16, 1e-9, 1e-6, 0.5};
    Points points = {{random.between(-9.0, 9.0), 0.0}};
    while (static_cast<int>(points.size()) < count) {
        const double angle = random.between(0.0, kTurn);
        points.push_back(points.back() + polar(steps[random.index(5)], angle));
    }
    return points;
}

} // namespace
} // namespace large

namespace gen {

const std::vector<LargeKind>& largeKinds() {
    static const std::vector<LargeKind> list = {
        {"large star", [](Random& random, int count) { return large::star(random, count); }},
        {"large comb", [](Random& random, int count) { return large::comb(random, count / 4); }},
        {"large spiral", [](Random& random, int count) { return large::spiral(random, count / 2); }},
        {"large lissajous", [](Random& random, int count) { return large::lissajous(random, count); }},
        {"lattice walk", [](Random& random, int count) { return large::latticeWalk(random, count); }},
        {"round", [](Random& random, int count) { return large::round(random, count); }},
        {"crowd", [](Random& random, int count) { return large::crowd(random, count); }},
        {"halting", [](Random& random, int count) { return large::halting(random, count); }},
    };
    return list;
}

Points exactly(const LargeKind& kind, Random& random, int count) {
    constexpr int kMost = 4; // what a kind may make fewer than asked for
    Points points = kind.make(random, count + kMost);
    points.resize(static_cast<std::size_t>(count));
    return points;
}

} // namespace gen
