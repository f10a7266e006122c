// CGAL with exact predicates and inexact constructions.
#ifndef GK_BENCH_PEERS_CGAL_H
#define GK_BENCH_PEERS_CGAL_H

#include "bench/many.h"
#include "bench/plain.h"

#include <cstddef>
#include <memory>

namespace bench {

class CgalOutline {
public:
    explicit CgalOutline(const Points& points);
    ~CgalOutline();

    bool inside(const Point& p) const;
    double area() const;
    Box box() const;
    Box boxUnder(const Affine& transform) const;
    bool crossesItself() const;  // the sweep of Polygon_2
    bool boxesCross() const;     // box_self_intersection_d
    Points hull() const;         // Akl and Toussaint
    Points hullOfSimple() const; // Melkman; the outline must not cross itself
    double diameterOfSimple() const;
    // box_intersection_d of the segments.
    std::size_t crossings(const CgalOutline& other) const;

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// AABB tree of the segments, which in this version lives in three dimensions.
class CgalSegments {
public:
    explicit CgalSegments(const CgalOutline& outline);
    ~CgalSegments();

    double distance(const Point& p) const;
    std::size_t crossings(const Segment& segment) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// kd-tree of the vertices.
class CgalVertices {
public:
    explicit CgalVertices(const CgalOutline& outline);
    ~CgalVertices();

    double closestDistance(const Point& p) const;
    std::size_t countWithin(const Point& p, double tolerance) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

std::unique_ptr<Many> manyOfCgal(const Supply& supply);

} // namespace bench

#endif
