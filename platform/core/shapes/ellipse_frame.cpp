#include "platform/core/shapes/ellipse_frame.h"

#include "platform/core/math/vector_ops.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

// All lengths below are scaled so that the largest of the radii and coordinates lies in [1/2, 1).

// An ellipse this small beside the point's distance is a point to within rounding.
constexpr double kPointRadius = 0x1p-60;
// An ellipse this thin is a segment: no point of one is farther from the other than the small radius.
constexpr double kSegmentRatio = 0x1p-100;
// A point this close to the longer axis is on it: the distance changes by no more than the point moves.
constexpr double kOnAxis = 0x1p-200;

double length(double x, double y) { return std::sqrt(x * x + y * y); }

// Distance from (x, 0), x >= 0, to an ellipse with radii big > small > 0 along x and y.
double distanceFromLongAxis(double big, double small, double x) {
    const double focus2 = (big - small) * (big + small);
    if (big * x >= focus2) return std::fabs(x - big);
    return small * std::sqrt(1.0 - x * x / focus2);
}

// Distance from (x, y), x >= 0, y > 0, to an ellipse with radii big > small > 0.
//
// The nearest point is (big u, small v) with u = big x / (t + focus^2), v = small y / t, where t is the root of
// u^2 + v^2 = 1 (Eberly, Distance from a Point to an Ellipse; his parameter is t - small^2). The left side is
// convex and decreasing for t > 0. At the larger of the values that make u or v equal to 1 it lies between 1
// and 2, so Newton's steps from there only grow, stay left of the root and end where rounding stops their
// growth.
double distanceFromQuadrant(double big, double small, double x, double y) {
    constexpr int kMostSteps = 100; // about six are taken
    const double focus2 = (big - small) * (big + small);
    const double a = big * x;
    const double b = small * y;
    double t = std::max(b, a - focus2);
    double u = a / (t + focus2);
    double v = b / t;
    for (int step = 0; step < kMostSteps; ++step) {
        const double excess = u * u + v * v - 1.0;
        const double next = t + 0.5 * excess / (u * u / (t + focus2) + v * v / t);
        if (!(next > t)) break;
        t = next;
        u = a / (t + focus2);
        v = b / t;
    }
    return length(x - big * u, y - small * v);
}

double scaledDistance(double big, double small, double x, double y) {
    if (big <= kPointRadius) return length(x, y);
    if (small <= big * kSegmentRatio) return length(std::max(x - big, 0.0), y);
    if (big == small) return std::fabs(length(x, y) - big);
    return y <= kOnAxis ? distanceFromLongAxis(big, small, x) : distanceFromQuadrant(big, small, x, y);
}

} // namespace

gk_EllipseFrame::gk_EllipseFrame(const gkEllipse::gkEllipseGeom& geom)
    : center_(geom.center.vector()), radiusX_(std::fabs(geom.radii.x())), radiusY_(std::fabs(geom.radii.y())),
      axis_(gk_Trig::sinCos(geom.rotation.toDouble())) {}

gkVector<2> gk_EllipseFrame::fromLocal(const gkVector<2>& local) const {
    return center_ + gkVector<2>(axis_.cos * local.x() - axis_.sin * local.y(),
                                 axis_.sin * local.x() + axis_.cos * local.y());
}

gkVector<2> gk_EllipseFrame::toLocal(const gkVector<2>& p) const {
    const gkVector<2> d = p - center_;
    return {axis_.cos * d.x() + axis_.sin * d.y(), axis_.cos * d.y() - axis_.sin * d.x()};
}

double gk_EllipseFrame::distance(const gkVector<2>& p) const {
    const gkVector<2> local = toLocal(p);
    double x = std::fabs(local.x());
    double y = std::fabs(local.y());
    double big = radiusX_;
    double small = radiusY_;
    if (big < small) {
        std::swap(big, small);
        std::swap(x, y);
    }
    if (!std::isfinite(big) || !std::isfinite(small) || !std::isfinite(x) || !std::isfinite(y))
        return std::numeric_limits<double>::quiet_NaN();
    const double largest = std::max(big, std::max(x, y));
    if (largest == 0.0) return 0.0;
    int exponent = 0;
    std::frexp(largest, &exponent);
    const double scaled = scaledDistance(std::ldexp(big, -exponent), std::ldexp(small, -exponent),
                                         std::ldexp(x, -exponent), std::ldexp(y, -exponent));
    return std::ldexp(scaled, exponent);
}
