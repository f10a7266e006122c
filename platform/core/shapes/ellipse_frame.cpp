#include "platform/core/shapes/ellipse_frame.h"

#include "platform/core/math/vector_ops.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
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

namespace {

// The squared distances of two points from an ellipse.
//
// With t, u and v as in distanceFromQuadrant, of |(u, v)| = 1. The reciprocal of |(u, v)| is nearly linear in
// t, quite so for a circle, and concave, so that Newton's steps for it come from wherever they start to the
// left of the root and then grow towards it (More and Sorensen, Computing a trust region step, 1983). From t =
// small^2, the root for a point on the curve, two or three of them do: each squares what is left. The vector
// from the nearest point is (x / (t + focus^2), y / t) times t - small^2.
class TwoSquares {
public:
    TwoSquares(double big, double small, const gk_TwoVectors& point)
        : x_(point.x), y_(point.y), a_(gk_TwoDoubles(big) * x_), b_(gk_TwoDoubles(small) * y_),
          focus2_((big - small) * (big + small)), small2_(small * small), t_(small2_), p_(1.0 / (big * big)),
          q_(1.0 / (small * small)) {}

    void step() {
        const gk_TwoDoubles one(1.0);
        const gk_TwoDoubles u = a_ * p_;
        const gk_TwoDoubles v = b_ * q_;
        const gk_TwoDoubles uu = u * u;
        const gk_TwoDoubles vv = v * v;
        const gk_TwoDoubles norm2 = uu + vv;
        growth_ = norm2 * (norm2.root() - one) / (uu * p_ + vv * q_);
        t_ = b_.orGreater(t_ + growth_);
        p_ = one / (t_ + focus2_);
        q_ = one / t_;
    }
    // No further step would change more than the last digits.
    bool isDone() const {
        constexpr double kLastGrowth = 0x1p-26; // relative
        return (growth_.magnitude() <= gk_TwoDoubles(kLastGrowth) * t_).all();
    }
    gk_TwoDoubles squares() const {
        const gk_TwoDoubles alongX = x_ * p_;
        const gk_TwoDoubles alongY = y_ * q_;
        const gk_TwoDoubles depth = t_ - small2_;
        return depth * depth * (alongX * alongX + alongY * alongY);
    }

private:
    gk_TwoDoubles x_;
    gk_TwoDoubles y_;
    gk_TwoDoubles a_;
    gk_TwoDoubles b_;
    gk_TwoDoubles focus2_;
    gk_TwoDoubles small2_;
    gk_TwoDoubles t_;
    gk_TwoDoubles p_; // 1 / (t + focus^2)
    gk_TwoDoubles q_; // 1 / t
    gk_TwoDoubles growth_;
};

} // namespace

bool gk_EllipseFrame::fourSquares(const gkVector<2>* points, std::array<double, 4>& squares) const {
    constexpr int kFewestSteps = 3; // asking after each takes longer, as the answer is hard to foresee
    constexpr int kMostSteps = 8;
    constexpr double kNearAxis = 0x1p-30;
    const double big = std::max(radiusX_, radiusY_);
    const double small = std::min(radiusX_, radiusY_);
    const gk_TwoDoubles nearAxis(kNearAxis * small);
    const auto local = [&](std::size_t i) {
        const gk_TwoDoubles co(axis_.cos);
        const gk_TwoDoubles si(axis_.sin);
        const gk_TwoDoubles center = gk_TwoOf(center_);
        const gk_TwoVectors d =
            gk_TwoVectors::of(gk_TwoOf(points[i]) - center, gk_TwoOf(points[i + 1]) - center);
        const gk_TwoDoubles x = (co * d.x + si * d.y).magnitude();
        const gk_TwoDoubles y = (co * d.y - si * d.x).magnitude();
        return radiusX_ < radiusY_ ? gk_TwoVectors{y, x} : gk_TwoVectors{x, y};
    };
    const gk_TwoVectors first = local(0);
    const gk_TwoVectors second = local(2);
    if (!((first.y >= nearAxis) & (second.y >= nearAxis)).all()) return false;
    // Side by side, since each step waits for its own roots and divisions.
    TwoSquares a(big, small, first);
    TwoSquares b(big, small, second);
    for (int step = 1; step <= kMostSteps; ++step) {
        a.step();
        b.step();
        if (step < kFewestSteps || !a.isDone() || !b.isDone()) continue;
        squares = {a.squares().first(), a.squares().second(), b.squares().first(), b.squares().second()};
        return true;
    }
    return false;
}

double gk_EllipseFrame::sumOfSquares(const std::vector<gkVector<2>>& points) const {
    double sum = 0.0;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): set before it is read
    std::array<double, 4> squares;
    const auto ask = [&](const gkVector<2>* four) {
        if (fourSquares(four, squares)) return;
        for (std::size_t i = 0; i < 4; ++i) {
            const double d = distance(four[i]);
            squares[i] = d * d;
        }
    };
    std::size_t begin = 0;
    for (; begin + 4 <= points.size(); begin += 4) {
        ask(&points[begin]);
        for (const double square : squares) sum += square;
    }
    if (begin == points.size()) return sum;
    std::array<gkVector<2>, 4> rest;
    for (std::size_t i = 0; i < 4; ++i) rest[i] = points[std::min(begin + i, points.size() - 1)];
    ask(rest.data());
    for (std::size_t i = 0; begin + i < points.size(); ++i) sum += squares[i];
    return sum;
}
