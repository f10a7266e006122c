// The elliptic conic nearest to points in the algebraic sense.
#ifndef GK_PLATFORM_CORE_FIT_CONIC_FIT_H
#define GK_PLATFORM_CORE_FIT_CONIC_FIT_H

#include "platform/core/math/vector.h"

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

// The conic that minimizes the sum of its squared values at `points` under 4 xx yy - xy^2 = 1, up to a factor.
//
// The points should be centred and of unit spread in both directions: the minimum does not depend on that (an
// affine map multiplies the constraint by a constant), its rounding errors do. Not an ellipse, or NaN, when the
// points determine none.
gk_Conic gk_FitConic(const std::vector<gkVector<2>>& points);

#endif
