#include "tests/support/collinear.h"

#include <cmath>
#include <cstddef>

namespace collinear {

namespace {

long whole(gkRandomUniform& random, long from, long to) {
    return from + static_cast<long>(std::floor(random.next() * static_cast<double>(to - from + 1)));
}

} // namespace

gkXform<2> place(gkRandomUniform& random, const Frame& frame) {
    const gkRadian turn(random.next(-3.0, 3.0));
    const double x = random.next(0.5, 1.0) * frame.coordinates;
    const double y = random.next(0.5, 1.0) * frame.coordinates;
    return gkXform<2>(gkMatrix<2>(turn, turn, frame.shape, frame.shape), gkVector<2>(x, y));
}

Outline placed(const gkXform<2>& where, const Outline& outline) {
    Outline result;
    for (const gkVector<2>& vertex : outline) result.push_back(where * vertex);
    return result;
}

Outline scribble(gkRandomUniform& random) {
    Outline result;
    for (long n = whole(random, 4, 8); n > 0; --n) {
        const double x = random.next();
        result.emplace_back(x, random.next());
    }
    return result;
}

Outline latticeScribble(gkRandomUniform& random) {
    Outline result;
    for (long n = whole(random, 4, 8); n > 0; --n) {
        const double x = 840.0 * static_cast<double>(whole(random, 0, 99));
        result.emplace_back(x, 840.0 * static_cast<double>(whole(random, 0, 99)));
    }
    return result;
}

Outline latticeStairs(gkRandomUniform& random) {
    const Outline corners = latticeScribble(random);
    Outline result;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        result.push_back(corners[i]);
        result.emplace_back(corners[(i + 1) % corners.size()].x(), corners[i].y());
    }
    return result;
}

Outline star(gkRandomUniform& random) {
    const long n = whole(random, 5, 9);
    Outline result;
    for (long i = 0; i < n; ++i) {
        const gkRadian angle(6.283185307179586 * static_cast<double>(i) / static_cast<double>(n));
        result.push_back(gkVector<2>(0.5, 0.5) + gkVector<2>(random.next(0.3, 0.5), angle));
    }
    return result;
}

Outline subdivided(gkRandomUniform& random, const Outline& outline) {
    Outline result;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const gkVector<2>& from = outline[i];
        const gkVector<2> along = outline[(i + 1) % outline.size()] - from;
        const double pieces = static_cast<double>(whole(random, 2, 8));
        for (double k = 0.0; k < pieces; ++k) result.push_back(from + along * k / pieces);
    }
    return result;
}

Outline folded(gkRandomUniform& random, const Outline& outline) {
    Outline result = outline;
    const auto edge = static_cast<std::size_t>(whole(random, 1, static_cast<long>(outline.size()) - 1));
    const gkVector<2> from = outline[edge - 1];
    const gkVector<2> along = outline[edge] - from;
    const double turns[] = {random.next(0.8, 0.95), random.next(0.05, 0.2), random.next(0.55, 0.7),
                            random.next(0.3, 0.45)};
    auto at = result.begin() + static_cast<std::ptrdiff_t>(edge);
    for (const double turn : turns) at = result.insert(at, from + along * turn) + 1;
    return result;
}

std::pair<Outline, Outline> neighbours(gkRandomUniform& random) {
    const double low = random.next(-0.5, 0.9);
    const double high = low + random.next(0.05, 1.0);
    return {{{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0}},
            {{1.0, low}, {2.0, low}, {2.0, high}, {1.0, high}}};
}

Outline needle(double tangent) {
    const double rise = tangent / 2.0;
    return {{0.0, -rise}, {2.0, rise}, {3.0, 1.0}, {3.0, -1.0}, {2.0, -rise}, {0.0, rise}};
}

} // namespace collinear
