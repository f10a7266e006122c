/// \file
/// The two-dimensional vector of doubles: vertices, directions, displacements.
#ifndef GK_PLATFORM_CORE_MATH_VECTOR_H
#define GK_PLATFORM_CORE_MATH_VECTOR_H

#include "platform/core/math/angle.h"
#include "platform/core/math/pair.h"
#include "platform/export.h"

template <int N> class gkVector;

/// A vector (x, y). All operations are plain IEEE double arithmetic; nothing is thrown.
///
/// Operations that both multiply and add are compiled in the library, not inline, so that a caller's compiler
/// flags cannot fuse the two roundings into one and change an answer.
template <> class GKCNTR_API gkVector<2> {
public:
    /// (0, 0).
    constexpr gkVector() = default;
    constexpr gkVector(double x, double y) : x_(x), y_(y) {}
    /// length * (cos(direction), sin(direction)).
    gkVector(double length, const gkRadian& direction);
    constexpr explicit gkVector(const gkPair<long>& pair)
        : x_(static_cast<double>(pair.x())), y_(static_cast<double>(pair.y())) {}
    constexpr explicit gkVector(const gkPair<double>& pair) : x_(pair.x()), y_(pair.y()) {}

    constexpr double x() const { return x_; }
    constexpr double y() const { return y_; }
    constexpr void x(double value) { x_ = value; }
    constexpr void y(double value) { y_ = value; }

    /// sqrt(x^2 + y^2), computed as written: infinite above about 1e154, 0 below about 1e-162.
    double length() const;
    /// Length of (other - *this); the same bits as other.distance(*this).
    double distance(const gkVector& other) const;
    /// The direction, in (-pi, pi]; exact multiples of pi/2 along the axes, 0 for the zero vector, NaN with a
    /// NaN.
    gkRadian angle() const;
    /// x * other.y - y * other.x: twice the signed area of the triangle (0, *this, other).
    double cross(const gkVector& other) const;
    /// *this divided by its length; NaN for the zero vector.
    gkVector unit() const;

    constexpr gkVector operator-() const { return gkVector(-x_, -y_); }
    friend constexpr gkVector operator+(const gkVector& a, const gkVector& b) {
        return gkVector(a.x_ + b.x_, a.y_ + b.y_);
    }
    friend constexpr gkVector operator-(const gkVector& a, const gkVector& b) {
        return gkVector(a.x_ - b.x_, a.y_ - b.y_);
    }
    friend constexpr gkVector operator*(const gkVector& a, double factor) {
        return gkVector(a.x_ * factor, a.y_ * factor);
    }
    friend constexpr gkVector operator*(double factor, const gkVector& a) {
        return gkVector(factor * a.x_, factor * a.y_);
    }
    /// IEEE division: a zero divisor gives infinities or NaN, nothing is thrown.
    friend constexpr gkVector operator/(const gkVector& a, double divisor) {
        return gkVector(a.x_ / divisor, a.y_ / divisor);
    }
    constexpr gkVector& operator+=(const gkVector& other) { return *this = *this + other; }
    constexpr gkVector& operator-=(const gkVector& other) { return *this = *this - other; }
    constexpr gkVector& operator*=(double factor) { return *this = *this * factor; }
    constexpr gkVector& operator/=(double divisor) { return *this = *this / divisor; }

    /// Dot product, x * other.x + y * other.y.
    double operator*(const gkVector& other) const;

    /// Exact comparison; a NaN equals nothing, and -0.0 equals 0.0.
    friend constexpr bool operator==(const gkVector& a, const gkVector& b) {
        return a.x_ == b.x_ && a.y_ == b.y_;
    }
    friend constexpr bool operator!=(const gkVector& a, const gkVector& b) { return !(a == b); }

private:
    double x_ = 0.0;
    double y_ = 0.0;
};

/// True when both coordinates are equal within `eps` (gfRealEq of doubles, coordinate by coordinate).
GKCNTR_API bool gfRealEq(const gkVector<2>& a, const gkVector<2>& b, double eps);

#endif
