#include "cntr/triangle_inertia.h"

#include "platform/core/math/vector_ops.h"
#include "platform/core/shapes/line_ops.h"

namespace {

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
gk_InertiaPiece placed(const LocalInertia& local, const gkVector<2>& foot, const gkVector<2>& direction) {
    const double co = direction.x();
    const double si = direction.y();
    const double xx = local.xx * (co * co) - 2.0 * local.xy * si * co + local.yy * (si * si);
    const double yy = local.xx * (si * si) + 2.0 * local.xy * si * co + local.yy * (co * co);
    const double xy = local.xx * si * co + local.xy * (co * co - si * si) - local.yy * si * co;
    const gkVector<2> center =
        foot + gkVector<2>(co * local.centerX - si * local.centerY, si * local.centerX + co * local.centerY);
    return {local.area, xy, gk_TwoOf(center), gk_TwoDoubles(xx, yy)};
}

// The apex's foot falls within the edge q1-q2, up to the stated slack.
bool isBase(const gkLineSeg& edge, const gkVector<2>& apex) {
    return gk_LineOps::distToPoint(edge.line(), apex) >= gk_LineOps::distToPoint(edge, apex) - 1e-10;
}

gk_InertiaPiece inertiaOverBase(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& apex) {
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

} // namespace

// One of the three edges is a base in exact arithmetic. With NaN corners, or where rounding denies all three,
// the search must still end.
gk_InertiaPiece gk_TriangleInertia(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& q3) {
    if (isBase(gkLineSeg(q1, q2), q3)) return inertiaOverBase(q1, q2, q3);
    if (isBase(gkLineSeg(q2, q3), q1)) return inertiaOverBase(q2, q3, q1);
    if (isBase(gkLineSeg(q3, q1), q2)) return inertiaOverBase(q3, q1, q2);
    return gk_InertiaPiece();
}
