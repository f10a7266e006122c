// Vertices on a lattice, on edges, on one line and on each other: ties everywhere.
#include "tests/gen/kinds.h"
#include "tests/gen/places.h"

namespace gen {

// The outline of a row of lattice columns of random height.
Points latticeOutline(Random& random) {
    const int columns = random.integer(1, 12);
    std::vector<int> heights;
    for (int i = 0; i < columns; ++i) heights.push_back(random.integer(1, 6));
    Points points;
    for (int i = 0; i <= columns; ++i) points.emplace_back(i, 0);
    for (int i = columns - 1; i >= 0; --i) {
        points.emplace_back(i + 1, heights[static_cast<std::size_t>(i)]);
        points.emplace_back(i, heights[static_cast<std::size_t>(i)]);
    }
    return points;
}

// Any lattice points in any order.
Points latticePoints(Random& random) {
    const int count = random.integer(3, 30);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(latticePlace(random, 4));
    return points;
}

// Unit steps up and right, and back along two sides.
Points staircase(Random& random) {
    const int steps = random.integer(1, 12);
    const double unit = random.chance(0.5) ? 1.0 : 0.1;
    Points points;
    for (int i = 0; i < steps; ++i) {
        points.emplace_back(unit * i, unit * i);
        points.emplace_back(unit * (i + 1), unit * i);
    }
    points.emplace_back(unit * steps, unit * steps);
    points.emplace_back(0.0, unit * steps);
    return points;
}

// A star whose edges carry further vertices, on them up to rounding.
Points subdivided(Random& random) {
    const Points corners = star(random);
    const int parts = random.integer(2, 4);
    Points points;
    for (std::size_t i = 0; i < corners.size() && i < 16; ++i) {
        const gkVector<2> edge = corners[(i + 1) % corners.size()] - corners[i];
        for (int part = 0; part < parts; ++part) points.push_back(corners[i] + edge * (1.0 * part / parts));
    }
    return points;
}

// A lattice outline or a star with vertices written twice or more, some of them 1e-15 beside.
Points repeated(Random& random) {
    const Points corners = random.chance(0.5) ? star(random) : latticeOutline(random);
    Points points;
    for (const gkVector<2>& corner : corners) {
        points.push_back(corner);
        while (random.chance(0.4)) points.push_back(corner);
        if (random.chance(0.1)) points.push_back(corner + gkVector<2>(1e-15, -1e-15));
    }
    if (random.chance(0.5)) points.push_back(points.front());
    return points;
}

// All vertices on one line, in any order.
Points collinear(Random& random) {
    const int count = random.integer(2, 20);
    const gkVector<2> direction = latticePlace(random, 3);
    const gkVector<2> start = latticePlace(random, 3);
    Points points;
    for (int i = 0; i < count; ++i) points.push_back(start + direction * (random.integer(-16, 16) / 4.0));
    return points;
}

// All vertices in one place.
Points coincident(Random& random) {
    const gkVector<2> where = place(random, 9.0);
    return Points(static_cast<std::size_t>(random.integer(2, 9)), where);
}

} // namespace gen
