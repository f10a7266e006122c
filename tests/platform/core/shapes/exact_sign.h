// Exact rational evaluation of the turn of three points, for comparison.
#ifndef GK_TESTS_PLATFORM_CORE_SHAPES_EXACT_SIGN_H
#define GK_TESTS_PLATFORM_CORE_SHAPES_EXACT_SIGN_H

#include "platform/core/math/vector.h"

#include <cmath>

// Not our code, so not held to our warnings.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wshadow"
#include <boost/multiprecision/cpp_int.hpp>
#pragma GCC diagnostic pop

namespace exact {

using Integer = boost::multiprecision::cpp_int;

// value * 2^1074, an integer for every finite double.
inline Integer scaled(double value) {
    int exponent = 0;
    const double fraction = std::frexp(value, &exponent);
    const Integer mantissa(static_cast<long long>(std::ldexp(fraction, 53)));
    const int shift = exponent - 53 + 1074;
    return shift >= 0 ? Integer(mantissa << shift) : Integer(mantissa / (Integer(1) << -shift));
}

inline Integer determinant(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& c) {
    const Integer cx = scaled(c.x());
    const Integer cy = scaled(c.y());
    return (scaled(a.x()) - cx) * (scaled(b.y()) - cy) - (scaled(a.y()) - cy) * (scaled(b.x()) - cx);
}

inline int orientation(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& c) {
    return determinant(a, b, c).sign();
}

} // namespace exact

#endif
