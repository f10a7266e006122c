// Stars, combs, spirals and needles.
#include "tests/gen/kinds.h"
#include "tests/gen/places.h"

namespace {

constexpr double kTurn = 6.283185307179586;

// length * (cos, sin) by the library's own functions, which give the same bits everywhere.
gkVector<2> polar(double length, double angle) { return gkVector<2>(length, gkRadian(angle)); }

} // namespace

namespace gen {

// Star-shaped from its centre, with noise in the radius, in either orientation.
Points star(Random& random) {
    const int count = random.integer(5, 48);
    const double roughness = random.between(0.0, 0.9);
    const double radius = random.between(1.0, 100.0);
    const double turn = random.chance(0.5) ? kTurn : -kTurn;
    const gkVector<2> center = place(random, 50.0);
    Points points;
    for (int i = 0; i < count; ++i) {
        points.push_back(center + polar(radius * (1.0 - roughness * random.unit()), turn * i / count));
    }
    return points;
}

// A bar with long thin teeth.
Points comb(Random& random) {
    const int teeth = random.integer(2, 12);
    const double pitch = random.between(0.01, 2.0);
    const double length = random.between(5.0, 50.0);
    Points points;
    for (int i = 0; i < teeth; ++i) {
        const double x = 2.0 * pitch * i;
        points.emplace_back(x, 0.0);
        points.emplace_back(x, length * random.between(0.7, 1.0));
        points.emplace_back(x + pitch, length);
        points.emplace_back(x + pitch, 0.0);
    }
    points.emplace_back(2.0 * pitch * teeth, -1.0);
    points.emplace_back(0.0, -1.0);
    return points;
}

// A band wound up: out along one arm, back along another just beside it.
Points spiral(Random& random) {
    const int steps = random.integer(8, 26);
    const double growth = random.between(0.2, 2.0);
    const double width = growth * random.between(0.05, 0.9);
    const double step = kTurn * random.between(0.03, 0.15);
    Points points;
    for (int i = 0; i < steps; ++i) points.push_back(polar(3.0 + growth * step * i, step * i));
    for (int i = steps - 1; i >= 0; --i) points.push_back(polar(3.0 + growth * step * i + width, step * i));
    return points;
}

// Far longer than wide, in any direction.
Points needle(Random& random) {
    const gkRadian direction(random.between(-kTurn, kTurn));
    const gkVector<2> along(random.between(100.0, 1000.0), direction);
    const gkVector<2> across(random.between(1e-9, 1e-3), direction + gkRadian(kTurn / 4.0));
    const gkVector<2> start = place(random, 9.0);
    const int steps = random.integer(1, 12);
    Points points;
    for (int i = 0; i <= steps; ++i) points.push_back(start + along * (static_cast<double>(i) / steps));
    for (int i = steps; i >= 0; --i)
        points.push_back(start + along * (static_cast<double>(i) / steps) + across);
    return points;
}

} // namespace gen
