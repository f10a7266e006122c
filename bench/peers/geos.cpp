#include "bench/peers/geos.h"

#include <geos/algorithm/LineIntersector.h>
#include <geos/algorithm/locate/IndexedPointInAreaLocator.h>
#include <geos/algorithm/locate/SimplePointInAreaLocator.h>
#include <geos/geom/Coordinate.h>
#include <geos/geom/CoordinateArraySequence.h>
#include <geos/geom/CoordinateFilter.h>
#include <geos/geom/Envelope.h>
#include <geos/geom/GeometryFactory.h>
#include <geos/geom/LineString.h>
#include <geos/geom/LinearRing.h>
#include <geos/geom/Point.h>
#include <geos/geom/Polygon.h>
#include <geos/geom/prep/PreparedGeometry.h>
#include <geos/geom/prep/PreparedGeometryFactory.h>
#include <geos/geom/util/GeometryFixer.h>
#include <geos/index/strtree/TemplateSTRtree.h>
#include <geos/io/WKBReader.h>
#include <geos/io/WKBWriter.h>
#include <geos/operation/distance/IndexedFacetDistance.h>
#include <geos/operation/valid/IsSimpleOp.h>
#include <geos/operation/valid/MakeValid.h>

#include <sstream>
#include <string>
#include <vector>

namespace bench {

namespace {

using geos::geom::Coordinate;

const geos::geom::GeometryFactory& factory() { return *geos::geom::GeometryFactory::getDefaultInstance(); }

std::unique_ptr<geos::geom::LinearRing> ringOf(const Points& points) {
    std::vector<Coordinate> coordinates;
    coordinates.reserve(points.size() + 1);
    for (const Point& p : points) coordinates.emplace_back(p.x, p.y);
    coordinates.emplace_back(points.front().x, points.front().y);
    return factory().createLinearRing(
        std::make_unique<geos::geom::CoordinateArraySequence>(std::move(coordinates)));
}

std::unique_ptr<geos::geom::Polygon> polygonOf(const Polygon& polygon) {
    std::vector<std::unique_ptr<geos::geom::LinearRing>> holes;
    for (const Points& hole : polygon.holes) holes.push_back(ringOf(hole));
    return factory().createPolygon(ringOf(polygon.outline), std::move(holes));
}

std::unique_ptr<geos::geom::LineString> lineOf(const Segment& segment) {
    std::vector<Coordinate> ends = {{segment.from.x, segment.from.y}, {segment.to.x, segment.to.y}};
    return factory().createLineString(std::make_unique<geos::geom::CoordinateArraySequence>(std::move(ends)));
}

Point pointOf(const Coordinate& c) { return {c.x, c.y}; }

Box boxOf(const geos::geom::Geometry& geometry) {
    const geos::geom::Envelope& box = *geometry.getEnvelopeInternal();
    return {{box.getMinX(), box.getMinY()}, {box.getMaxX(), box.getMaxY()}};
}

class Mapping : public geos::geom::CoordinateFilter {
public:
    explicit Mapping(const Affine& affine) : affine_(affine) {}

