/// \file
/// Pseudo-random numbers that are the same on every platform.
#ifndef GK_PLATFORM_CORE_MATH_RANDOM_H
#define GK_PLATFORM_CORE_MATH_RANDOM_H

#include "platform/export.h"

#include <cstdint>

/// A generator of uniformly distributed doubles, fixed for ever: equal seeds give equal sequences on every
/// platform.
///
/// For choices and test data, not for secrets. A copy continues the sequence from the same place on its own.
/// One generator must not be used by two threads at once. Nothing is thrown; the period is 2^64 numbers.
///
/// Source: SplitMix64, Steele, Lea and Flood, Fast Splittable Pseudorandom Number Generators, 2014: a 64-bit
/// counter that starts at the seed and advances by 0x9e3779b97f4a7c15, mixed by z ^= z >> 30, z *=
/// 0xbf58476d1ce4e5b9, z ^= z >> 27, z *= 0x94d049bb133111eb, z ^= z >> 31, modulo 2^64. The upper 53 bits are
/// the number.
class GKCNTR_API gkRandomUniform {
public:
    /// The generator with this seed, taken modulo 2^32 so that it means the same where `long` has 64 bits.
    explicit gkRandomUniform(unsigned long seed);

    /// The next number, a multiple of 2^-53 in [0, 1).
    double next();

    /// The next number in [a, b): a + (b - a) * next(), and never b itself unless a == b, which gives a.
    ///
    /// Where the sum would round to b, the nearest double on the side of a stands for it. With a > b the
    /// numbers are in (b, a]. An interval longer than the greatest double is drawn from correctly; infinite
    /// ends that differ, and NaN, give NaN. Every call takes one step of the sequence, whatever the ends.
    double next(double a, double b);

private:
    std::uint64_t state_;
};

#endif
