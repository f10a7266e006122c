/// \file
/// A circle.
#ifndef GK_PLATFORM_CORE_SHAPES_CIRCLE_H
#define GK_PLATFORM_CORE_SHAPES_CIRCLE_H

#include "platform/core/shapes/point.h"
#include "platform/export.h"

/// A circle by centre and radius, kept as given; the radius is meant to be 0 or more. Nothing is thrown.
class GKCNTR_API gkCircle {
public:
    /// Centre (0, 0), radius 0.
    constexpr gkCircle() = default;
    constexpr gkCircle(const gkPoint& center, double radius) : center_(center), radius_(radius) {}

    constexpr gkPoint center() const { return center_; }
    constexpr double radius() const { return radius_; }

    /// pi * radius^2.
    double area() const;
    /// 2 * pi * radius.
    double circumference() const;
    /// True when `point` is not farther from the centre than the radius, by their rounded distance. With a NaN
    /// or a negative radius nothing is within.
    bool within(const gkPoint& point) const;

    /// Exact comparison of centre and radius.
    friend constexpr bool operator==(const gkCircle& a, const gkCircle& b) {
        return a.center_ == b.center_ && a.radius_ == b.radius_;
    }
    friend constexpr bool operator!=(const gkCircle& a, const gkCircle& b) { return !(a == b); }

private:
    gkPoint center_;
    double radius_ = 0.0;
};

#endif
