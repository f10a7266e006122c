#include "platform/core/math/trig.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

// How the bounds come about and where the constants are from: docs/numerics.md.

namespace {

// An unevaluated sum; lo is below half an ulp of hi.
struct Pair {
    double hi;
    double lo;
};

// Exact for any order of magnitudes (Knuth, The Art of Computer Programming 2, 4.2.2).
Pair twoSum(double a, double b) {
    const double sum = a + b;
    const double fromB = sum - a;
    return {sum, (a - (sum - fromB)) + (b - fromB)};
}

// Exact when |a| >= |b| or a is 0 (Dekker, 1971).
Pair fastTwoSum(double a, double b) {
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

// The upper 26 bits, for factors whose products must be exact; |a| stays below 2^996.
double upperHalf(double a) {
    const double scaled = a * 134217729.0; // 2^27 + 1
    return scaled - (scaled - a);
}

// Exact unless the tail underflows (Dekker, 1971); a fused multiply-add would not be the same everywhere.
Pair twoProduct(double a, double b) {
    const double product = a * b;
    const double a1 = upperHalf(a);
    const double a2 = a - a1;
    const double b1 = upperHalf(b);
    const double b2 = b - b1;
    return {product, ((a1 * b1 - product) + a1 * b2 + a2 * b1) + a2 * b2};
}

constexpr Pair kHalfPi = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
constexpr Pair kPi = {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53};

// radians = quadrant * pi/2 + rest, |rest| <= pi/4 up to rounding.
struct Reduced {
    unsigned quadrant;
    Pair rest;
};

// Below this the multiple of pi/2 has 20 bits, so its products with the 33-bit parts of pi/2 are exact.
constexpr double kFewTurns = 0x1p20;

// Cody and Waite, 1980. The parts reach down to 2^-156: no double lies nearer than about 2^-62 to a multiple of
// pi/2.
Reduced reduceFewTurns(double radians) {
    constexpr double part1 = 0x1.921fb544p+0;
    constexpr double part2 = 0x1.0b4611a6p-34;
    constexpr double part3 = 0x1.3198a2ep-69;
    constexpr double part4 = 0x1.b839a252049c1p-104;
    const int quadrant = static_cast<int>(radians * 0x1.45f306dc9c883p-1 + (radians < 0.0 ? -0.5 : 0.5));
    const double turns = quadrant;
    // The first difference is exact. Where one of the others cancels, the error terms before it are 0.
    const Pair second = twoSum(radians - turns * part1, -(turns * part2));
    const Pair third = twoSum(second.hi, -(turns * part3));
    const double tail = (second.lo + third.lo) - turns * part4;
    return {static_cast<unsigned>(quadrant) & 3U, fastTwoSum(third.hi, tail)};
}

// 2/pi in base 2^32, the first two digits being those above the binary point: enough for an exponent of 1023.
constexpr std::uint32_t kTwoOverPi[] = {
    0,           0,           0xa2f9836eU, 0x4e441529U, 0xfc2757d1U, 0xf534ddc0U, 0xdb629599U, 0x3c439041U,
    0xfe5163abU, 0xdebbc561U, 0xb7246e3aU, 0x424dd2e0U, 0x06492eeaU, 0x09d1921cU, 0xfe1deb1cU, 0xb129a73eU,
    0xe88235f5U, 0x2ebb4484U, 0xe99c7026U, 0xb45f7e41U, 0x3991d639U, 0x835339f4U, 0x9c845f8bU, 0xbdf9283bU,
    0x1ff897ffU, 0xde05980fU, 0xef2f118bU, 0x5a0a6d1fU, 0x6d367ecfU, 0x27cb09b7U, 0x4f463f66U, 0x9e5fea2dU,
    0x7527bac7U, 0xebe5f17bU, 0x3d0739f7U, 0x8a5292eaU, 0x6bfb5fb1U, 0x1f8d5d08U, 0x56033046U,
};

constexpr int kDigits = 7;

// radians * 2/pi modulo 4 in units of 2^-222, least digit first.
struct Quarters {
    std::uint32_t digit[kDigits];
};

// Payne and Hanek, 1983: digits of 2/pi that give multiples of 4 are left out, and those below 2^-138 of the
// product.
Quarters quartersOf(double radians) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &radians, sizeof bits);
    const int exponent = static_cast<int>((bits >> 52) & 0x7ffU) - 1075;
    const std::uint64_t mantissa = (bits & 0xfffffffffffffU) | 0x10000000000000U;
    const std::uint64_t factor[2] = {mantissa & 0xffffffffU, mantissa >> 32};
    const int first = (exponent + 62) / 32;
    const int shift = 30 + exponent - 32 * (first - 1);

