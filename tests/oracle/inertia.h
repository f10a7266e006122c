// Second moments of triangles, of their sums, and of polygons as fans of triangles.
#ifndef GK_TESTS_ORACLE_INERTIA_H
#define GK_TESTS_ORACLE_INERTIA_H

#include "platform/core/math/matrix.h"
#include "platform/core/shapes/point.h"
#include "tests/oracle/area.h"

namespace oracle {

struct Inertia {
    double area = 0.0;
    gkVector<2> center;
    double xx = 0.0;
    double yy = 0.0;
    double xy = 0.0;
};

// The triangle (-left, 0), (right, 0), (0, height) about its own centroid.
inline Inertia baseApexTriangle(double left, double right, double height) {
    Inertia m;
    m.area = (left + right) * height / 2.0;
    const double gx = (right - left) / 3.0;
    const double gy = height / 3.0;
    m.center = gkVector<2>(gx, gy);
    m.yy = (left + right) * (height * height * height) / 12.0 - m.area * (gy * gy);
    m.xx = (right * right * right + left * left * left) * height / 12.0 - m.area * (gx * gx);
    m.xy = (right * right - left * left) * (height * height) / 24.0 - m.area * gx * gy;
    return m;
}

// The direction of a base: the unit vector, or the cosine and sine of the angle where squares overflow or
// underflow and where there is no length.
inline gkVector<2> baseDirection(const gkVector<2>& base) {
    const bool isOrdinary = base.length() >= 1e-150 && base.length() <= 1e150;
    return isOrdinary ? base.unit() : gkVector<2>(1.0, base.angle());
}

// The local moments turned into the direction `unit` and moved to the foot of the apex.
inline Inertia rotatedIntoPlace(const Inertia& m, const gkVector<2>& foot, const gkVector<2>& unit) {
    const double co = unit.x();
    const double si = unit.y();
    Inertia r;
    r.area = m.area;
    r.center = foot + gkMatrix<2>(co, -si, si, co) * m.center;
    r.xx = m.xx * (co * co) - 2.0 * m.xy * si * co + m.yy * (si * si);
    r.yy = m.xx * (si * si) + 2.0 * m.xy * si * co + m.yy * (co * co);
    r.xy = m.xx * si * co + m.xy * (co * co - si * si) - m.yy * si * co;
    return r;
}

// An edge that holds the foot of the apex is the base; one of three does, but rounding or NaN may deny them
// all, and then the triangle counts for nothing.
inline Inertia triangleInertia(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& q3,
                               int edgesLeft = 3) {
    if (edgesLeft == 0) return Inertia();
    const gkLineSeg base(q1, q2);
    const gkLine line = base.line();
    if (!(line.distToPoint(q3) >= base.distToPoint(q3) - 1e-10))
        return triangleInertia(q2, q3, q1, edgesLeft - 1);
    const gkVector<2> foot = line.proj(q3);
    const double left = gkPoint(foot).distance(gkPoint(q1));
    const double right = gkPoint(foot).distance(gkPoint(q2));
    const double height = gkPoint(foot).distance(gkPoint(q3));
    Inertia local = baseApexTriangle(left, right, height);
    const bool counterClockwise = (q2 - q1).cross(q3 - q1) >= 0.0;
    if (!counterClockwise) {
        local.area = -local.area;
        local.center = gkVector<2>(local.center.x(), -local.center.y());
        local.xy = -local.xy;
    }
    return rotatedIntoPlace(local, foot, baseDirection(q2 - q1));
}

inline Inertia sum(const Inertia& a, const Inertia& b) {
    if (a.area == 0.0 || a.area != a.area) return b;
    if (b.area == 0.0) return a;
    Inertia s;
    s.area = a.area + b.area;
    if (std::fabs(s.area) > 1e-16) s.center = (b.area * b.center + a.area * a.center) / s.area;
    const gkVector<2> da = s.center - a.center;
    const gkVector<2> db = s.center - b.center;
    double wa = a.area;
    double wb = b.area;
    double sa = 1.0;
    double sb = 1.0;
    if (a.area * b.area > 0.0) {
        wa = std::fabs(a.area);
        wb = std::fabs(b.area);
    }
    if (a.area * b.area < 0.0) {
        if (a.area > b.area)
            sb = -1.0;
        else
            sa = -1.0;
    }
    s.xx = sa * a.xx + wa * (da.x() * da.x()) + sb * b.xx + wb * (db.x() * db.x());
    s.yy = sa * a.yy + wa * (da.y() * da.y()) + sb * b.yy + wb * (db.y() * db.y());
    s.xy = sa * a.xy + wa * da.x() * da.y() + sb * b.xy + wb * db.x() * db.y();
    return s;
}

inline Inertia polygonInertia(const Points& points) {
    if (points.size() < 3) return Inertia();
    const gkVector<2> hub = centroid(points);
    std::vector<Inertia> fan;
    double total = 0.0;
    for (const gkLineSeg& edge : segments(points, true)) {
        fan.push_back(triangleInertia(hub, edge.p1(), edge.p2()));
        total += fan.back().area;
    }
    const double mean = total / static_cast<double>(fan.size());
    const double t = mean > 0.0 ? 1e-6 : -1e-6;
    Inertia all;
    std::vector<bool> done(fan.size(), false);
    for (int pass = 1; pass <= 3; ++pass) {
        for (std::size_t i = 0; i < fan.size(); ++i) {
            const double a = fan[i].area;
            const bool first = a > mean || (mean < 0.0 && a < mean);
            const bool second = a > t || (t < 0.0 && a < t);
            if (done[i] || (pass == 1 && !first) || (pass == 2 && !second)) continue;
            all = sum(all, fan[i]);
            done[i] = true;
        }
    }
    return all;
}

} // namespace oracle

#endif
