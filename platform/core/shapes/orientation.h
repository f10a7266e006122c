// The exact turn of three points: the sign every hull decision rests on.
#ifndef GK_PLATFORM_CORE_SHAPES_ORIENTATION_H
#define GK_PLATFORM_CORE_SHAPES_ORIENTATION_H

#include "platform/core/math/vector.h"

#include <cmath>

// The certain answers of gk_Orientation, and the exact computation for the rest.
namespace gk_OrientationSteps {

// 4u with u = 2^-53, the unit roundoff.
constexpr double kFilterFactor = 0x1p-51;
// Below this sum of magnitudes the filter does not answer: a product may have lost bits to underflow.
constexpr double kFilterSmallest = 0x1p-900;

// The sign of the determinant where double arithmetic is certain of it, else 0 for "not known".
//
// Proof. Let x1 .. y2 be the rounded differences and l, r their rounded products. Rounding to nearest gives
// true = computed * (1 + d), |d| <= u, for each subtraction (those never underflow) and for each product but
// for an underflow of at most 2^-1075. So the true products differ from l and r by at most (3u + 3u^2 + u^3)
// (|l| + |r|) + 2^-1073 together. With s the rounded |l| + |r|, |l| + |r| <= (1 + u) s. The computed q = l - r
// has the sign of the exact l - r, whose magnitude is at least (1 - u) |q|. The sign of q is therefore right
// when (1 - u) |q| > (3u + 3u^2 + u^3)(1 + u) s + 2^-1073. From |q| > 4u s, s >= 2^-900 this follows: 4u (1 -
// u) - (3u + 3u^2 + u^3)(1 + u) > u / 2, and u / 2 * s >= 2^-954. The product 4u * s is exact. An overflow
// makes s infinite or NaN, and then no comparison holds.
inline int filtered(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& c) {
    const double left = (a.x() - c.x()) * (b.y() - c.y());
    const double right = (a.y() - c.y()) * (b.x() - c.x());
    const double sum = std::fabs(left) + std::fabs(right);
    const double det = left - right;
    if (!(sum >= kFilterSmallest) || !(std::fabs(det) > kFilterFactor * sum)) return 0;
    return det > 0.0 ? 1 : -1;
}

// The sign, exact for all finite coordinates.
int exact(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& c);

} // namespace gk_OrientationSteps

// +1 when a, b, c turn left (counter-clockwise), -1 when they turn right, 0 when they are collinear: the sign
// of the exact determinant (a - c) x (b - c). All coordinates must be finite.
inline int gk_Orientation(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& c) {
    const int sign = gk_OrientationSteps::filtered(a, b, c);
    return sign != 0 ? sign : gk_OrientationSteps::exact(a, b, c);
}

#endif
