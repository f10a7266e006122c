/// \file
/// The straight segment between two points.
#ifndef GK_PLATFORM_CORE_SHAPES_LINE_SEG_H
#define GK_PLATFORM_CORE_SHAPES_LINE_SEG_H

#include "platform/core/math/vector.h"
#include "platform/core/shapes/line.h"
#include "platform/export.h"

/// The closed segment from p1 to p2. A segment of length zero is a point.
class GKCNTR_API gkLineSeg {
public:
    /// The point (0, 0).
    constexpr gkLineSeg() = default;
    constexpr gkLineSeg(const gkVector<2>& p1, const gkVector<2>& p2) : p1_(p1), p2_(p2) {}

    constexpr const gkVector<2>& p1() const { return p1_; }
    constexpr const gkVector<2>& p2() const { return p2_; }

    /// The carrying line: from p1 along p2 - p1.
    constexpr gkLine line() const { return gkLine(p1_, p2_ - p1_); }
    double length() const;

    /// Distance from `p` to the nearest point of the segment.
    ///
    /// With t = ((p - p1) . (p2 - p1)) / |p2 - p1|^2: to p1 when t is not above 0 (length zero and NaN
    /// included), to p2 when t >= 1, else the distance to the carrying line, the same bits as
    /// line().distToPoint(p). Source: Ericson, Real-Time Collision Detection, 5.1.2.
    double distToPoint(const gkVector<2>& p) const;
    /// The nearest point of the segment, by the same three cases.
    gkVector<2> closestPoint(const gkVector<2>& p) const;

    friend constexpr bool operator==(const gkLineSeg& a, const gkLineSeg& b) {
        return a.p1_ == b.p1_ && a.p2_ == b.p2_;
    }
    friend constexpr bool operator!=(const gkLineSeg& a, const gkLineSeg& b) { return !(a == b); }

private:
    gkVector<2> p1_;
    gkVector<2> p2_;
};

#endif
