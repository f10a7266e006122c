#include "platform/core/shapes/orientation.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace {

// value + error is the exact result of the operation it is named after.
struct Exact {
    double value;
    double error;
};

// Knuth's two-sum, for a difference.
Exact twoDifference(double a, double b) {
    const double value = a - b;
    const double bVirtual = a - value;
    const double aVirtual = value + bVirtual;
    return {value, (a - aVirtual) + (bVirtual - b)};
}

// Dekker's product of the halves that Veltkamp's splitting gives.
Exact twoProduct(double a, double b) {
    constexpr double kSplitter = 134217729.0; // 2^27 + 1
    const double aBig = kSplitter * a;
    const double bBig = kSplitter * b;
    const double aHigh = aBig - (aBig - a);
    const double bHigh = bBig - (bBig - b);
    const double aLow = a - aHigh;
    const double bLow = b - bHigh;
    const double value = a * b;
    return {value, aLow * bLow - (((value - aHigh * bHigh) - aLow * bHigh) - aHigh * bLow)};
}

int signOfDifference(double a, double b) { return a > b ? 1 : (a < b ? -1 : 0); }

// Between these magnitudes (or at zero) no product of two values overflows, nor does its rounding error
// underflow: the last bit of a product is at least 2^(2 (-450 - 52)).
bool isModerate(double value) {
    const double size = std::fabs(value);
    return size == 0.0 || (size >= 0x1p-450 && size <= 0x1p450);
}

// An integer wide enough for sums of products of any two finite doubles, in units of 2^-2148.
class WideSum {
public:
    // Adds sign * a * b.
    void addProduct(double a, double b, int sign) {
        const Parts p = parts(a);
        const Parts q = parts(b);
        const int signed1 = sign * p.sign * q.sign;
        const int bit = p.exponent + q.exponent;
        addShifted(p.low * q.low, bit, signed1);
        addShifted(p.low * q.high, bit + 32, signed1);
        addShifted(p.high * q.low, bit + 32, signed1);
        addShifted(p.high * q.high, bit + 64, signed1);
    }

    // Carries are settled once, here: each addition put less than 2^32 into a digit, so 64 bits hold all of
    // them.
    int sign() const {
        std::int64_t carry = 0;
        bool anyDigit = false;
        for (const std::int64_t digit : digits_) {
            const std::int64_t value = digit + carry;
            const std::int64_t rest = value & kDigitMask;
            anyDigit = anyDigit || rest != 0;
            carry = (value - rest) / kDigitBase;
        }
        if (carry < 0) return -1;
        return anyDigit ? 1 : 0;
    }

private:
    static constexpr std::int64_t kDigitBase = std::int64_t{1} << 32;
    static constexpr std::int64_t kDigitMask = kDigitBase - 1;

    // (high * 2^32 + low) * 2^exponent in units of 2^-1074.
    struct Parts {
        std::uint64_t low;
        std::uint64_t high;
        int exponent;
        int sign;
    };

    static Parts parts(double value) {
        std::uint64_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        const int biased = static_cast<int>((bits >> 52) & 0x7ff);
        std::uint64_t mantissa = bits & ((std::uint64_t{1} << 52) - 1);
        if (biased != 0) mantissa |= std::uint64_t{1} << 52;
        return {mantissa & 0xffffffffu, mantissa >> 32, biased == 0 ? 0 : biased - 1,
                (bits >> 63) != 0 ? -1 : 1};
    }

    void addShifted(std::uint64_t value, int bit, int sign) {
        const auto digit = static_cast<std::size_t>(bit / 32);
        const int shift = bit % 32;
        const std::uint64_t low = (value & 0xffffffffu) << shift;
        const std::uint64_t high = (value >> 32) << shift;
        add(digit, low & 0xffffffffu, sign);
        add(digit + 1, low >> 32, sign);
        add(digit + 1, high & 0xffffffffu, sign);
        add(digit + 2, high >> 32, sign);
    }

    void add(std::size_t digit, std::uint64_t value, int sign) {
        digits_[digit] += sign * static_cast<std::int64_t>(value);
    }

    // Bits up to 2 * 2045 + 106 are used, then room for the carry of six terms.
    std::array<std::int64_t, 134> digits_{};
};

} // namespace

namespace gk_OrientationSteps {

// Shewchuk, Adaptive Precision Floating-Point Arithmetic and Fast Robust Geometric Predicates (1997), gives the
// error-free transformations. Where all four differences are exact - lattice points, close neighbours - two
// products remain to be compared, and since rounding is monotone their rounded values decide unless they are
// equal; then the rounding errors do. All other cases expand the determinant into six products of coordinates
// in integers: one plain path that neither overflows nor underflows.
int exact(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& c) {
    const Exact ax = twoDifference(a.x(), c.x());
    const Exact ay = twoDifference(a.y(), c.y());
    const Exact bx = twoDifference(b.x(), c.x());
    const Exact by = twoDifference(b.y(), c.y());
    // An overflown difference has an error of NaN, so it does not pass here.
    const bool areExact = ax.error == 0.0 && ay.error == 0.0 && bx.error == 0.0 && by.error == 0.0;
    if (areExact && isModerate(ax.value) && isModerate(ay.value) && isModerate(bx.value) &&
        isModerate(by.value)) {
        const Exact left = twoProduct(ax.value, by.value);
        const Exact right = twoProduct(ay.value, bx.value);
        const int sign = signOfDifference(left.value, right.value);
        return sign != 0 ? sign : signOfDifference(left.error, right.error);
    }
    WideSum sum;
    sum.addProduct(a.x(), b.y(), 1);
    sum.addProduct(a.y(), b.x(), -1);
    sum.addProduct(b.x(), c.y(), 1);
    sum.addProduct(b.y(), c.x(), -1);
    sum.addProduct(c.x(), a.y(), 1);
    sum.addProduct(c.y(), a.x(), -1);
    return sum.sign();
}

} // namespace gk_OrientationSteps
