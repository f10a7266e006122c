#include "bench/peers/boost.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/linestring.hpp>
#include <boost/geometry/geometries/multi_point.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <boost/geometry/geometries/segment.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <iterator>
#include <utility>

namespace bench {

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using BgPoint = bg::model::d2::point_xy<double>;
using BgBox = bg::model::box<BgPoint>;
using BgSegment = bg::model::segment<BgPoint>;
using BgLine = bg::model::linestring<BgPoint>;
using BgPolygon = bg::model::polygon<BgPoint, false, true>; // counter-clockwise, first vertex repeated
using BgPoints = bg::model::multi_point<BgPoint>;

BgPoint of(const Point& p) { return {p.x, p.y}; }
BgSegment of(const Segment& s) { return {of(s.from), of(s.to)}; }
Point of(const BgPoint& p) { return {p.x(), p.y()}; }
Box of(const BgBox& box) { return {of(box.min_corner()), of(box.max_corner())}; }

template <class Line> Line lineOf(const Points& points) {
    Line line;
    line.reserve(points.size() + 1);
    for (const Point& p : points) line.push_back(of(p));
    line.push_back(of(points.front()));
    return line;
}

BgPolygon polygonOf(const Polygon& polygon) {
    BgPolygon made;
    made.outer() = lineOf<BgPolygon::ring_type>(polygon.outline);
    for (const Points& hole : polygon.holes) made.inners().push_back(lineOf<BgPolygon::ring_type>(hole));
    bg::correct(made); // the orientation of the holes
    return made;
}

} // namespace

struct BoostArea::Body {
    BgPolygon polygon;
};

BoostArea::BoostArea(const Polygon& polygon) : body_(new Body{polygonOf(polygon)}) {}
BoostArea::~BoostArea() = default;
BoostArea::BoostArea(BoostArea&&) noexcept = default;

bool BoostArea::inside(const Point& p) const { return bg::within(of(p), body_->polygon); }
double BoostArea::area() const { return bg::area(body_->polygon); }
double BoostArea::length() const { return static_cast<double>(bg::perimeter(body_->polygon)); }

Point BoostArea::centroid() const {
    BgPoint c(0.0, 0.0);
    bg::centroid(body_->polygon, c);
    return of(c);
}

Box BoostArea::box() const {
    BgBox box;
    bg::envelope(body_->polygon, box);
    return of(box);
}

Box BoostArea::boxUnder(const Affine& t) const {
    const bg::strategy::transform::matrix_transformer<double, 2, 2> map(t.a, t.b, t.dx, t.c, t.d, t.dy, 0.0,
                                                                        0.0, 1.0);
    BgPolygon mapped;
    bg::transform(body_->polygon, mapped, map);
    BgBox box;
    bg::envelope(mapped, box);
    return of(box);
}

bool BoostArea::crossesItself() const { return bg::intersects(body_->polygon); }

Points BoostArea::hull() const {
    BgPolygon::ring_type ring;
    bg::convex_hull(body_->polygon, ring);
    Points points;
    for (std::size_t i = 0; i + 1 < ring.size(); ++i) points.push_back(of(ring[i]));
    return points;
}

double BoostArea::mergedArea(const BoostArea& other) const {
    bg::model::multi_polygon<BgPolygon> merged;
    bg::union_(body_->polygon, other.body_->polygon, merged);
    return bg::area(merged);
}

struct BoostOutline::Body {
    BgLine line;
};

BoostOutline::BoostOutline(const Points& points) : body_(new Body{lineOf<BgLine>(points)}) {}
BoostOutline::~BoostOutline() = default;

double BoostOutline::distance(const Point& p) const { return bg::distance(of(p), body_->line); }
double BoostOutline::length() const { return static_cast<double>(bg::length(body_->line)); }

Point BoostOutline::meanPosition() const {
    BgPoint c(0.0, 0.0);
    bg::centroid(body_->line, c);
    return of(c);
}

std::size_t BoostOutline::crossings(const Segment& segment) const {
    BgPoints found;
    bg::intersection(body_->line, BgLine{of(segment.from), of(segment.to)}, found);
    return found.size();
}