    void filter_rw(Coordinate* c) const override {
        const double x = c->x;
        c->x = affine_.a * x + affine_.b * c->y + affine_.dx;
        c->y = affine_.c * x + affine_.d * c->y + affine_.dy;
    }

private:
    Affine affine_;
};

bool isInterior(geos::geom::Location location) { return location == geos::geom::Location::INTERIOR; }

} // namespace

struct GeosPoints::Body {
    std::vector<std::unique_ptr<geos::geom::Point>> points;
};

GeosPoints::GeosPoints(const Points& points) : body_(std::make_unique<Body>()) {
    for (const Point& p : points) body_->points.emplace_back(factory().createPoint(Coordinate(p.x, p.y)));
}
GeosPoints::~GeosPoints() = default;

struct GeosArea::Body {
    std::unique_ptr<geos::geom::Polygon> polygon;
};

GeosArea::GeosArea(const Polygon& polygon) : body_(new Body{polygonOf(polygon)}) {}
GeosArea::~GeosArea() = default;

bool GeosArea::inside(const Point& p) const {
    const Coordinate c(p.x, p.y);
    return isInterior(geos::algorithm::locate::SimplePointInAreaLocator::locate(c, body_->polygon.get()));
}

double GeosArea::area() const { return body_->polygon->getArea(); }

Point GeosArea::centroid() const {
    Coordinate c;
    body_->polygon->getCentroid(c);
    return pointOf(c);
}

Box GeosArea::box() const { return boxOf(*body_->polygon); }

Box GeosArea::boxUnder(const Affine& t) const {
    const auto mapped = body_->polygon->clone();
    const Mapping mapping(t);
    mapped->apply_rw(&mapping);
    mapped->geometryChanged();
    return boxOf(*mapped);
}

double GeosArea::mergedArea(const GeosArea& other) const {
    return body_->polygon->Union(other.body_->polygon.get())->getArea();
}

double GeosArea::madeValidArea() const {
    return geos::operation::valid::MakeValid().build(body_->polygon.get())->getArea();
}

double GeosArea::fixedArea() const {
    return geos::geom::util::GeometryFixer::fix(body_->polygon.get())->getArea();
}

struct GeosLocator::Body {
    geos::algorithm::locate::IndexedPointInAreaLocator locator;
};

GeosLocator::GeosLocator(const GeosArea& area)
    : body_(new Body{geos::algorithm::locate::IndexedPointInAreaLocator(*area.body().polygon)}) {}
GeosLocator::~GeosLocator() = default;

bool GeosLocator::inside(const Point& p) {
    const Coordinate c(p.x, p.y);
    return isInterior(body_->locator.locate(&c));
}

struct GeosPreparedArea::Body {
    std::unique_ptr<geos::geom::prep::PreparedGeometry> prepared;
};

GeosPreparedArea::GeosPreparedArea(const GeosArea& area)
    : body_(new Body{geos::geom::prep::PreparedGeometryFactory::prepare(area.body().polygon.get())}) {}
GeosPreparedArea::~GeosPreparedArea() = default;

bool GeosPreparedArea::inside(const GeosPoints& points, std::size_t k) const {
    return body_->prepared->contains(points.body().points[k].get());
}

struct GeosOutline::Body {
    std::unique_ptr<geos::geom::LinearRing> ring;
};

GeosOutline::GeosOutline(const Points& points) : body_(new Body{ringOf(points)}) {}
GeosOutline::~GeosOutline() = default;

double GeosOutline::distance(const GeosPoints& points, std::size_t k) const {
    return body_->ring->distance(points.body().points[k].get());
}

double GeosOutline::length() const { return body_->ring->getLength(); }

Point GeosOutline::meanPosition() const {
    Coordinate c;
    body_->ring->getCentroid(c);
    return pointOf(c);
}

bool GeosOutline::crossesItself() const {
    geos::operation::valid::IsSimpleOp simple(*body_->ring);
    return !simple.isSimple();
}

Points GeosOutline::hull() const {
    const auto found = body_->ring->convexHull();
    const auto coordinates = found->getCoordinates();
    Points points;
    for (std::size_t i = 0; i + 1 < coordinates->size(); ++i) points.push_back(pointOf(coordinates->getAt(i)));
    return points;
}

std::size_t GeosOutline::crossings(const GeosOutline& other) const {
    return body_->ring->intersection(other.body_->ring.get())->getNumGeometries();
}

std::size_t GeosOutline::crossings(const Segment& segment) const {
    const auto found = body_->ring->intersection(lineOf(segment).get());
    return found->isEmpty() ? 0 : found->getNumGeometries();
}

struct GeosFacets::Body {
    geos::operation::distance::IndexedFacetDistance facets;
};

GeosFacets::GeosFacets(const GeosOutline& outline)
    : body_(new Body{geos::operation::distance::IndexedFacetDistance(outline.body().ring.get())}) {}
GeosFacets::~GeosFacets() = default;

double GeosFacets::distance(const GeosPoints& points, std::size_t k) const {
    return body_->facets.distance(points.body().points[k].get());
}

Point GeosFacets::closest(const GeosPoints& points, std::size_t k) const {
    return pointOf(body_->facets.nearestPoints(points.body().points[k].get()).front());
}

struct GeosSegments::Body {
    using Tree = geos::index::strtree::TemplateSTRtree<const Coordinate*>;

    // The end of a segment stands behind its start in the sequence.
    explicit Body(const geos::geom::CoordinateSequence& sequence) : tree(10, sequence.size()) {
        for (std::size_t i = 0; i + 1 < sequence.size(); ++i) {
            const Coordinate& from = sequence.getAt(i);
            tree.insert(geos::geom::Envelope(from, sequence.getAt(i + 1)), &from);
        }
    }

    std::size_t crossings(const Coordinate& from, const Coordinate& to) {
        std::size_t count = 0;
        tree.query(geos::geom::Envelope(from, to), [&](const Coordinate* own) {
            intersector.computeIntersection(own[0], own[1], from, to);
            count += intersector.getIntersectionNum();
        });
        return count;
    }

