// Area, centroid and second moments of a polygon in exact rational arithmetic.
#ifndef GK_TESTS_ORACLE_EXACT_MOMENTS_H
#define GK_TESTS_ORACLE_EXACT_MOMENTS_H

#include "tests/oracle/oracle.h"

#include <cmath>
#include <limits>

// Not our code, so not held to our warnings.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wshadow"
#ifndef __clang__
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <boost/multiprecision/cpp_int.hpp>
#pragma GCC diagnostic pop

namespace oracle {

using Rational = boost::multiprecision::cpp_rational;

struct ExactPoint {
    Rational x;
    Rational y;
};

inline ExactPoint exactPoint(const gkVector<2>& p) { return {Rational(p.x()), Rational(p.y())}; }

struct ExactMoments {
    Rational area; // signed: positive counter-clockwise
    ExactPoint centroid;
    Rational xx; // central, over the signed area
    Rational yy;
    Rational xy;
};

inline Rational exactCross(const ExactPoint& a, const ExactPoint& b) { return a.x * b.y - a.y * b.x; }

// Calls add(p, q, cross(p, q)) for every edge, with `origin` as the point all coordinates are taken from.
template <class Add> void overExactEdges(const Points& points, const ExactPoint& origin, Add add) {
    for (const gkLineSeg& edge : segments(points, true)) {
        const ExactPoint p{Rational(edge.p1().x()) - origin.x, Rational(edge.p1().y()) - origin.y};
        const ExactPoint q{Rational(edge.p2().x()) - origin.x, Rational(edge.p2().y()) - origin.y};
        add(p, q, exactCross(p, q));
    }
}

inline Rational exactSignedArea(const Points& points) {
    Rational doubled = 0;
    overExactEdges(points, {0, 0},
                   [&](const ExactPoint&, const ExactPoint&, const Rational& w) { doubled += w; });
    return doubled / 2;
}

// The area must not be zero.
inline ExactMoments exactMoments(const Points& points) {
    ExactMoments m;
    m.area = exactSignedArea(points);
    Rational sx = 0;
    Rational sy = 0;
    overExactEdges(points, {0, 0}, [&](const ExactPoint& p, const ExactPoint& q, const Rational& w) {
        sx += w * (p.x + q.x);
        sy += w * (p.y + q.y);
    });
    m.centroid = {sx / (6 * m.area), sy / (6 * m.area)};
    overExactEdges(points, m.centroid, [&](const ExactPoint& p, const ExactPoint& q, const Rational& w) {
        m.xx += w * (p.x * p.x + p.x * q.x + q.x * q.x);
        m.yy += w * (p.y * p.y + p.y * q.y + q.y * q.y);
        m.xy += w * (p.x * q.y + 2 * p.x * p.y + 2 * q.x * q.y + q.x * p.y);
    });
    m.xx /= 12;
    m.yy /= 12;
    m.xy /= 24;
    return m;
}

// |computed - exact| rounded to a double; infinite for a value that is no number.
inline double errorOf(double computed, const Rational& exact) {
    if (!std::isfinite(computed)) return std::numeric_limits<double>::infinity();
    const Rational difference = Rational(computed) - exact;
    return (difference < 0 ? Rational(-difference) : difference).convert_to<double>();
}

} // namespace oracle

#endif
