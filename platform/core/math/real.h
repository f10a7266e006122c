/// \file
/// Comparisons and rounding of real numbers.
#ifndef GK_PLATFORM_CORE_MATH_REAL_H
#define GK_PLATFORM_CORE_MATH_REAL_H

#include "platform/export.h"

/// True when `a` and `b` are equal or differ by at most `eps` (an absolute difference, the bound included).
///
/// Equal infinities are equal; NaN equals nothing. The difference is the rounded one of double arithmetic, so
/// beside values far larger than `eps` the bound is only as sharp as their last place. Never throws.
GKCNTR_API bool gfRealEq(double a, double b, double eps);

/// The greatest integer not above `value`, as a `long`.
///
/// A value beyond the range of a 32-bit integer gives that range's nearest end and NaN gives 0, on every
/// platform.
GKCNTR_API long gfIFloor(double value);

#endif
