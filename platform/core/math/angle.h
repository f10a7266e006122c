/// \file
/// Angles in three units: radians, degrees, and 256ths of a turn.
#ifndef GK_PLATFORM_CORE_MATH_ANGLE_H
#define GK_PLATFORM_CORE_MATH_ANGLE_H

#include "platform/export.h"

class gkDegree;
class gkAngle8;

/// An angle in radians, as it was given: it is reduced to one turn only by norm().
///
/// The three angle classes convert into each other implicitly, since they name the same quantity; a plain
/// number becomes an angle only where the unit is written. Comparisons are of the raw values, so 0 and 2 pi
/// differ.
class GKCNTR_API gkRadian {
public:
    /// Zero.
    constexpr gkRadian() = default;
    constexpr explicit gkRadian(double radians) : value_(radians) {}
    gkRadian(const gkDegree& angle);
    gkRadian(const gkAngle8& angle);

    constexpr double toDouble() const { return value_; }

    /// The angle reduced to one turn, in [0, 2 pi); 2 pi itself is never returned.
    ///
    /// 2 pi is the double 6.283185307179586. An angle just below a multiple of it gives the greatest double
    /// below 2 pi; NaN and infinities give NaN.
    gkRadian norm() const;

    constexpr gkRadian operator-() const { return gkRadian(-value_); }
    friend constexpr gkRadian operator+(gkRadian a, gkRadian b) { return gkRadian(a.value_ + b.value_); }
    friend constexpr gkRadian operator-(gkRadian a, gkRadian b) { return gkRadian(a.value_ - b.value_); }
    friend constexpr gkRadian operator*(gkRadian a, double factor) { return gkRadian(a.value_ * factor); }
    friend constexpr gkRadian operator*(double factor, gkRadian a) { return gkRadian(factor * a.value_); }
    friend constexpr gkRadian operator/(gkRadian a, double divisor) { return gkRadian(a.value_ / divisor); }
    friend constexpr bool operator==(gkRadian a, gkRadian b) { return a.value_ == b.value_; }
    friend constexpr bool operator!=(gkRadian a, gkRadian b) { return a.value_ != b.value_; }
    friend constexpr bool operator<(gkRadian a, gkRadian b) { return a.value_ < b.value_; }

private:
    double value_ = 0.0;
};

/// An angle in degrees, as it was given.
class GKCNTR_API gkDegree {
public:
    /// Zero.
    constexpr gkDegree() = default;
    constexpr explicit gkDegree(double degrees) : value_(degrees) {}
    gkDegree(const gkRadian& angle);
    gkDegree(const gkAngle8& angle);

    constexpr double toDouble() const { return value_; }

    /// The angle reduced to one turn, in [0, 360); NaN and infinities give NaN.
    gkDegree norm() const;

    constexpr gkDegree operator-() const { return gkDegree(-value_); }
    friend constexpr gkDegree operator+(gkDegree a, gkDegree b) { return gkDegree(a.value_ + b.value_); }
    friend constexpr gkDegree operator-(gkDegree a, gkDegree b) { return gkDegree(a.value_ - b.value_); }
    friend constexpr gkDegree operator*(gkDegree a, double factor) { return gkDegree(a.value_ * factor); }
    friend constexpr gkDegree operator*(double factor, gkDegree a) { return gkDegree(factor * a.value_); }
    friend constexpr gkDegree operator/(gkDegree a, double divisor) { return gkDegree(a.value_ / divisor); }
    friend constexpr bool operator==(gkDegree a, gkDegree b) { return a.value_ == b.value_; }
    friend constexpr bool operator!=(gkDegree a, gkDegree b) { return a.value_ != b.value_; }
    friend constexpr bool operator<(gkDegree a, gkDegree b) { return a.value_ < b.value_; }

private:
    double value_ = 0.0;
};

/// An angle in steps of 1/256 turn, held in one byte, so sums and differences wrap around at a full turn.
class GKCNTR_API gkAngle8 {
public:
    /// Zero.
    constexpr gkAngle8() = default;
    /// `steps` 256ths of a turn.
    constexpr explicit gkAngle8(unsigned char steps) : value_(steps) {}
    /// The nearest step, halves rounded up; NaN and infinities give step 0.
    gkAngle8(const gkRadian& angle);
    gkAngle8(const gkDegree& angle);

    /// The number of steps, 0 to 255.
    constexpr unsigned char toByte() const { return value_; }

    constexpr gkAngle8 operator-() const { return gkAngle8(static_cast<unsigned char>(0 - value_)); }
    friend constexpr gkAngle8 operator+(gkAngle8 a, gkAngle8 b) {
        return gkAngle8(static_cast<unsigned char>(a.value_ + b.value_));
    }
    friend constexpr gkAngle8 operator-(gkAngle8 a, gkAngle8 b) {
        return gkAngle8(static_cast<unsigned char>(a.value_ - b.value_));
    }
    friend constexpr bool operator==(gkAngle8 a, gkAngle8 b) { return a.value_ == b.value_; }
    friend constexpr bool operator!=(gkAngle8 a, gkAngle8 b) { return a.value_ != b.value_; }

private:
    unsigned char value_ = 0;
};

#endif
