// GEOS as its users reach for the quickest answer: the plain function, the prepared geometry, the trees.
#ifndef GK_BENCH_PEERS_GEOS_H
#define GK_BENCH_PEERS_GEOS_H

#include "bench/many.h"
#include "bench/plain.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace bench {

// Points made into geometries before anybody looks at the clock.
class GeosPoints {
public:
    explicit GeosPoints(const Points& points);
    ~GeosPoints();

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// A polygon.
class GeosArea {
public:
    explicit GeosArea(const Polygon& polygon);
    ~GeosArea();

    bool inside(const Point& p) const; // SimplePointInAreaLocator
    double area() const;
    Point centroid() const;
    Box box() const;
    Box boxUnder(const Affine& transform) const;
    // Area of the union.
    double mergedArea(const GeosArea& other) const;
    // Area of what MakeValid and GeometryFixer make of an outline that crosses itself.
    double madeValidArea() const;
    double fixedArea() const;

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// IndexedPointInAreaLocator, the index inside a prepared polygon.
class GeosLocator {
public:
    explicit GeosLocator(const GeosArea& area);
    ~GeosLocator();

    bool inside(const Point& p);

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// A prepared polygon and its contains().
class GeosPreparedArea {
public:
    explicit GeosPreparedArea(const GeosArea& area);
    ~GeosPreparedArea();

    bool inside(const GeosPoints& points, std::size_t k) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// A closed line, the last vertex joined with the first.
class GeosOutline {
public:
    explicit GeosOutline(const Points& points);
    ~GeosOutline();

    double distance(const GeosPoints& points, std::size_t k) const;
    double length() const;
    Point meanPosition() const; // centroid of a line
    bool crossesItself() const; // not IsSimpleOp
    Points hull() const;
    // Points of the intersection of two lines.
    std::size_t crossings(const GeosOutline& other) const;
    std::size_t crossings(const Segment& segment) const;

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// IndexedFacetDistance.
class GeosFacets {
public:
    explicit GeosFacets(const GeosOutline& outline);
    ~GeosFacets();

    double distance(const GeosPoints& points, std::size_t k) const;
    Point closest(const GeosPoints& points, std::size_t k) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// An STRtree of the segments, and LineIntersector for those whose boxes meet.
class GeosSegments {
public:
    explicit GeosSegments(const GeosOutline& outline);
    ~GeosSegments();

    std::size_t crossings(const Segment& segment);
    std::size_t crossings(const GeosOutline& other);

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// Polygons, and nothing asked of them yet.
class GeosShapes {
public:
    explicit GeosShapes(const std::vector<Points>& outlines);
    ~GeosShapes();

    struct Body;
    const Body& body() const { return *body_; }

private:
    std::unique_ptr<Body> body_;
};

// An STRtree of polygons, each prepared when it is first asked.
class GeosSet {
public:
    explicit GeosSet(const GeosShapes& shapes);
    ~GeosSet();

    bool inside(const Point& p);
    // To the nearest boundary.
    double distance(const GeosPoints& points, std::size_t k);
    // Some boundary crosses itself or meets another.
    bool crossesItself();

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// Well-known binary.
std::vector<unsigned char> geosWritten(const GeosArea& area);
// Number of vertices of what was read, the repeated one included.
std::size_t geosVerticesRead(const std::vector<unsigned char>& bytes);

std::unique_ptr<Many> manyOfGeos(const Supply& supply);

} // namespace bench

#endif
