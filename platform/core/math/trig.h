// Sine, cosine and arctangent in plain double operations, so that every compiler and C library gives the same
// bits.
#ifndef GK_PLATFORM_CORE_MATH_TRIG_H
#define GK_PLATFORM_CORE_MATH_TRIG_H

namespace gk_Trig {

struct SinCos {
    double sin;
    double cos;
};

// Both at most 1 ulp off for every finite argument; NaN for NaN and infinities. sinCos(0) is exactly (0, 1).
SinCos sinCos(double radians);

// Direction of (x, y), in (-pi, pi], at most 1 ulp off; exact multiples of pi/2 along the axes whatever the
// signs of the zeros, pi (never -pi) along the negative x axis, 0 for (0, 0), NaN with a NaN. A zero result is
// always +0, also where a negative quotient underflows. Infinite coordinates count as equally long: (inf, inf)
// points at pi/4. Just below the negative x axis the result is the double -3.141592653589793, which lies above
// -pi.
double atan2(double y, double x);

} // namespace gk_Trig

#endif
