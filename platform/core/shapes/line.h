/// \file
/// The unbounded straight line.
#ifndef GK_PLATFORM_CORE_SHAPES_LINE_H
#define GK_PLATFORM_CORE_SHAPES_LINE_H

#include "platform/core/math/vector.h"
#include "platform/export.h"

/// A line through a point along a direction. The direction is kept as given, not normalised, so that a
/// segment's line carries no rounding of its own. A zero direction makes the line a single point.
class GKCNTR_API gkLine {
public:
    /// The point (0, 0): a placeholder with a zero direction.
    constexpr gkLine() = default;
    constexpr gkLine(const gkVector<2>& point, const gkVector<2>& direction)
        : point_(point), direction_(direction) {}

    constexpr const gkVector<2>& point() const { return point_; }
    constexpr const gkVector<2>& direction() const { return direction_; }

    /// Distance from `p` to the line, |cross(direction, p - point)| / |direction|; to the point for a zero
    /// direction.
    double distToPoint(const gkVector<2>& p) const;
    /// The foot of the perpendicular from `p`; the line's point for a zero direction.
    gkVector<2> proj(const gkVector<2>& p) const;

    /// True when the lines are parallel, opposite or the same: when the sine of the angle between the
    /// directions is at most kParallelSine in size. Lines with a zero or NaN direction are parallel to
    /// everything.
    bool isParallel(const gkLine& other) const;

    /// Where this line crosses `other`: point + direction * (cross(other.point - point, other.direction) /
    /// det), with det = cross(direction, other.direction).
    ///
    /// When det is zero, or so small that the quotient is not finite, this line's own point is returned: a
    /// finite answer, never NaN for finite lines. isParallel() says beforehand whether the answer means a
    /// crossing.
    gkVector<2> intersect(const gkLine& other) const;

    /// Greatest sine of the angle between two directions that still count as parallel. No unit.
    ///
    /// Rounding turns a segment of length d at coordinates of size c by some 1e-16 c / d, and lines that differ
    /// by that much would cross anywhere. The bound stands above it for segments longer than about a thousandth
    /// of their coordinates. Segments up to 1e6 long that cross at less than the bound stay within 1e-6 of each
    /// other along their common stretch, which the shapes built on lines take for touching, so no crossing that
    /// shows is lost. Figures: docs/decisions/0010-parallel-lines.md.
    static constexpr double kParallelSine = 1e-12;

    friend constexpr bool operator==(const gkLine& a, const gkLine& b) {
        return a.point_ == b.point_ && a.direction_ == b.direction_;
    }
    friend constexpr bool operator!=(const gkLine& a, const gkLine& b) { return !(a == b); }

private:
    gkVector<2> point_;
    gkVector<2> direction_;
};

#endif
