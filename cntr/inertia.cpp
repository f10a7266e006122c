// Second moments of a polygon: a fan of triangles about the centroid, each taken from its base and apex.
#include "cntr/moments.h"

#include "platform/core/math/vector_ops.h"
#include "platform/core/shapes/line_ops.h"

#include <cmath>
#include <vector>

namespace {

gk_InertiaData zeroRecord() { return gk_InertiaData(0.0, gkVector<2>(), gkMatrix<2>()); }

// Moments of the triangle (-left, 0), (right, 0), (0, height), central, in its own axes.
struct LocalInertia {
    double area;
    double centerX;
    double centerY;
    double xx;
    double yy;
    double xy;
};

LocalInertia baseApexTriangleInertia(double left, double right, double height) {
    LocalInertia local{};
    local.area = (left + right) * height / 2.0;
    local.centerX = (right - left) / 3.0;
    local.centerY = height / 3.0;
    local.yy =
        (left + right) * (height * height * height) / 12.0 - local.area * (local.centerY * local.centerY);
    local.xx = (right * right * right + left * left * left) * height / 12.0 -
               local.area * (local.centerX * local.centerX);
    local.xy =
        (right * right - left * left) * (height * height) / 24.0 - local.area * local.centerX * local.centerY;
    return local;
}

// The vector's direction, of length 1. Where the square of the length is no ordinary number, that of the zero
// vector included, it is the cosine and sine of the angle.
gkVector<2> unitOf(const gkVector<2>& vector) {
    const double length = gk_VectorOps::length(vector);
    if (length >= 1e-150 && length <= 1e150) return vector / length;
    return gkVector<2>(1.0, vector.angle());
}

// Turns the local moments by the base's direction and moves them to the foot of the apex.
gk_InertiaData placed(const LocalInertia& local, const gkVector<2>& foot, const gkVector<2>& direction) {
    const double co = direction.x();
    const double si = direction.y();
    const double xx = local.xx * (co * co) - 2.0 * local.xy * si * co + local.yy * (si * si);
    const double yy = local.xx * (si * si) + 2.0 * local.xy * si * co + local.yy * (co * co);
    const double xy = local.xx * si * co + local.xy * (co * co - si * si) - local.yy * si * co;
    const gkVector<2> center =
        foot + gkVector<2>(co * local.centerX - si * local.centerY, si * local.centerX + co * local.centerY);
    return gk_InertiaData(local.area, center, gkMatrix<2>(xx, xy, xy, yy));
}

// The apex's foot falls within the edge q1-q2, up to the stated slack.
bool isBase(const gkLineSeg& edge, const gkVector<2>& apex) {
    return gk_LineOps::distToPoint(edge.line(), apex) >= gk_LineOps::distToPoint(edge, apex) - 1e-10;
}

gk_InertiaData inertiaOverBase(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& apex) {
    const gkVector<2> foot = gk_LineOps::proj(gkLineSeg(q1, q2).line(), apex);
    LocalInertia local = baseApexTriangleInertia(
        gk_VectorOps::distance(foot, q1), gk_VectorOps::distance(foot, q2), gk_VectorOps::distance(foot, apex));
    if (!(gk_VectorOps::cross(q2 - q1, apex - q1) >= 0.0)) {
        local.area = -local.area;
        local.centerY = -local.centerY;
        local.xy = -local.xy;
    }
    return placed(local, foot, unitOf(q2 - q1));
}

// One of the three edges is a base in exact arithmetic. With NaN corners, or where rounding denies all three,
// the search must still end: such a triangle counts for nothing.
gk_InertiaData triangleInertiaData(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& q3) {
    if (isBase(gkLineSeg(q1, q2), q3)) return inertiaOverBase(q1, q2, q3);
    if (isBase(gkLineSeg(q2, q3), q1)) return inertiaOverBase(q2, q3, q1);
    if (isBase(gkLineSeg(q3, q1), q2)) return inertiaOverBase(q3, q1, q2);
    return zeroRecord();
}

// Adds every triangle once, the large pieces of the outline's own orientation first. The order is part of the
// result: operator+ looks at the first operand's sign. With a negative mean the first pass takes every triangle
// whose area differs from it either way; this asymmetry between the orientations is meant.
gk_InertiaData summedInPasses(const std::vector<gk_InertiaData>& triangles, double mean) {
    std::vector<bool> added(triangles.size(), false);
    gk_InertiaData sum = zeroRecord();
    const auto addWhere = [&](auto admits) {
        for (std::size_t i = 0; i < triangles.size(); ++i) {
            if (added[i] || !admits(triangles[i].area())) continue;
            sum = sum + triangles[i];
            added[i] = true;
        }
    };
    addWhere([&](double area) { return area > mean || (mean < 0.0 && area < mean); });
    const double threshold = mean > 0.0 ? 1e-6 : -1e-6;
    addWhere([&](double area) { return area > threshold || (threshold < 0.0 && area < threshold); });
    addWhere([](double) { return true; });
    return sum;
}

} // namespace

gk_InertiaData gk_InertiaData::operator+(const gk_InertiaData& other) const {
    if (area_ == 0.0 || std::isnan(area_)) return other;
    if (other.area_ == 0.0) return *this;
    const double total = area_ + other.area_;
    gkVector<2> center;
    if (std::fabs(total) > 1e-16) {
        center = (other.area_ * other.centerOfMass_ + area_ * centerOfMass_) / total;
    }
    const gkVector<2> da = center - centerOfMass_;
    const gkVector<2> db = center - other.centerOfMass_;
    double wa = area_;
    double wb = other.area_;
    double sa = 1.0;
    double sb = 1.0;
    const double product = area_ * other.area_;
    if (product > 0.0) {
        wa = std::fabs(area_);
        wb = std::fabs(other.area_);
    } else if (product < 0.0) {
        // A hole against its outer piece: the smaller area is the one taken away, its weight keeps its sign.
        (area_ > other.area_ ? sb : sa) = -1.0;
    }
    const gkMatrix<2>& a = inertiaMatrix_;
    const gkMatrix<2>& b = other.inertiaMatrix_;
    const double xx =
        sa * a.element(0, 0) + wa * (da.x() * da.x()) + sb * b.element(0, 0) + wb * (db.x() * db.x());
    const double yy =
        sa * a.element(1, 1) + wa * (da.y() * da.y()) + sb * b.element(1, 1) + wb * (db.y() * db.y());
    const double xy = sa * a.element(0, 1) + wa * da.x() * da.y() + sb * b.element(0, 1) + wb * db.x() * db.y();
    return gk_InertiaData(total, center, gkMatrix<2>(xx, xy, xy, yy));
}

gk_InertiaData gf_InertiaDataPolygon(const std::vector<gkVector<2>>& points) {
    if (points.size() < 3) return zeroRecord();
    const gkVector<2> hub = gnContour::centerOfMass(points);
    std::vector<gk_InertiaData> triangles;
    triangles.reserve(points.size());
    double sum = 0.0;
    gkVector<2> previous = points.back();
    for (const gkVector<2>& current : points) {
        triangles.push_back(triangleInertiaData(hub, previous, current));
        sum += triangles.back().area();
        previous = current;
    }
    return summedInPasses(triangles, sum / static_cast<double>(points.size()));
}
