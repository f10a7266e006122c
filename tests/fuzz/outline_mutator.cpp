#include "tests/fuzz/outline_mutator.h"

#include "tests/gen/kinds.h"
#include "tests/gen/tangles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using fuzz::Points;
using gen::Random;
using Outlines = std::vector<Points>;

Points& any(Outlines& outlines, Random& random) { return outlines[random.index(outlines.size())]; }
gkVector<2>& anyVertex(Points& points, Random& random) { return points[random.index(points.size())]; }

struct Edge {
    gkVector<2> from;
    gkVector<2> to;
    gkVector<2> at(double t) const { return from + (to - from) * t; }
};

Edge anyEdge(const Points& points, Random& random) {
    const std::size_t i = random.index(points.size());
    return {points[i], points[(i + 1) % points.size()]};
}

double snapped(double value, double step) { return std::round(value / step) * step; }

// Coarse and fine, and steps that are no power of two.
double anyStep(Random& random) {
    const double steps[] = {4.0, 1.0, 0.5, 0.125, 0.1, 1e-3, 1e-6};
    return steps[random.index(std::size(steps))];
}

void snapVertex(Points& points, Outlines&, Random& random) {
    const double step = anyStep(random);
    gkVector<2>& p = anyVertex(points, random);
    p = gkVector<2>(snapped(p.x(), step), snapped(p.y(), step));
}

void snapAll(Points& points, Outlines&, Random& random) {
    const double step = anyStep(random);
    for (gkVector<2>& p : points) p = gkVector<2>(snapped(p.x(), step), snapped(p.y(), step));
}

void repeatVertex(Points& points, Outlines& outlines, Random& random) {
    const Points& other = any(outlines, random);
    const gkVector<2> p = other.empty() ? points[0] : other[random.index(other.size())];
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(random.index(points.size() + 1)), p);
}

void repeatNext(Points& points, Outlines&, Random& random) {
    const std::size_t i = random.index(points.size());
    const gkVector<2> p = points[i];
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(i), p);
}

void vertexOntoCrossing(Points& points, Outlines& outlines, Random& random) {
    Points& other = any(outlines, random);
    if (other.empty()) return;
    const Edge a = anyEdge(points, random);
    const Edge b = anyEdge(other, random);
    const gkVector<2> u = a.to - a.from;
    const gkVector<2> v = b.to - b.from;
    const double cross = u.x() * v.y() - u.y() * v.x();
    const gkVector<2> w = b.from - a.from;
    const gkVector<2> place = a.at((w.x() * v.y() - w.y() * v.x()) / cross);
    if (!std::isfinite(place.x()) || !std::isfinite(place.y())) return;
    anyVertex(random.chance(0.5) ? points : other, random) = place;
}

void vertexOntoEdge(Points& points, Outlines& outlines, Random& random) {
    Points& other = any(outlines, random);
    if (other.empty()) return;
    anyVertex(points, random) = anyEdge(other, random).at(random.chance(0.3) ? 0.5 : random.unit());
}

void splitEdge(Points& points, Outlines&, Random& random) {
    const std::size_t i = random.index(points.size());
    const gkVector<2> middle = (points[i] + points[(i + 1) % points.size()]) / 2.0;
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(i + 1), middle);
}

void turnAround(Points& points, Outlines&, Random&) { std::reverse(points.begin(), points.end()); }

void newStart(Points& points, Outlines&, Random& random) {
    std::rotate(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(random.index(points.size())),
                points.end());
}

double smallStep(Random& random) { return std::pow(10.0, -random.integer(0, 15)) * random.between(-2.0, 2.0); }

void moveVertex(Points& points, Outlines&, Random& random) {
    anyVertex(points, random) += gkVector<2>(smallStep(random), smallStep(random));
}

void perturbAll(Points& points, Outlines&, Random& random) {
    for (gkVector<2>& p : points)
        p += gkVector<2>(random.between(-1e-12, 1e-12), random.between(-1e-12, 1e-12));
}

void moveAll(Points& points, Outlines&, Random& random) {
    const gkVector<2> by(random.between(-4.0, 4.0), random.between(-4.0, 4.0));
    for (gkVector<2>& p : points) p += by;
}

void addVertex(Points& points, Outlines&, Random& random) {
    const gkVector<2> p(random.between(-8.0, 8.0), random.between(-8.0, 8.0));
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(random.index(points.size() + 1)), p);
}

void leaveOutVertex(Points& points, Outlines&, Random& random) {
    points.erase(points.begin() + static_cast<std::ptrdiff_t>(random.index(points.size())));
}

void swapVertices(Points& points, Outlines&, Random& random) {
    std::swap(anyVertex(points, random), anyVertex(points, random));
}

void scaleAll(Points&, Outlines& outlines, Random& random) {
    const double by = std::pow(10.0, random.integer(-9, 9));
    for (Points& points : outlines) {
        for (gkVector<2>& p : points) p = p * by;
    }
}

void strangeNumber(Points& points, Outlines&, Random& random) {
    using Limits = std::numeric_limits<double>;
    const double strange[] = {Limits::quiet_NaN(),
                              Limits::infinity(),
                              -Limits::infinity(),
                              Limits::max(),
                              Limits::denorm_min(),
                              -0.0,
                              1e154,
                              1e-160};
    gkVector<2>& p = anyVertex(points, random);
    const double value = strange[random.index(std::size(strange))];
    p = random.chance(0.5) ? gkVector<2>(value, p.y()) : gkVector<2>(p.x(), value);
}

void copyOutline(Points& points, Outlines& outlines, Random& random) {
    const Points copy = points;
    if (outlines.size() < fuzz::kMostOutlines) outlines.push_back(copy);
    moveAll(outlines.back(), outlines, random);
}

void leaveOutOutline(Points&, Outlines& outlines, Random& random) {
    outlines.erase(outlines.begin() + static_cast<std::ptrdiff_t>(random.index(outlines.size())));
}

using Change = void (*)(Points&, Outlines&, Random&);

// Some stand here twice, because they are wanted oftener.
constexpr Change kChanges[] = {
    snapVertex,         snapVertex,     snapAll,       repeatVertex, repeatNext,      vertexOntoCrossing,
    vertexOntoCrossing, vertexOntoEdge, splitEdge,     turnAround,   newStart,        moveVertex,
    moveVertex,         perturbAll,     moveAll,       addVertex,    addVertex,       swapVertices,
    leaveOutVertex,     scaleAll,       strangeNumber, copyOutline,  leaveOutOutline,
};

Points fresh(Random& random) {
    const std::vector<gen::Kind>& kinds = random.chance(0.5) ? gen::kinds() : gen::tangles();
    return gen::shape(kinds[random.index(kinds.size())], random.next());
}

} // namespace

namespace fuzz {

void change(std::vector<Points>& outlines, gen::Random& random) {
    if (outlines.empty() || random.chance(0.01)) outlines.insert(outlines.begin(), fresh(random));
    Points& points = any(outlines, random);
    if (points.empty()) {
        points = fresh(random);
    } else {
        kChanges[random.index(std::size(kChanges))](points, outlines, random);
    }
    if (outlines.size() > kMostOutlines) outlines.resize(kMostOutlines);
}

} // namespace fuzz
