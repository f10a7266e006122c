#include "tests/measure/tolerant_outline.h"

#include "cntr/inside_count.h"
#include "cntr/measures.h"
#include "cntr/search/ray_direction.h"
#include "platform/core/shapes/line_ops.h"

#include <algorithm>
#include <cmath>

namespace {

double coordinates(const gkLine& line) {
    const gkVector<2> end = line.point() + line.direction();
    return std::max(
        {std::fabs(line.point().x()), std::fabs(line.point().y()), std::fabs(end.x()), std::fabs(end.y())});
}

} // namespace

TolerantOutline::TolerantOutline(const Points& points, const ParallelTest& parallel)
    : points_(points), box_(gk_EncloseRect(points, gkXform<2>())),
      ray_(2.0 * gk_CircleAroundFirst(points).radius()), parallel_(parallel) {
    edges_.build(points, true);
}

bool TolerantOutline::isParallel(const gkLine& a, const gkLine& b) const {
    const double det = gk_VectorOps::cross(a.direction(), b.direction());
    const double lengthA = gk_VectorOps::length(a.direction());
    const double lengthB = gk_VectorOps::length(b.direction());
    const double noise = parallel_.rounding * (lengthA * coordinates(b) + lengthB * coordinates(a));
    return !(std::fabs(det) > parallel_.sine * (lengthA * lengthB) + noise);
}

std::vector<gk_Crossing> TolerantOutline::crossings(const gkLineSeg& seg, bool includeEnds) const {
    const gk_Box box = gk_Box::of(seg.p1(), seg.p2());
    std::vector<gk_Crossing> found;
    for (std::size_t k = 0; k < points_.size(); ++k) {
        const gkLineSeg& edge = edges_.segments[k];
        if (!edges_.validLine[k] || !gk_Box::of(edge.p1(), edge.p2()).overlaps(box)) continue;
        if (isParallel(edge.line(), seg.line())) continue;
        if (!includeEnds && edge.distToPoint(seg.p1()) <= kTouch) continue;
        if (!includeEnds && edge.distToPoint(seg.p2()) <= kTouch) continue;
        const gkVector<2> x = edge.line().intersect(seg.line());
        if (edge.distToPoint(x) < kTouch && seg.distToPoint(x) < kTouch)
            found.push_back({x, static_cast<int>(k)});
    }
    gk_OrderAlong(seg, found);
    return found;
}

TolerantOutline::Points TolerantOutline::crossings(const Points& other) const {
    Points result;
    for (std::size_t i = 0; i < other.size(); ++i) {
        for (const gk_Crossing& found : crossings({other[i], other[(i + 1) % other.size()]}, true)) {
            result.push_back(found.point);
        }
    }
    return result;
}

bool TolerantOutline::isSelfIntersecting() const {
    for (std::size_t k = 0; k < points_.size(); ++k) {
        if (edges_.validLine[k] && !crossings(edges_.segments[k], false).empty()) return true;
    }
    return false;
}

long TolerantOutline::insideCount(const gkVector<2>& point) const {
    if (!box_.within(point)) return 0;
    const std::optional<gkVector<2>> direction = gk_RayDirection(gk_Segments(points_, true), point);
    return gk_InsideCount(direction, point, ray_, true, [&](const gkVector<2>& end) {
        return static_cast<long>(crossings({point, end}, false).size());
    });
}

double TolerantOutline::probe() const {
    std::vector<double> lengths;
    for (std::size_t k = 0; k < points_.size(); ++k) {
        lengths.push_back(points_[k].distance(points_[(k + 1) % points_.size()]));
    }
    std::sort(lengths.begin(), lengths.end());
    return lengths[lengths.size() / 2] / 100.0;
}

bool TolerantOutline::canStart(std::size_t i, double probe) const {
    const gkVector<2> middle = (points_[i] + points_[i + 1]) / 2.0;
    const gkVector<2> along = (points_[i] - points_[i + 1]).unit();
    const gkVector<2> aside = gkVector<2>(-along.y(), along.x()) * probe;
    return crossings({middle + aside, middle - aside}, true).size() == 1 &&
           crossings({points_[i], points_[i + 1]}, true).size() == 2 &&
           (insideCount(middle + aside) == 0 || insideCount(middle - aside) == 0);
}

std::optional<TolerantOutline::Points> TolerantOutline::repaired() const {
    const double step = probe();
    for (std::size_t i = 0; i + 1 < points_.size(); ++i) {
        if (canStart(i, step)) return walked(i);
    }
    return std::nullopt;
}

std::optional<TolerantOutline::Points> TolerantOutline::walked(std::size_t start) const {
    const std::size_t n = points_.size();
    Points result;
    gkVector<2> at = points_[start];
    std::size_t next = start + 1;
    bool forward = true;
    do {
        if (result.size() > 50 * n) return std::nullopt;
        const gkVector<2>& target = points_[forward ? next : (next + n - 1) % n];
        const std::vector<gk_Crossing> found = crossings({at, target}, false);
        if (found.empty()) {
            at = target;
            next = (forward ? next + 1 : next + n - 1) % n;
        } else {
            at = found.front().point;
            next = static_cast<std::size_t>(found.front().segment);
            forward = !forward;
        }
        result.push_back(at);
    } while (at != points_[start]);
    return result;
}
