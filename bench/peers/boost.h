// Boost.Geometry: its algorithms, and its R-tree filled in one go.
#ifndef GK_BENCH_PEERS_BOOST_H
#define GK_BENCH_PEERS_BOOST_H

#include "bench/many.h"
#include "bench/plain.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace bench {

class BoostArea {
public:
    explicit BoostArea(const Polygon& polygon);
    ~BoostArea();
    BoostArea(BoostArea&&) noexcept;

    bool inside(const Point& p) const;
    double area() const;
    double length() const;
    Point centroid() const;
    Box box() const;
    Box boxUnder(const Affine& transform) const;
    bool crossesItself() const;
    Points hull() const;
    // Area of the union.
    double mergedArea(const BoostArea& other) const;

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// A closed line.
class BoostOutline {
public:
    explicit BoostOutline(const Points& points);
    ~BoostOutline();

    double distance(const Point& p) const;
    double length() const;
    Point meanPosition() const;
    std::size_t crossings(const Segment& segment) const;
    std::size_t crossings(const BoostOutline& other) const;

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// An R-tree of the segments.
class BoostSegments {
public:
    explicit BoostSegments(const BoostOutline& outline);
    ~BoostSegments();

    double distance(const Point& p) const;
    std::size_t crossings(const Segment& segment) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// An R-tree of the vertices.
class BoostVertices {
public:
    explicit BoostVertices(const Points& points);
    ~BoostVertices();

    std::size_t closest(const Point& p) const;
    std::size_t countWithin(const Point& p, double tolerance) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// Polygons in an R-tree of their boxes.
class BoostSet {
public:
    explicit BoostSet(const std::vector<Points>& shapes);
    ~BoostSet();

    bool inside(const Point& p) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

std::unique_ptr<Many> manyOfBoost(const Supply& supply);

} // namespace bench

#endif
