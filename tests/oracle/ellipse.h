// The ellipse with given moments, and the standard deviation.
#ifndef GK_TESTS_ORACLE_ELLIPSE_H
#define GK_TESTS_ORACLE_ELLIPSE_H

#include "platform/core/shapes/ellipse.h"
#include "tests/oracle/inertia.h"

#include <cmath>

namespace oracle {

inline double eighthRoot(double v) { return std::sqrt(std::sqrt(std::sqrt(v))); }

inline gkEllipse ellipseOfMoments(const Inertia& d) {
    const gkRadian theta = gkVector<2>(d.xx - d.yy, 2.0 * d.xy).angle() / 2.0;
    const gkMatrix<2> forth(theta, theta, 1.0, 1.0);
    const gkMatrix<2> back(-theta, -theta, 1.0, 1.0);
    const gkMatrix<2> diagonal = back * gkMatrix<2>(d.xx, d.xy, d.xy, d.yy) * forth;
    const double l1 = std::fabs(diagonal.element(0, 0));
    const double l2 = std::fabs(diagonal.element(1, 1));
    if (gfRealEq(l1, 0.0, 1e-12) || gfRealEq(l2, 0.0, 1e-12)) throw Refusal{"Singular"};
    const double piSquared = 9.869604401089358;
    const gkVector<2> radii(eighthRoot(16.0 * (l1 * l1 * l1) / (piSquared * l2)),
                            eighthRoot(16.0 * (l2 * l2 * l2) / (piSquared * l1)));
    return gkEllipse(gkEllipse::gkEllipseGeom(gkPoint(d.center), radii, theta, false, false));
}

// Population form: divided by the number of values.
inline double stdDev(const std::vector<double>& values) {
    double sum = 0.0;
    for (const double v : values) sum += v;
    const double mean = sum / static_cast<double>(values.size());
    double squares = 0.0;
    for (const double v : values) squares += (v - mean) * (v - mean);
    return std::sqrt(squares / static_cast<double>(values.size()));
}

} // namespace oracle

#endif