std::size_t BoostOutline::crossings(const BoostOutline& other) const {
    BgPoints found;
    bg::intersection(body_->line, other.body_->line, found);
    return found.size();
}

struct BoostSegments::Body {
    bgi::rtree<BgSegment, bgi::linear<16>> tree;
};

BoostSegments::BoostSegments(const BoostOutline& outline) {
    const BgLine& line = outline.body().line;
    std::vector<BgSegment> segments;
    segments.reserve(line.size());
    for (std::size_t i = 0; i + 1 < line.size(); ++i) segments.emplace_back(line[i], line[i + 1]);
    body_.reset(new Body{bgi::rtree<BgSegment, bgi::linear<16>>(segments)});
}
BoostSegments::~BoostSegments() = default;

double BoostSegments::distance(const Point& p) const {
    const auto nearest = body_->tree.qbegin(bgi::nearest(of(p), 1));
    return bg::distance(of(p), *nearest);
}

std::size_t BoostSegments::crossings(const Segment& segment) const {
    const BgSegment other = of(segment);
    std::size_t count = 0;
    for (auto i = body_->tree.qbegin(bgi::intersects(other)); i != body_->tree.qend(); ++i) {
        BgPoints found;
        bg::intersection(*i, other, found);
        count += found.size();
    }
    return count;
}

struct BoostVertices::Body {
    using Vertex = std::pair<BgPoint, std::size_t>;
    bgi::rtree<Vertex, bgi::linear<16>> tree;
};

BoostVertices::BoostVertices(const Points& points) {
    std::vector<Body::Vertex> vertices;
    vertices.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) vertices.emplace_back(of(points[i]), i);
    body_.reset(new Body{bgi::rtree<Body::Vertex, bgi::linear<16>>(vertices)});
}
BoostVertices::~BoostVertices() = default;

std::size_t BoostVertices::closest(const Point& p) const {
    return body_->tree.qbegin(bgi::nearest(of(p), 1))->second;
}

std::size_t BoostVertices::countWithin(const Point& p, double tolerance) const {
    const BgBox around({p.x - tolerance, p.y - tolerance}, {p.x + tolerance, p.y + tolerance});
    std::vector<std::size_t> found;
    for (auto i = body_->tree.qbegin(bgi::intersects(around)); i != body_->tree.qend(); ++i) {
        if (bg::comparable_distance(i->first, of(p)) < tolerance * tolerance) found.push_back(i->second);
    }
    return found.size();
}

struct BoostSet::Body {
    using Entry = std::pair<BgBox, std::size_t>;
    std::vector<BgPolygon> polygons;
    bgi::rtree<Entry, bgi::linear<16>> tree;
};

BoostSet::BoostSet(const std::vector<Points>& shapes) : body_(std::make_unique<Body>()) {
    std::vector<Body::Entry> entries;
    for (const Points& shape : shapes) {
        body_->polygons.push_back(polygonOf({shape, {}}));
        BgBox box;
        bg::envelope(body_->polygons.back(), box);
        entries.emplace_back(box, entries.size());
    }
    body_->tree = bgi::rtree<Body::Entry, bgi::linear<16>>(entries);
}
BoostSet::~BoostSet() = default;

bool BoostSet::inside(const Point& p) const {
    for (auto i = body_->tree.qbegin(bgi::contains(of(p))); i != body_->tree.qend(); ++i) {
        if (bg::within(of(p), body_->polygons[i->second])) return true;
    }
    return false;
}

namespace {

class One {
public:
    explicit One(const Points& points) { polygon_.outer() = lineOf<BgPolygon::ring_type>(points); }
    double area() const { return bg::area(polygon_); }
    double width() const {
        BgBox box;
        bg::envelope(polygon_, box);
        return box.max_corner().x() - box.min_corner().x();
    }
    bool inside(const Point& p) const { return bg::within(of(p), polygon_); }

private:
    BgPolygon polygon_;
};

} // namespace

std::unique_ptr<Many> manyOfBoost(const Supply& supply) { return std::make_unique<ManyOf<One>>(supply); }

} // namespace bench
