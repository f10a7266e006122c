#include "platform/core/shapes/ellipse.h"

#include "platform/core/math/trig.h"
#include "platform/core/shapes/ellipse_frame.h"

#include <cmath>

namespace {

constexpr double kPi = 3.141592653589793;

double share(double coordinate, double radius) {
    return coordinate == 0.0 && radius == 0.0 ? 0.0 : coordinate / radius;
}

} // namespace

double gkEllipse::area() const { return kPi * std::fabs(geom_.radii.x() * geom_.radii.y()); }

gkPoint gkEllipse::point(const gkRadian& parameter) const {
    const gk_Trig::SinCos at = gk_Trig::sinCos(parameter.toDouble());
    const double turn = geom_.isReversed ? -1.0 : 1.0;
    return gk_EllipseFrame(geom_).fromLocal({geom_.radii.x() * at.cos, geom_.radii.y() * (turn * at.sin)});
}

double gkEllipse::distToPoint(const gkPoint& p) const { return gk_EllipseFrame(geom_).distance(p.vector()); }

bool gkEllipse::within(const gkPoint& p) const {
    const gkVector<2> local = gk_EllipseFrame(geom_).toLocal(p.vector());
    const double x = share(local.x(), geom_.radii.x());
    const double y = share(local.y(), geom_.radii.y());
    const double square = x * x + y * y;
    if (!geom_.isHole) return square <= 1.0;
    const bool isThin = geom_.radii.x() == 0.0 || geom_.radii.y() == 0.0; // all curve, no inside
    return square >= 1.0 || (isThin && square <= 1.0);
}