    Tree tree;
    geos::algorithm::LineIntersector intersector;
};

GeosSegments::GeosSegments(const GeosOutline& outline)
    : body_(std::make_unique<Body>(*outline.body().ring->getCoordinatesRO())) {}
GeosSegments::~GeosSegments() = default;

std::size_t GeosSegments::crossings(const Segment& segment) {
    return body_->crossings({segment.from.x, segment.from.y}, {segment.to.x, segment.to.y});
}

std::size_t GeosSegments::crossings(const GeosOutline& other) {
    const geos::geom::CoordinateSequence& line = *other.body().ring->getCoordinatesRO();
    std::size_t count = 0;
    for (std::size_t i = 0; i + 1 < line.size(); ++i)
        count += body_->crossings(line.getAt(i), line.getAt(i + 1));
    return count;
}

struct GeosShapes::Body {
    std::vector<std::unique_ptr<geos::geom::Polygon>> polygons;
};

GeosShapes::GeosShapes(const std::vector<Points>& outlines) : body_(std::make_unique<Body>()) {
    for (const Points& outline : outlines) body_->polygons.push_back(polygonOf({outline, {}}));
}
GeosShapes::~GeosShapes() = default;

struct GeosSet::Body {
    struct Member {
        const geos::geom::Geometry* geometry; // a polygon; of a query, the point
        bool isQuery;
        std::unique_ptr<geos::algorithm::locate::IndexedPointInAreaLocator> locator;
        std::unique_ptr<geos::operation::distance::IndexedFacetDistance> facets;
        std::unique_ptr<geos::geom::Geometry> boundary;
        std::unique_ptr<geos::geom::prep::PreparedGeometry> preparedBoundary;
    };
    // Between a member and a query, whichever comes first.
    struct Distance {
        double operator()(Member* a, Member* b) const {
            Member& member = a->isQuery ? *b : *a;
            const Member& query = a->isQuery ? *a : *b;
            if (!member.facets)
                member.facets =
                    std::make_unique<geos::operation::distance::IndexedFacetDistance>(member.geometry);
            return member.facets->distance(query.geometry);
        }
    };
    using Tree = geos::index::strtree::TemplateSTRtree<Member*>;

    explicit Body(const GeosShapes::Body& shapes) : tree(10, shapes.polygons.size()) {
        members.reserve(shapes.polygons.size());
        for (const auto& polygon : shapes.polygons) {
            members.push_back({polygon.get(), false, nullptr, nullptr, nullptr, nullptr});
            tree.insert(*polygon->getEnvelopeInternal(), &members.back());
        }
    }

    std::vector<Member> members;
    Tree tree;
};

GeosSet::GeosSet(const GeosShapes& shapes) : body_(std::make_unique<Body>(shapes.body())) {}
GeosSet::~GeosSet() = default;

bool GeosSet::inside(const Point& p) {
    const Coordinate c(p.x, p.y);
    bool found = false;
    body_->tree.query(geos::geom::Envelope(c), [&](Body::Member* member) {
        if (!member->locator)
            member->locator =
                std::make_unique<geos::algorithm::locate::IndexedPointInAreaLocator>(*member->geometry);
        found = isInterior(member->locator->locate(&c));
        return !found;
    });
    return found;
}

double GeosSet::distance(const GeosPoints& points, std::size_t k) {
    const geos::geom::Point& point = *points.body().points[k];
    Body::Member query = {&point, true, nullptr, nullptr, nullptr, nullptr};
    Body::Distance measure;
    Body::Member* const nearest = body_->tree.nearestNeighbour(*point.getEnvelopeInternal(), &query, measure);
    return measure(nearest, &query);
}

bool GeosSet::crossesItself() {
    for (Body::Member& member : body_->members) {
        member.boundary = member.geometry->getBoundary();
        geos::operation::valid::IsSimpleOp simple(*member.boundary);
        if (!simple.isSimple()) return true;
    }
    bool found = false;
    for (Body::Member& one : body_->members) {
        body_->tree.query(*one.geometry->getEnvelopeInternal(), [&](Body::Member* other) {
            if (other <= &one) return true;
            if (!one.preparedBoundary)
                one.preparedBoundary = geos::geom::prep::PreparedGeometryFactory::prepare(one.boundary.get());
            found = found || one.preparedBoundary->intersects(other->boundary.get());
            return !found;
        });
        if (found) return true;
    }
    return false;
}

std::vector<unsigned char> geosWritten(const GeosArea& area) {
    std::ostringstream stream;
    geos::io::WKBWriter().write(*area.body().polygon, stream);
    const std::string text = stream.str();
    return {text.begin(), text.end()};
}

std::size_t geosVerticesRead(const std::vector<unsigned char>& bytes) {
    return geos::io::WKBReader().read(bytes.data(), bytes.size())->getNumPoints();
}

namespace {

class One {
public:
    explicit One(const Points& points) : polygon_(factory().createPolygon(ringOf(points))) {}
    double area() const { return polygon_->getArea(); }
    double width() const { return polygon_->getEnvelopeInternal()->getWidth(); }
    bool inside(const Point& p) const {
        const Coordinate c(p.x, p.y);
        return isInterior(geos::algorithm::locate::SimplePointInAreaLocator::locate(c, polygon_.get()));
    }

private:
    std::unique_ptr<geos::geom::Polygon> polygon_;
};

} // namespace

std::unique_ptr<Many> manyOfGeos(const Supply& supply) { return std::make_unique<ManyOf<One>>(supply); }

} // namespace bench
