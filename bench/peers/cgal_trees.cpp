#include "bench/peers/cgal_types.h"

#include <CGAL/AABB_segment_primitive.h>
#include <CGAL/AABB_traits.h>
#include <CGAL/AABB_tree.h>
#include <CGAL/Fuzzy_sphere.h>
#include <CGAL/Kd_tree.h>
#include <CGAL/Orthogonal_k_neighbor_search.h>
#include <CGAL/Search_traits_2.h>

#include <cmath>
#include <iterator>
#include <vector>

namespace bench {

namespace {

using K = CgalKernel;
using Segments3 = std::vector<K::Segment_3>;
using Primitive = CGAL::AABB_segment_primitive<K, Segments3::const_iterator>;
using SegmentTree = CGAL::AABB_tree<CGAL::AABB_traits<K, Primitive>>;
using SearchTraits = CGAL::Search_traits_2<K>;
using Nearest = CGAL::Orthogonal_k_neighbor_search<SearchTraits>;

K::Point_3 raised(const K::Point_2& p) { return {p.x(), p.y(), 0.0}; }
K::Point_3 raised(const Point& p) { return {p.x, p.y, 0.0}; }

} // namespace

struct CgalSegments::Body {
    Segments3 segments;
    SegmentTree tree;
};

CgalSegments::CgalSegments(const CgalOutline& outline) : body_(std::make_unique<Body>()) {
    const CgalPolygon& polygon = outline.body().polygon;
    body_->segments.reserve(polygon.size());
    for (auto edge = polygon.edges_begin(); edge != polygon.edges_end(); ++edge)
        body_->segments.emplace_back(raised(edge->source()), raised(edge->target()));
    body_->tree.insert(body_->segments.cbegin(), body_->segments.cend());
    body_->tree.build();
}
CgalSegments::~CgalSegments() = default;

double CgalSegments::distance(const Point& p) const {
    return std::sqrt(body_->tree.squared_distance(raised(p)));
}

std::size_t CgalSegments::crossings(const Segment& segment) const {
    return body_->tree.number_of_intersected_primitives(K::Segment_3(raised(segment.from), raised(segment.to)));
}

struct CgalVertices::Body {
    Nearest::Tree tree;
};

CgalVertices::CgalVertices(const CgalOutline& outline) : body_(std::make_unique<Body>()) {
    const CgalPolygon& polygon = outline.body().polygon;
    body_->tree.insert(polygon.vertices_begin(), polygon.vertices_end());
    body_->tree.build();
}
CgalVertices::~CgalVertices() = default;

double CgalVertices::closestDistance(const Point& p) const {
    const Nearest search(body_->tree, cgalPoint(p), 1);
    return std::sqrt(search.begin()->second);
}

std::size_t CgalVertices::countWithin(const Point& p, double tolerance) const {
    std::vector<K::Point_2> found;
    body_->tree.search(std::back_inserter(found), CGAL::Fuzzy_sphere<SearchTraits>(cgalPoint(p), tolerance));
    return found.size();
}

} // namespace bench
