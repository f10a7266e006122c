#include "tests/gen/probes.h"

#include "tests/gen/places.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using gen::Points;
using gen::Random;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kTouch = 1e-6;

struct Box {
    gkVector<2> low{kInfinity, kInfinity};
    gkVector<2> high{-kInfinity, -kInfinity};
};

// Of the finite vertices; the unit box when there is none.
Box boxOf(const Points& points) {
    Box box;
    for (const gkVector<2>& p : points) {
        if (!std::isfinite(p.x()) || !std::isfinite(p.y())) continue;
        // Not fmin and fmax, which of two zeros may return either.
        box.low = gkVector<2>(std::min(box.low.x(), p.x()), std::min(box.low.y(), p.y()));
        box.high = gkVector<2>(std::max(box.high.x(), p.x()), std::max(box.high.y(), p.y()));
    }
    if (!(box.low.x() <= box.high.x())) return Box{{0.0, 0.0}, {1.0, 1.0}};
    return box;
}

gkVector<2> ulpBeside(Random& random, const gkVector<2>& p) {
    const auto step = [&](double v) {
        const int way = random.integer(-1, 1);
        return way == 0 ? v : std::nextafter(v, way * kInfinity);
    };
    const double y = step(p.y());
    return gkVector<2>(step(p.x()), y);
}

// An edge of the shape, the closing one included.
gkLineSeg someEdge(Random& random, const Points& points) {
    const std::size_t i = random.index(points.size());
    return gkLineSeg(points[i], points[(i + 1) % points.size()]);
}

gkVector<2> midpoint(const gkLineSeg& seg) { return (seg.p1() + seg.p2()) / 2.0; }

gkVector<2> leftOf(const gkLineSeg& seg) {
    const gkVector<2> along = (seg.p2() - seg.p1()).unit();
    return std::isfinite(along.x()) ? gkVector<2>(-along.y(), along.x()) : gkVector<2>(0.0, 1.0);
}

gkVector<2> inside(Random& random, const Box& box) { return gen::placeBetween(random, box.low, box.high); }

// Segments that decide at the touching distance: across the edge from exactly 1e-6 (or an ulp beside) before
// it, and across its line exactly that far beyond its start. Exact where the edge lies along an axis through
// the origin.
void addAtTouchingDistance(Random& random, const gkLineSeg& edge, std::vector<gkLineSeg>& list) {
    const gkVector<2> left = leftOf(edge);
    const gkVector<2> along(left.y(), -left.x());
    const double distances[] = {std::nextafter(kTouch, 0.0), kTouch, std::nextafter(kTouch, 1.0)};
    const double distance = distances[random.index(3)];
    const gkVector<2> beside = midpoint(edge) - left * distance;
    const gkVector<2> beyond = edge.p1() - along * distance;
    list.emplace_back(beside, midpoint(edge) + left);
    list.emplace_back(midpoint(edge) + left, beside);
    list.emplace_back(beyond - left, beyond + left);
    list.emplace_back(edge.p1() + left, beside);
}

void addBesideEdges(Random& random, const Points& points, Points& probes) {
    for (int i = 0; i < 8; ++i) {
        const gkLineSeg edge = someEdge(random, points);
        const gkVector<2> middle = midpoint(edge);
        const double side = random.chance(0.5) ? 1.0 : -1.0;
        probes.push_back(middle);
        probes.push_back(ulpBeside(random, middle));
        probes.push_back(edge.p1() + (edge.p2() - edge.p1()) * random.unit());
        for (const double d : {std::nextafter(kTouch, 0.0), kTouch, std::nextafter(kTouch, 1.0)}) {
            probes.push_back(middle + leftOf(edge) * (side * d));
        }
    }
}

} // namespace

namespace gen {

Points probes(const Points& points, std::uint64_t seed) {
    Random random(seed ^ 0x5EEDu);
    const Box box = boxOf(points);
    const gkVector<2> size = box.high - box.low;
    Points probes = {gkVector<2>(0.0, 0.0), (box.low + box.high) / 2.0};
    if (!points.empty()) {
        for (int i = 0; i < 8; ++i) {
            const gkVector<2>& vertex = points[random.index(points.size())];
            probes.push_back(vertex);
            probes.push_back(ulpBeside(random, vertex));
        }
        addBesideEdges(random, points, probes);
    }
    for (const double row : {box.low.y(), box.high.y()}) {
        probes.emplace_back(box.low.x() - 1.0, row);
        probes.emplace_back(random.between(box.low.x(), box.high.x()), row);
        probes.emplace_back(box.high.x() + 1.0, row);
    }
    for (int i = 0; i < 6; ++i) probes.push_back(inside(random, box));
    for (const double far : {1e3, 1e9, 1e18}) {
        probes.push_back(box.high + size * far + gkVector<2>(far, -far));
        probes.push_back(box.low - size * far - gkVector<2>(far, far));
    }
    return probes;
}

std::vector<gkLineSeg> querySegments(const Points& points, std::uint64_t seed) {
    Random random(seed ^ 0xC055u);
    const Box box = boxOf(points);
    const gkVector<2> size = box.high - box.low;
    std::vector<gkLineSeg> list = {gkLineSeg(box.low - size, box.high + size),
                                   gkLineSeg(box.high + size, box.high + size * 2.0),
                                   gkLineSeg(box.low, box.low)};
    for (int i = 0; i < 6; ++i) {
        const gkVector<2> end = inside(random, box);
        list.emplace_back(inside(random, box), end);
    }
    for (int i = 0; i < 4; ++i) {
        const double y = random.between(box.low.y(), box.high.y());
        list.emplace_back(gkVector<2>(box.low.x() - 1.0, y), gkVector<2>(box.high.x() + 1.0, y));
    }
    if (points.empty()) return list;
    for (int i = 0; i < 4; ++i) {
        const gkLineSeg edge = someEdge(random, points);
        const gkVector<2> along = edge.p2() - edge.p1();
        const gkVector<2> away = leftOf(edge) * (1.0 + size.length() * random.unit());
        const gkVector<2> vertex = points[random.index(points.size())];
        list.push_back(edge);
        list.emplace_back(edge.p2(), edge.p1());
        list.emplace_back(edge.p1() - along, edge.p2() + along);
        list.emplace_back(edge.p1() + along * 0.5, edge.p2() + along * 0.5);
        list.emplace_back(midpoint(edge), midpoint(edge) + away);
        list.emplace_back(midpoint(edge) - away, midpoint(edge) - leftOf(edge) * kTouch);
        list.emplace_back(vertex - away, vertex + away);
        list.emplace_back(vertex, points[random.index(points.size())]);
        list.emplace_back(vertex, vertex);
        addAtTouchingDistance(random, edge, list);
        list.emplace_back(inside(random, box), vertex);
    }
    return list;
}

std::vector<double> tolerances(const Points& points) {
    const Box box = boxOf(points);
    const double size = (box.high - box.low).length();
    const double spacing = points.empty() ? 1.0 : size / static_cast<double>(points.size());
    std::vector<double> list = {kTouch, 1.0};
    if (size > 0.0 && std::isfinite(size)) {
        list.push_back(spacing);
        list.push_back(size * 0.25);
        list.push_back(size * 4.0);
    }
    return list;
}

} // namespace gen
