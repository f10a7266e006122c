// Two doubles that go through the same operations side by side, in one register where the processor has such.
//
// Every operation is that of doubles, so a loop over twos has the bits of a loop over ones.
#ifndef GK_PLATFORM_CORE_MATH_TWO_DOUBLES_H
#define GK_PLATFORM_CORE_MATH_TWO_DOUBLES_H

#include "platform/core/math/vector.h"

#include <cmath>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>

// The outcome of a comparison for each of the two.
class gk_TwoBools {
public:
    gk_TwoBools() : bits_(_mm_setzero_pd()) {}
    gk_TwoBools(__m128d bits) : bits_(bits) {}
    __m128d mask() const { return bits_; }
    // Bit 0 tells of the first, bit 1 of the second.
    unsigned bits() const { return static_cast<unsigned>(_mm_movemask_pd(bits_)); }
    bool all() const { return _mm_movemask_pd(bits_) == 3; }
    bool any() const { return _mm_movemask_pd(bits_) != 0; }

    gk_TwoBools operator!() const { return _mm_xor_pd(bits_, _mm_castsi128_pd(_mm_set1_epi32(-1))); }
    friend gk_TwoBools operator&(gk_TwoBools a, gk_TwoBools b) { return _mm_and_pd(a.bits_, b.bits_); }
    friend gk_TwoBools operator|(gk_TwoBools a, gk_TwoBools b) { return _mm_or_pd(a.bits_, b.bits_); }

private:
    __m128d bits_;
};

class gk_TwoDoubles {
public:
    gk_TwoDoubles() : both_(_mm_setzero_pd()) {}
    gk_TwoDoubles(__m128d both) : both_(both) {}
    explicit gk_TwoDoubles(double each) : both_(_mm_set1_pd(each)) {}
    gk_TwoDoubles(double first, double second) : both_(_mm_set_pd(second, first)) {}

    double first() const { return _mm_cvtsd_f64(both_); }
    double second() const { return _mm_cvtsd_f64(_mm_unpackhi_pd(both_, both_)); }

    friend gk_TwoDoubles operator+(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_add_pd(a.both_, b.both_); }
    friend gk_TwoDoubles operator-(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_sub_pd(a.both_, b.both_); }
    friend gk_TwoDoubles operator*(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_mul_pd(a.both_, b.both_); }
    friend gk_TwoDoubles operator/(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_div_pd(a.both_, b.both_); }
    gk_TwoDoubles operator-() const { return _mm_xor_pd(both_, _mm_set1_pd(-0.0)); }

    friend gk_TwoBools operator<(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_cmplt_pd(a.both_, b.both_); }
    friend gk_TwoBools operator<=(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_cmple_pd(a.both_, b.both_); }
    friend gk_TwoBools operator>(gk_TwoDoubles a, gk_TwoDoubles b) { return b < a; }
    friend gk_TwoBools operator>=(gk_TwoDoubles a, gk_TwoDoubles b) { return b <= a; }

    gk_TwoDoubles magnitude() const { return _mm_andnot_pd(_mm_set1_pd(-0.0), both_); }
    gk_TwoDoubles root() const { return _mm_sqrt_pd(both_); }
    // The greater one; the other when this is NaN.
    gk_TwoDoubles orGreater(gk_TwoDoubles other) const { return _mm_max_pd(both_, other.both_); }
    // The lesser one; the other when this is NaN.
    gk_TwoDoubles orLess(gk_TwoDoubles other) const { return _mm_min_pd(both_, other.both_); }
    gk_TwoDoubles swapped() const { return _mm_shuffle_pd(both_, both_, 1); }
    // The value where the condition holds, +0 elsewhere.
    gk_TwoDoubles where(gk_TwoBools condition) const { return _mm_and_pd(condition.mask(), both_); }
    gk_TwoDoubles negatedUnless(gk_TwoBools condition) const {
        return _mm_xor_pd(both_, _mm_andnot_pd(condition.mask(), _mm_set1_pd(-0.0)));
    }
    static gk_TwoDoubles select(gk_TwoBools condition, gk_TwoDoubles yes, gk_TwoDoubles no) {
        return _mm_or_pd(_mm_and_pd(condition.mask(), yes.both_), _mm_andnot_pd(condition.mask(), no.both_));
    }
    // The first, and the second, ones of two.
    static gk_TwoDoubles firsts(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_unpacklo_pd(a.both_, b.both_); }
    static gk_TwoDoubles seconds(gk_TwoDoubles a, gk_TwoDoubles b) { return _mm_unpackhi_pd(a.both_, b.both_); }

private:
    __m128d both_;
};

#else

class gk_TwoBools {
public:
    gk_TwoBools() = default;
    gk_TwoBools(bool first, bool second) : first_(first), second_(second) {}
    bool first() const { return first_; }
    bool second() const { return second_; }
    unsigned bits() const { return (first_ ? 1u : 0u) + (second_ ? 2u : 0u); }
    bool all() const { return first_ && second_; }
    bool any() const { return first_ || second_; }

    gk_TwoBools operator!() const { return {!first_, !second_}; }
    friend gk_TwoBools operator&(gk_TwoBools a, gk_TwoBools b) {
        return {a.first_ && b.first_, a.second_ && b.second_};
    }
    friend gk_TwoBools operator|(gk_TwoBools a, gk_TwoBools b) {
        return {a.first_ || b.first_, a.second_ || b.second_};
    }

private:
    bool first_ = false;
    bool second_ = false;
};

