/// \file
/// A point of the plane.
#ifndef GK_PLATFORM_CORE_SHAPES_POINT_H
#define GK_PLATFORM_CORE_SHAPES_POINT_H

#include "platform/core/math/vector.h"
#include "platform/export.h"

/// A position (x, y), as the shapes hold it. A vector converts into it implicitly: both name the same pair of
/// numbers.
class GKCNTR_API gkPoint {
public:
    /// (0, 0).
    constexpr gkPoint() = default;
    constexpr gkPoint(const gkVector<2>& vector) : vector_(vector) {}
    constexpr gkPoint(double x, double y) : vector_(x, y) {}

    constexpr double x() const { return vector_.x(); }
    constexpr double y() const { return vector_.y(); }
    /// The position as a vector from the origin.
    constexpr gkVector<2> vector() const { return vector_; }

    /// Euclidean distance; the same bits as gkVector<2>::distance.
    double distance(const gkPoint& other) const;

    /// Exact comparison of both coordinates.
    friend constexpr bool operator==(const gkPoint& a, const gkPoint& b) { return a.vector_ == b.vector_; }
    friend constexpr bool operator!=(const gkPoint& a, const gkPoint& b) { return !(a == b); }

private:
    gkVector<2> vector_;
};

#endif