    Quarters product = {};
    for (int i = 0; i < 2; ++i) {
        std::uint64_t carry = 0;
        for (int j = i; j < kDigits; ++j) {
            const std::uint64_t digit = kTwoOverPi[first + kDigits - 1 - (j - i)];
            carry += product.digit[j] + factor[i] * digit;
            product.digit[j] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    }
    for (int j = kDigits - 1; j >= 0; --j) {
        const std::uint64_t below = j > 0 ? product.digit[j - 1] : 0;
        const std::uint64_t both = (static_cast<std::uint64_t>(product.digit[j]) << 32) | below;
        product.digit[j] = static_cast<std::uint32_t>((both << shift) >> 32);
    }
    return product;
}

// The fraction's magnitude as a double pair: the first digits that are not all zero carry more than 80 bits.
Pair fractionOf(const Quarters& quarters) {
    int top = kDigits - 1;
    double unit = 0x1p-62;
    while (top > 3 && quarters.digit[top] == 0) {
        --top;
        unit *= 0x1p-32;
    }
    const Pair upper = fastTwoSum(quarters.digit[top] * 0x1p32, quarters.digit[top - 1]);
    const double lower = quarters.digit[top - 2] * 0x1p-32 + quarters.digit[top - 3] * 0x1p-64;
    const Pair sum = fastTwoSum(upper.hi, upper.lo + lower);
    return {sum.hi * unit, sum.lo * unit};
}

// For radians >= kFewTurns.
Reduced reduceManyTurns(double radians) {
    Quarters quarters = quartersOf(radians);
    std::uint32_t& top = quarters.digit[kDigits - 1];
    unsigned quadrant = top >> 30;
    top &= 0x3fffffffU;
    const bool past = top >= 0x20000000U; // nearer to the next multiple: the rest is negative
    if (past) {
        std::uint64_t carry = 1;
        for (std::uint32_t& digit : quarters.digit) {
            carry += static_cast<std::uint32_t>(~digit);
            digit = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        top &= 0x3fffffffU;
        quadrant = (quadrant + 1) & 3U;
    }
    const Pair fraction = fractionOf(quarters);
    const Pair product = twoProduct(fraction.hi, kHalfPi.hi);
    const double tail = product.lo + (fraction.hi * kHalfPi.lo + fraction.lo * kHalfPi.hi);
    const Pair rest = fastTwoSum(product.hi, tail);
    return {quadrant, past ? Pair{-rest.hi, -rest.lo} : rest};
}

// Minimax polynomials for |rest| <= pi/4, found by an exchange algorithm; relative errors 2^-58 and 2^-64.
gk_Trig::SinCos inFirstOctants(const Pair& rest) {
    const double x = rest.hi;
    const double z = x * x;
    const double s =
        -0x1.5555555555549p-3 +
        z * (0x1.111111110f87ap-7 +
             z * (-0x1.a01a019c11992p-13 +
                  z * (0x1.71de3577b679p-19 + z * (-0x1.ae5e663a786cdp-26 + z * 0x1.5d9300f59df63p-33))));
    const double c =
        0x1.555555555554cp-5 +
        z * (-0x1.6c16c16c1517ep-10 +
             z * (0x1.a01a019cb1bd6p-16 +
                  z * (-0x1.27e4f809f0634p-22 + z * (0x1.1ee9ebe902d2ep-29 + z * -0x1.8fae9c603b4b3p-37))));
    const double half = 0.5 * z;
    const Pair leading = fastTwoSum(1.0, -half);
    const double sine = x + (x * z * s + rest.lo * (1.0 - half));
    const double cosine = leading.hi + (leading.lo + (z * z * c - x * rest.lo));
    return {sine, cosine};
}

// Selections instead of branches: the quadrants of a sequence of angles cannot be predicted.
gk_Trig::SinCos inQuadrant(const Reduced& angle) {
    constexpr double signs[] = {1.0, 1.0, -1.0, -1.0, 1.0};
    const gk_Trig::SinCos rest = inFirstOctants(angle.rest);
    const bool swap = (angle.quadrant & 1U) != 0;
    return {(swap ? rest.cos : rest.sin) * signs[angle.quadrant],
            (swap ? rest.sin : rest.cos) * signs[angle.quadrant + 1]};
}

// atan(i / 32).
constexpr Pair kArcTangent[] = {
    {0x0.0p+0, 0x0.0p+0},
    {0x1.ffd55bba97625p-6, -0x1.5ec431444912cp-60},
    {0x1.ff55bb72cfdeap-5, -0x1.c934d86d23f1dp-60},
    {0x1.7ee182602f10fp-4, -0x1.cfb654c0c3d98p-58},
    {0x1.fd5ba9aac2f6ep-4, -0x1.cd37686760c17p-59},
    {0x1.3d6eee8c6626cp-3, 0x1.61a3b0ce9281bp-57},
    {0x1.7b97b4bce5b02p-3, 0x1.347b0b4f881cap-58},
    {0x1.b90d7529260a2p-3, 0x1.17b10d2e0e5abp-61},
    {0x1.f5b75f92c80ddp-3, 0x1.8ab6e3cf7afbdp-57},
    {0x1.18bf5a30bf178p-2, 0x1.30ca4748b1bf9p-57},
    {0x1.362773707ebccp-2, -0x1.963a544b672d8p-57},
    {0x1.530ad9951cd4ap-2, -0x1.2566480884082p-57},
    {0x1.6f61941e4def1p-2, -0x1.c63aae6f6e918p-56},
    {0x1.8b24d394a1b25p-2, 0x1.b6d0ba3748fa8p-56},
    {0x1.a64eec3cc23fdp-2, -0x1.24dec1b50b7ffp-56},
    {0x1.c0db4c94ec9f0p-2, -0x1.cc1ce70934c34p-56},
    {0x1.dac670561bb4fp-2, 0x1.a2b7f222f65e2p-56},
    {0x1.f40dd0b541418p-2, -0x1.a3992dc382a23p-57},
    {0x1.0657e94db30d0p-1, -0x1.d5b495f6349e6p-56},
    {0x1.1255d9bfbd2a9p-1, -0x1.2bdaee1c0ee35p-58},
    {0x1.1e00babdefeb4p-1, -0x1.928df287a668fp-58},
    {0x1.2958e59308e31p-1, -0x1.09e73b0c6c087p-56},
    {0x1.345f01cce37bbp-1, 0x1.1021137c71102p-55},
    {0x1.3f13fb89e96f4p-1, 0x1.ecf8b492644f0p-56},
    {0x1.4978fa3269ee1p-1, 0x1.2419a87f2a458p-56},
    {0x1.538f57b89061fp-1, -0x1.1bb74abda520cp-55},
    {0x1.5d58987169b18p-1, 0x1.0028e4bc5e7cap-57},
    {0x1.66d663923e087p-1, -0x1.6ea6febe8bbbap-56},
    {0x1.700a7c5784634p-1, -0x1.8c34d25aadef6p-56},
    {0x1.78f6bbd5d315ep-1, 0x1.406a089803740p-55},
    {0x1.819d0b7158a4dp-1, -0x1.bf76229d3b917p-56},
    {0x1.89ff5ff57f1f8p-1, -0x1.55b9a5e177a1bp-55},
    {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55},
};

// An angle is base.hi + base.lo + sign * arctangent of a ratio in [0, 1].
struct Octant {
    Pair base;
    double sign;
};

// By (|y| > |x|) * 2 + (x < 0).
constexpr Octant kOctants[] = {{{0.0, 0.0}, 1.0}, {kPi, -1.0}, {kHalfPi, -1.0}, {kHalfPi, 1.0}};

// 0 <= min <= max.
double angleIn(const Octant& octant, double min, double max) {
    const Pair base = octant.base;
    const double sign = octant.sign;
    const double ratio = min / max;
    if (ratio < 0x1p-30)
        return base.hi + (base.lo + sign * ratio); // the cubic term is below 2^-61 of the ratio

    if (max > 0x1p500 || max < 0x1p-500) {
        const double scale = max > 1.0 ? 0x1p-600 : 0x1p600;
        min *= scale;
        max *= scale;
    }
    // atan(min/max) = atan(c) + atan(t), t = (min - c max) / (max + c min), |t| <= 1/64; the rounding of t is
    // made good.
    const int index = static_cast<int>(ratio * 32.0 + 0.5);
    const double c = index * 0.03125;
    const Pair subtracted = twoProduct(c, max);
    const Pair above = twoSum(min, -subtracted.hi);
    const Pair below = fastTwoSum(max, c * min);
    const double t = above.hi / below.hi;
    const Pair back = twoProduct(t, below.hi);
    const double missing = ((above.hi - back.hi) - back.lo) + ((above.lo - subtracted.lo) - t * below.lo);
    const double z = t * t;
    const double series = t * z * (-1.0 / 3.0 + z * (1.0 / 5.0 + z * (-1.0 / 7.0 + z * (1.0 / 9.0))));

    const Pair tabled = kArcTangent[index];
    const Pair start = fastTwoSum(base.hi, sign * tabled.hi);
    const Pair sum = fastTwoSum(start.hi, sign * t);
    const double small = sign * (series + missing * (1.0 / below.hi));
    return sum.hi + (sum.lo + (start.lo + (base.lo + sign * tabled.lo) + small));
}

} // namespace

namespace gk_Trig {

SinCos sinCos(double radians) {
    const double magnitude = std::fabs(radians);
    if (magnitude < 0x1p-27) return {radians, 1.0};
    if (magnitude <= 0.785) return inFirstOctants({radians, 0.0});
    if (magnitude < kFewTurns) return inQuadrant(reduceFewTurns(radians));
    if (!std::isfinite(radians)) return {radians - radians, radians - radians};
    const SinCos result = inQuadrant(reduceManyTurns(magnitude));
    return {radians < 0.0 ? -result.sin : result.sin, result.cos};
}

double atan2(double y, double x) {
    if (std::isnan(x) || std::isnan(y)) return x + y;
    const double ax = std::fabs(x);
    const double ay = std::fabs(y);
    double min = ax < ay ? ax : ay;
    double max = ax < ay ? ay : ax;
    if (max == 0.0) return 0.0;
    if (std::isinf(max)) {
        min = std::isinf(min) ? 1.0 : 0.0;
        max = 1.0;
    }
    const double angle = angleIn(kOctants[(ax < ay ? 2 : 0) + (x < 0.0 ? 1 : 0)], min, max);
    // Adding 0 turns -0 into +0: once in y, where it must not give -pi, and once in a result that underflowed.
    return std::copysign(angle, y + 0.0) + 0.0;
}

} // namespace gk_Trig