class gk_TwoDoubles {
public:
    gk_TwoDoubles() = default;
    explicit gk_TwoDoubles(double each) : first_(each), second_(each) {}
    gk_TwoDoubles(double first, double second) : first_(first), second_(second) {}

    double first() const { return first_; }
    double second() const { return second_; }

    friend gk_TwoDoubles operator+(gk_TwoDoubles a, gk_TwoDoubles b) {
        return {a.first_ + b.first_, a.second_ + b.second_};
    }
    friend gk_TwoDoubles operator-(gk_TwoDoubles a, gk_TwoDoubles b) {
        return {a.first_ - b.first_, a.second_ - b.second_};
    }
    friend gk_TwoDoubles operator*(gk_TwoDoubles a, gk_TwoDoubles b) {
        return {a.first_ * b.first_, a.second_ * b.second_};
    }
    friend gk_TwoDoubles operator/(gk_TwoDoubles a, gk_TwoDoubles b) {
        return {a.first_ / b.first_, a.second_ / b.second_};
    }
    gk_TwoDoubles operator-() const { return {-first_, -second_}; }

    friend gk_TwoBools operator<(gk_TwoDoubles a, gk_TwoDoubles b) {
        return {a.first_ < b.first_, a.second_ < b.second_};
    }
    friend gk_TwoBools operator<=(gk_TwoDoubles a, gk_TwoDoubles b) {
        return {a.first_ <= b.first_, a.second_ <= b.second_};
    }
    friend gk_TwoBools operator>(gk_TwoDoubles a, gk_TwoDoubles b) { return b < a; }
    friend gk_TwoBools operator>=(gk_TwoDoubles a, gk_TwoDoubles b) { return b <= a; }

    gk_TwoDoubles magnitude() const { return {std::fabs(first_), std::fabs(second_)}; }
    gk_TwoDoubles root() const { return {std::sqrt(first_), std::sqrt(second_)}; }
    gk_TwoDoubles orGreater(gk_TwoDoubles other) const { return select(*this > other, *this, other); }
    gk_TwoDoubles orLess(gk_TwoDoubles other) const { return select(*this < other, *this, other); }
    gk_TwoDoubles swapped() const { return {second_, first_}; }
    gk_TwoDoubles where(gk_TwoBools condition) const { return select(condition, *this, gk_TwoDoubles()); }
    gk_TwoDoubles negatedUnless(gk_TwoBools condition) const { return select(condition, *this, -*this); }
    static gk_TwoDoubles select(gk_TwoBools condition, gk_TwoDoubles yes, gk_TwoDoubles no) {
        return {condition.first() ? yes.first_ : no.first_, condition.second() ? yes.second_ : no.second_};
    }
    static gk_TwoDoubles firsts(gk_TwoDoubles a, gk_TwoDoubles b) { return {a.first_, b.first_}; }
    static gk_TwoDoubles seconds(gk_TwoDoubles a, gk_TwoDoubles b) { return {a.second_, b.second_}; }

private:
    double first_ = 0.0;
    double second_ = 0.0;
};

#endif

// The coordinates of a vector, and back. Copied as a whole, which takes one load.
inline gk_TwoDoubles gk_TwoOf(const gkVector<2>& v) {
    static_assert(sizeof(gk_TwoDoubles) == sizeof v, "two doubles each");
    gk_TwoDoubles xy;
    std::memcpy(static_cast<void*>(&xy), &v, sizeof v);
    return xy;
}
inline gkVector<2> gk_VectorOf(gk_TwoDoubles xy) { return gkVector<2>(xy.first(), xy.second()); }

// Two vectors, their coordinates side by side.
struct gk_TwoVectors {
    gk_TwoDoubles x;
    gk_TwoDoubles y;

    // From the coordinates of each.
    static gk_TwoVectors of(gk_TwoDoubles first, gk_TwoDoubles second) {
        return {gk_TwoDoubles::firsts(first, second), gk_TwoDoubles::seconds(first, second)};
    }
    static gk_TwoVectors select(gk_TwoBools condition, const gk_TwoVectors& yes, const gk_TwoVectors& no) {
        return {gk_TwoDoubles::select(condition, yes.x, no.x), gk_TwoDoubles::select(condition, yes.y, no.y)};
    }

    gk_TwoDoubles dot(const gk_TwoVectors& other) const { return x * other.x + y * other.y; }
    gk_TwoDoubles cross(const gk_TwoVectors& other) const { return x * other.y - y * other.x; }

    // Where the condition does not hold, (0, 0).
    gk_TwoVectors where(gk_TwoBools condition) const { return {x.where(condition), y.where(condition)}; }

    gk_TwoVectors operator-() const { return {-x, -y}; }
    friend gk_TwoVectors operator+(const gk_TwoVectors& a, const gk_TwoVectors& b) {
        return {a.x + b.x, a.y + b.y};
    }
    friend gk_TwoVectors operator-(const gk_TwoVectors& a, const gk_TwoVectors& b) {
        return {a.x - b.x, a.y - b.y};
    }
    friend gk_TwoVectors operator*(const gk_TwoVectors& a, gk_TwoDoubles factor) {
        return {a.x * factor, a.y * factor};
    }
};

#endif
