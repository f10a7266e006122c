#include "tests/gen/tangles.h"
#include "tests/gen/places.h"

#include "platform/core/shapes/line_seg.h"

#include <algorithm>
#include <utility>

namespace {

using gen::Points;
using gen::Random;

constexpr double kTurn = 6.283185307179586;

gkVector<2> polar(double length, double angle) { return gkVector<2>(length, gkRadian(angle)); }

void rotate(Points& points, Random& random) {
    const auto first = static_cast<std::ptrdiff_t>(random.index(points.size()));
    std::rotate(points.begin(), points.begin() + first, points.end());
    if (random.chance(0.5)) std::reverse(points.begin(), points.end());
}

// The places in (0, 1) along the edge where other edges of the outline cross it.
std::vector<double> cutsOf(const Points& points, std::size_t edge) {
    const std::size_t n = points.size();
    const gkLineSeg seg(points[edge], points[(edge + 1) % n]);
    const gkVector<2> along = seg.p2() - seg.p1();
    std::vector<double> cuts;
    for (std::size_t k = 0; k < n; ++k) {
        const gkLineSeg other(points[k], points[(k + 1) % n]);
        const gkVector<2> across = other.p2() - other.p1();
        const double det = along.cross(across);
        if (det == 0.0) continue;
        const double t = (other.p1() - seg.p1()).cross(across) / det;
        const double s = (other.p1() - seg.p1()).cross(along) / det;
        if (t > 1e-9 && t < 1.0 - 1e-9 && s > 1e-9 && s < 1.0 - 1e-9) cuts.push_back(t);
    }
    std::sort(cuts.begin(), cuts.end());
    return cuts;
}

} // namespace

namespace gen {

Points figureEight(Random& random) {
    const double left = random.between(1.0, 9.0);
    const double right = random.between(1.0, 9.0);
    const int steps = random.integer(2, 8);
    const double half = kTurn / 2.0;
    Points points;
    for (int i = 0; i <= steps; ++i) {
        points.push_back(polar(right, -half * 0.4 + half * 0.8 * i / steps));
    }
    for (int i = 0; i <= steps; ++i) {
        points.push_back(-polar(left, half * 0.4 - half * 0.8 * i / steps));
    }
    rotate(points, random);
    return points;
}

Points swappedVertices(Random& random) {
    Points points = star(random);
    for (int i = random.integer(1, 3); i > 0; --i) {
        const std::size_t k = random.index(points.size());
        std::swap(points[k], points[(k + 1) % points.size()]);
    }
    rotate(points, random);
    return points;
}

Points noisyCurve(Random& random) {
    const int count = random.integer(20, 70);
    const double noise = random.between(0.3, 1.5) * 10.0 * kTurn / count;
    Points points;
    for (int i = 0; i < count; ++i) {
        const gkVector<2> on = polar(10.0, kTurn * i / count);
        points.push_back(on + place(random, noise));
    }
    rotate(points, random);
    return points;
}

Points rosette(Random& random) {
    const int rounds = random.integer(2, 5);
    const int count = random.integer(8, 16) * rounds;
    const double depth = random.between(0.2, 1.2);
    const int perRound = random.integer(1, 3);
    const int waves = rounds * perRound + random.integer(1, 2);
    Points points;
    for (int i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / count;
        const double radius = 10.0 * (1.0 + depth * polar(1.0, kTurn * waves * t).x());
        points.push_back(polar(radius, kTurn * rounds * t));
    }
    rotate(points, random);
    return points;
}

Points bluntTips(Random& random) {
    const Points corners = pentagram(random);
    const double cut = random.between(0.01, 0.2);
    Points points;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const gkVector<2> along = corners[(i + 1) % corners.size()] - corners[i];
        points.push_back(corners[i] + along * cut);
        points.push_back(corners[i] + along * (1.0 - cut));
    }
    rotate(points, random);
    return points;
}

Points manyVertices(Random& random) {
    Points points;
    for (int i = random.integer(25, 60); i > 0; --i) points.push_back(place(random, 10.0));
    return points;
}

Points crossingsAsVertices(Random& random) {
    const double kept = random.between(0.2, 0.8);
    Points corners;
    for (int i = random.integer(4, 10); i > 0; --i) corners.push_back(place(random, 10.0));
    Points points;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        points.push_back(corners[i]);
        const gkVector<2> along = corners[(i + 1) % corners.size()] - corners[i];
        for (const double t : cutsOf(corners, i)) {
            if (random.chance(kept)) points.push_back(corners[i] + along * t);
        }
    }
    rotate(points, random);
    return points;
}

Points touchingLobes(Random& random) {
    const int lobes = random.integer(2, 6);
    const gkVector<2> knot = place(random, 10.0);
    std::vector<int> order;
    for (int i = 0; i < lobes; ++i) order.push_back(i);
    if (random.chance(0.5)) std::swap(order.front(), order[random.index(order.size())]);
    const std::size_t crossed = random.index(order.size());
    Points points;
    for (const int lobe : order) {
        const int steps = random.integer(2, 5);
        points.push_back(knot);
        for (int i = 0; i <= steps; ++i) {
            const double turn = kTurn / lobes * (lobe + 0.9 * i / steps);
            points.push_back(knot + polar(random.between(2.0, 9.0), turn));
        }
        if (lobe == order[crossed]) std::swap(points[points.size() - 1], points[points.size() - 2]);
    }
    rotate(points, random);
    return points;
}

Points repeatedInTangle(Random& random) {
    const Points corners = random.chance(0.5) ? randomPolygon(random) : noisyCurve(random);
    Points points;
    for (const gkVector<2>& corner : corners) {
        points.push_back(corner);
        while (random.chance(0.3)) points.push_back(corner);
        if (random.chance(0.1)) points.push_back(corners[random.index(corners.size())]);
    }
    return points;
}

Points overlappingEdges(Random& random) {
    gkVector<2> at(0.0, 0.0);
    Points points;
    for (int i = random.integer(6, 24); i > 0; --i) {
        points.push_back(at);
        const int length = random.integer(1, 4);
        const int ahead = random.chance(0.5) ? length : -length;
        at += random.chance(0.5) ? gkVector<2>(ahead, 0.0) : gkVector<2>(0.0, ahead);
        if (random.chance(0.15)) at += gkVector<2>(0.5, 0.5);
    }
    return points;
}

const std::vector<Kind>& tangles() {
    static const std::vector<Kind> list = {
        {"figure eight", &figureEight, true},
        {"swapped vertices", &swappedVertices, true},
        {"noisy curve", &noisyCurve, true},
        {"rosette", &rosette, true},
        {"lissajous", &lissajous, true},
        {"star polygon", &pentagram, true},
        {"star polygon, blunt tips", &bluntTips, true},
        {"random, up to 24 vertices", &randomPolygon, true},
        {"random, 25 to 60 vertices", &manyVertices, true},
        {"crossings as vertices", &crossingsAsVertices, true},
        {"touching lobes", &touchingLobes, true},
        {"repeated vertices", &repeatedInTangle, true},
        {"overlapping edges", &overlappingEdges, true},
        {"lattice points", &latticePoints, true},
        {"lattice path", &touching, true},
    };
    return list;
}

} // namespace gen
