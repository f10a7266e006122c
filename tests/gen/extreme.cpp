// Shapes at other sizes and places, shapes of few vertices, and vertices that are no numbers.
#include "tests/gen/kinds.h"
#include "tests/gen/places.h"

#include <limits>

namespace {

using gen::Points;
using gen::Random;

Points ordinary(Random& random) {
    switch (random.integer(0, 4)) {
    case 0:
        return gen::star(random);
    case 1:
        return gen::latticeOutline(random);
    case 2:
        return gen::randomPolygon(random);
    case 3:
        return gen::repeated(random);
    default:
        return gen::touching(random);
    }
}

Points scaled(Points points, double factor) {
    for (gkVector<2>& p : points) p = p * factor;
    return points;
}

double badNumber(Random& random) {
    const double infinity = std::numeric_limits<double>::infinity();
    switch (random.integer(0, 5)) {
    case 0:
        return std::numeric_limits<double>::quiet_NaN();
    case 1:
        return infinity;
    case 2:
        return -infinity;
    case 3:
        return std::numeric_limits<double>::max();
    case 4:
        return std::numeric_limits<double>::denorm_min();
    default:
        return -0.0;
    }
}

} // namespace

namespace gen {

// Down to where areas and then whole edges fall below the tolerances.
Points tiny(Random& random) {
    const double scales[] = {1e-9, 1e-8, 1e-6, 1e-5, 3e-5, 1e-4, 1e-3};
    const double scale = random.chance(0.5) ? scales[0] : scales[random.index(7)];
    return scaled(ordinary(random), scale);
}

Points big(Random& random) { return scaled(ordinary(random), 1e9); }

// Squares of the coordinates stay finite, their products of four do not.
Points enormous(Random& random) { return scaled(ordinary(random), 1e150); }

// An ordinary size at a place where coordinates have few digits left for it.
Points farAway(Random& random) {
    const double offset = random.chance(0.5) ? 1e7 : 1e12;
    const gkVector<2> moved = place(random, 1.0) * offset;
    Points points = ordinary(random);
    for (gkVector<2>& p : points) p += moved;
    return points;
}

// No vertex to four, often equal ones.
Points few(Random& random) {
    const int count = random.integer(0, 4);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(latticePlace(random, 1));
    return points;
}

// Some coordinates are NaN, infinite, at the ends of the range or negative zeros; now and then in very few
// vertices.
Points hostile(Random& random) {
    Points points = random.chance(0.4) ? few(random) : ordinary(random);
    const double share = random.chance(0.5) ? 0.03 : 0.5;
    for (gkVector<2>& p : points) {
        if (random.chance(share)) p.x(badNumber(random));
        if (random.chance(share)) p.y(badNumber(random));
    }
    return points;
}

} // namespace gen
