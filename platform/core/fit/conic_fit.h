// The elliptic conic nearest to points in the algebraic sense.
#ifndef GK_PLATFORM_CORE_FIT_CONIC_FIT_H
#define GK_PLATFORM_CORE_FIT_CONIC_FIT_H

#include "platform/core/fit/fit_frame.h"

#include <vector>

// xx x^2 + xy x y + yy y^2 + x x + y y + one = 0.
struct gk_Conic {
    double xx;
    double xy;
    double yy;
    double x;
    double y;
    double one;
};

// The conic that minimizes the sum of its squared values at the points under 4 xx yy - xy^2 = 1, up to a
// factor, in the frame of the points: the minimum does not depend on the coordinates (an affine map multiplies
// the constraint by a constant), its rounding errors do. Not an ellipse, or NaN, when the points determine
// none.
gk_Conic gk_FitConic(const gk_FitFrame& frame, const std::vector<gkVector<2>>& points);

#endif
