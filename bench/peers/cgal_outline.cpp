#include "bench/peers/cgal_types.h"

#include <CGAL/Aff_transformation_2.h>
#include <CGAL/Box_intersection_d/Box_with_info_d.h>
#include <CGAL/all_furthest_neighbors_2.h>
#include <CGAL/box_intersection_d.h>
#include <CGAL/ch_akl_toussaint.h>
#include <CGAL/ch_melkman.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace bench {

namespace {

using K = CgalKernel;
// Its number is the place of the segment.
using NumberedBox = CGAL::Box_intersection_d::Box_with_info_d<double, 2, std::size_t>;

Points pointsOf(const std::vector<K::Point_2>& list) {
    Points points;
    for (const K::Point_2& p : list) points.push_back({p.x(), p.y()});
    return points;
}

Box of(const CGAL::Bbox_2& box) { return {{box.xmin(), box.ymin()}, {box.xmax(), box.ymax()}}; }

std::vector<NumberedBox> boxesOf(const CgalPolygon& polygon) {
    std::vector<NumberedBox> boxes;
    boxes.reserve(polygon.size());
    for (std::size_t i = 0; i < polygon.size(); ++i) boxes.emplace_back(polygon.edge(i).bbox(), i);
    return boxes;
}

} // namespace

CgalOutline::CgalOutline(const Points& points) : body_(std::make_unique<Body>()) {
    for (const Point& p : points) body_->polygon.push_back(cgalPoint(p));
}
CgalOutline::~CgalOutline() = default;

bool CgalOutline::inside(const Point& p) const {
    // The member function first asks whether the polygon is simple.
    return CGAL::bounded_side_2(body_->polygon.vertices_begin(), body_->polygon.vertices_end(), cgalPoint(p),
                                K()) == CGAL::ON_BOUNDED_SIDE;
}

double CgalOutline::area() const { return std::fabs(body_->polygon.area()); }
Box CgalOutline::box() const { return of(body_->polygon.bbox()); }

Box CgalOutline::boxUnder(const Affine& t) const {
    const K::Aff_transformation_2 map(t.a, t.b, t.dx, t.c, t.d, t.dy);
    return of(CGAL::transform(map, body_->polygon).bbox());
}

bool CgalOutline::crossesItself() const { return !body_->polygon.is_simple(); }

bool CgalOutline::boxesCross() const {
    std::vector<NumberedBox> boxes = boxesOf(body_->polygon);
    const std::size_t n = boxes.size();
    bool found = false;
    CGAL::box_self_intersection_d(boxes.begin(), boxes.end(), [&](const NumberedBox& a, const NumberedBox& b) {
        const std::size_t i = a.info();
        const std::size_t j = b.info();
        if (found || i == (j + 1) % n || j == (i + 1) % n) return;
        found = CGAL::do_intersect(body_->polygon.edge(i), body_->polygon.edge(j));
    });
    return found;
}

Points CgalOutline::hull() const {
    std::vector<K::Point_2> found;
    CGAL::ch_akl_toussaint(body_->polygon.vertices_begin(), body_->polygon.vertices_end(),
                           std::back_inserter(found));
    return pointsOf(found);
}

Points CgalOutline::hullOfSimple() const {
    std::vector<K::Point_2> found;
    CGAL::ch_melkman(body_->polygon.vertices_begin(), body_->polygon.vertices_end(), std::back_inserter(found));
    return pointsOf(found);
}

double CgalOutline::diameterOfSimple() const {
    std::vector<K::Point_2> hull;
    CGAL::ch_melkman(body_->polygon.vertices_begin(), body_->polygon.vertices_end(), std::back_inserter(hull));
    std::vector<int> furthest;
    CGAL::all_furthest_neighbors_2(hull.begin(), hull.end(), std::back_inserter(furthest));
    double squared = 0.0;
    for (std::size_t i = 0; i < hull.size(); ++i) {
        const K::Point_2& other = hull[static_cast<std::size_t>(furthest[i])];
        squared = std::max(squared, CGAL::squared_distance(hull[i], other));
    }
    return std::sqrt(squared);
}

std::size_t CgalOutline::crossings(const CgalOutline& other) const {
    std::vector<NumberedBox> own = boxesOf(body_->polygon);
    std::vector<NumberedBox> others = boxesOf(other.body_->polygon);
    std::vector<K::Point_2> found;
    CGAL::box_intersection_d(
        own.begin(), own.end(), others.begin(), others.end(), [&](const NumberedBox& a, const NumberedBox& b) {
            const auto met =
                CGAL::intersection(body_->polygon.edge(a.info()), other.body_->polygon.edge(b.info()));
            if (!met) return;
            if (const auto* point = boost::get<K::Point_2>(&*met)) found.push_back(*point);
        });
    return found.size();
}

namespace {

class One {
public:
    explicit One(const Points& points) {
        polygon_.container().reserve(points.size());
        for (const Point& p : points) polygon_.push_back(cgalPoint(p));
    }
    double area() const { return std::fabs(polygon_.area()); }
    double width() const {
        const CGAL::Bbox_2 box = polygon_.bbox();
        return box.xmax() - box.xmin();
    }
    bool inside(const Point& p) const {
        return CGAL::bounded_side_2(polygon_.vertices_begin(), polygon_.vertices_end(), cgalPoint(p), K()) ==
               CGAL::ON_BOUNDED_SIDE;
    }

private:
    CgalPolygon polygon_;
};

} // namespace

std::unique_ptr<Many> manyOfCgal(const Supply& supply) { return std::make_unique<ManyOf<One>>(supply); }

} // namespace bench
