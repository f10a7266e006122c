#include "bench/shapes.h"

#include "bench/picture.h"
#include "bench/random.h"

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

constexpr double kTurn = 6.283185307179586;

Point polar(double length, double angle) { return {length * std::cos(angle), length * std::sin(angle)}; }

Point sum(const Point& a, const Point& b) { return {a.x + b.x, a.y + b.y}; }

// Vertices about a pixel apart around `center`; the lobes make it more than a disc.
Points star(Random& random, std::size_t n, const Point& center) {
    const double radius = static_cast<double>(n) / kTurn;
    const double phase = random.between(0.0, kTurn);
    const double noise = std::min(0.3, 0.2 * radius);
    Points points;
    for (std::size_t i = 0; i < n; ++i) {
        const double angle = kTurn * static_cast<double>(i) / static_cast<double>(n);
        const double lobes = 1.0 + 0.12 * std::sin(5.0 * angle + phase) + 0.05 * std::cos(2.0 * angle);
        points.push_back(sum(center, polar(radius * lobes + random.between(-noise, noise), angle)));
    }
    return points;
}

// As high as it is wide, teeth a pixel wide and a pixel apart.
Points comb(Random& random, std::size_t n) {
    const std::size_t teeth = std::max<std::size_t>(2, (n - 2) / 4);
    const double height = 2.0 * static_cast<double>(teeth);
    Points points;
    for (std::size_t i = 0; i < teeth; ++i) {
        const double x = 2.0 * static_cast<double>(i) + random.between(-0.2, 0.2);
        const double top = height * random.between(0.7, 1.0);
        points.push_back({x, 0.0});
        points.push_back({x + random.between(-0.05, 0.05), top});
        points.push_back({x + 1.0, top + random.between(-0.3, 0.3)});
        points.push_back({x + 1.0, 0.0});
    }
    points.push_back({2.0 * static_cast<double>(teeth), -1.0});
    points.push_back({-1.0, -1.0});
    return points;
}

// The middle of the band on an Archimedean spiral, four pixels from turn to turn; the band is two wide.
Points spiral(Random& random, std::size_t n) {
    constexpr double pitch = 4.0;
    const std::size_t half = n / 2;
    const auto place = [&](std::size_t i, double beside) {
        const double angle = std::sqrt(64.0 + 2.0 * kTurn / pitch * static_cast<double>(i));
        const double radius = pitch / kTurn * angle + beside + random.between(-0.2, 0.2);
        return polar(radius, angle);
    };
    Points points;
    for (std::size_t i = 0; i < half; ++i) points.push_back(place(i, 1.0));
    for (std::size_t i = half; i-- > 0;) points.push_back(place(i, -1.0));
    return points;
}

// Columns of random height over a line, all corners at whole numbers.
Points lattice(Random& random, std::size_t n) {
    const int columns = static_cast<int>(std::max<std::size_t>(2, (n - 2) / 2));
    const int mean = columns / 3 + 2;
    int height = mean;
    Points points = {{0.0, 0.0}, {static_cast<double>(columns), 0.0}};
    for (int i = columns; i-- > 0;) {
        const int before = height;
        while (height == before) height = std::clamp(before + random.integer(-2, 2), 1, 2 * mean);
        points.push_back({i + 1.0, static_cast<double>(height)});
        points.push_back({static_cast<double>(i), static_cast<double>(height)});
    }
    return points;
}

Points lissajous(Random& random, std::size_t n, double wavesX, double wavesY) {
    const double size = static_cast<double>(n) / 20.0 + 4.0;
    Points points;
    for (std::size_t i = 0; i < n; ++i) {
        const double t = kTurn * static_cast<double>(i) / static_cast<double>(n);
        points.push_back({size * std::cos(wavesX * t) + random.between(-0.2, 0.2),
                          size * std::cos(wavesY * t + 0.7) + random.between(-0.2, 0.2)});
    }
    return points;
}

Point within(const Box& box, double x, double y) {
    return {box.low.x + (box.high.x - box.low.x) * x, box.low.y + (box.high.y - box.low.y) * y};
}

} // namespace

std::string nameOf(Kind kind) {
    switch (kind) {
    case Kind::eStar:
        return "star";
    case Kind::eComb:
        return "comb";
    case Kind::eSpiral:
        return "spiral";
    case Kind::eLattice:
        return "lattice";
    case Kind::eLissajous:
        return "lissajous";
    case Kind::eEight:
        return "eight";
    case Kind::eCoin:
        return "coin";
    }
    return "";
}

