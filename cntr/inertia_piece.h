// Area, centre and central second moments of a piece, laid out for sums over many.
#ifndef GK_CNTR_INERTIA_PIECE_H
#define GK_CNTR_INERTIA_PIECE_H

#include "platform/core/math/two_doubles.h"

#include <cmath>

// What gk_InertiaData holds. All zero by default.
struct gk_InertiaPiece {
    double area = 0.0;
    double xy = 0.0;
    gk_TwoDoubles center;
    gk_TwoDoubles squares; // xx and yy
};

// The sum about `center`, the pieces' own moments taken with the signs and their shifts with the weights.
inline gk_InertiaPiece gk_ShiftedSum(const gk_InertiaPiece& a, const gk_InertiaPiece& b, gk_TwoDoubles center,
                                     double sa, double sb, double wa, double wb) {
    const gk_TwoDoubles da = center - a.center;
    const gk_TwoDoubles db = center - b.center;
    const gk_TwoDoubles squares = gk_TwoDoubles(sa) * a.squares + gk_TwoDoubles(wa) * (da * da) +
                                  gk_TwoDoubles(sb) * b.squares + gk_TwoDoubles(wb) * (db * db);
    const double xy = sa * a.xy + wa * da.first() * da.second() + sb * b.xy + wb * db.first() * db.second();
    return {a.area + b.area, xy, center, squares};
}

// gk_InertiaData's operator+.
inline gk_InertiaPiece gk_Sum(const gk_InertiaPiece& a, const gk_InertiaPiece& b) {
    if (a.area == 0.0 || std::isnan(a.area)) return b;
    if (b.area == 0.0) return a;
    const double total = a.area + b.area;
    gk_TwoDoubles center;
    if (std::fabs(total) > 1e-16) {
        center = (gk_TwoDoubles(b.area) * b.center + gk_TwoDoubles(a.area) * a.center) / gk_TwoDoubles(total);
    }
    const double product = a.area * b.area;
    if (product > 0.0) return gk_ShiftedSum(a, b, center, 1.0, 1.0, std::fabs(a.area), std::fabs(b.area));
    // A hole against its outer piece: the smaller area is the one taken away, its weight keeps its sign.
    const bool isAway = product < 0.0;
    const double sa = isAway && !(a.area > b.area) ? -1.0 : 1.0;
    const double sb = isAway && a.area > b.area ? -1.0 : 1.0;
    return gk_ShiftedSum(a, b, center, sa, sb, a.area, b.area);
}

#endif