Points outline(Kind kind, std::size_t n) {
    Random random(kSeed + n);
    switch (kind) {
    case Kind::eStar:
        return star(random, n, {100.0, 70.0});
    case Kind::eComb:
        return comb(random, n);
    case Kind::eSpiral:
        return spiral(random, n);
    case Kind::eLattice:
        return lattice(random, n);
    case Kind::eLissajous:
        return lissajous(random, n, 2.0, 3.0);
    case Kind::eEight:
        return lissajous(random, n, 1.0, 2.0);
    case Kind::eCoin:
        return longestOutlineOfPicture();
    }
    return {};
}

Polygon starWithHoles(std::size_t n) {
    const std::size_t holes = std::clamp<std::size_t>(n / 100, 1, 8);
    const std::size_t ofOutline = n - n / 4;
    Random random(kSeed + n);
    Polygon polygon = {star(random, ofOutline, {0.0, 0.0}), {}};
    const double aside = holes == 1 ? 0.0 : 0.5 * static_cast<double>(ofOutline) / kTurn;
    for (std::size_t i = 0; i < holes; ++i) {
        const Point center = polar(aside, kTurn * static_cast<double>(i) / static_cast<double>(holes));
        polygon.holes.push_back(star(random, std::max<std::size_t>(3, n / 4 / holes), center));
    }
    return polygon;
}

std::vector<Points> overlappingBlobs(std::size_t n) {
    Random random(kSeed + n);
    const double radius = static_cast<double>(n) / kTurn;
    return {star(random, n, {0.0, 0.0}), star(random, n, {1.2 * radius, 0.0})};
}

std::vector<Points> grid(std::size_t count) {
    constexpr double pitch = 10.0;
    const auto columns = static_cast<std::size_t>(std::sqrt(static_cast<double>(count)));
    Random random(kSeed + count);
    std::vector<Points> shapes;
    for (std::size_t i = 0; i < count; ++i) {
        const Point center = {pitch * static_cast<double>(i % columns),
                              pitch * static_cast<double>(i / columns)};
        shapes.push_back(star(random, 20, center));
    }
    return shapes;
}

Box boxOf(const Points& points) {
    Box box = {points.front(), points.front()};
    for (const Point& p : points) {
        box.low = {std::min(box.low.x, p.x), std::min(box.low.y, p.y)};
        box.high = {std::max(box.high.x, p.x), std::max(box.high.y, p.y)};
    }
    return box;
}

Point centerOf(const Box& box) { return within(box, 0.5, 0.5); }
double widthOf(const Box& box) { return box.high.x - box.low.x; }
double heightOf(const Box& box) { return box.high.y - box.low.y; }

Points queryPoints(const Box& box, std::size_t count) {
    Random random(kSeed + 1);
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const double x = random.between(-0.05, 1.05);
        points.push_back(within(box, x, random.between(-0.05, 1.05)));
    }
    return points;
}

Points pointsNear(const Points& vertices, std::size_t count) {
    Random random(kSeed + 2);
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const auto k = static_cast<std::size_t>(random.between(0.0, static_cast<double>(vertices.size())));
        points.push_back(sum(vertices[k], polar(random.between(0.0, 2.0), random.between(0.0, kTurn))));
    }
    return points;
}

std::vector<Segment> shortSegments(const Box& box, std::size_t count) {
    Random random(kSeed + 3);
    std::vector<Segment> segments;
    for (const Point& p : queryPoints(box, count))
        segments.push_back({p, sum(p, polar(random.between(2.0, 10.0), random.between(0.0, kTurn)))});
    return segments;
}

std::vector<Segment> longSegments(const Box& box, std::size_t count) {
    Random random(kSeed + 4);
    std::vector<Segment> segments;
    for (std::size_t i = 0; i < count; ++i) {
        const double a = random.unit();
        const double b = random.unit();
        if (i % 2 == 0)
            segments.push_back({within(box, -0.05, a), within(box, 1.05, b)});
        else
            segments.push_back({within(box, a, -0.05), within(box, b, 1.05)});
    }
    return segments;
}

std::vector<double> angles(std::size_t count) {
    Random random(kSeed + 5);
    std::vector<double> list;
    for (std::size_t i = 0; i < count; ++i) list.push_back(random.between(0.0, kTurn));
    return list;
}

std::vector<Affine> transforms(std::size_t count) {
    Random random(kSeed + 6);
    std::vector<Affine> list;
    for (const double angle : angles(count)) {
        const Point u = polar(random.between(0.5, 2.0), angle);
        const double shear = random.between(-0.2, 0.2);
        list.push_back(
            {u.x, shear - u.y, u.y, u.x + shear, random.between(-50.0, 50.0), random.between(-50.0, 50.0)});
    }
    return list;
}

} // namespace bench
