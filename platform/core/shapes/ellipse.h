/// \file
/// An ellipse in any position.
#ifndef GK_PLATFORM_CORE_SHAPES_ELLIPSE_H
#define GK_PLATFORM_CORE_SHAPES_ELLIPSE_H

#include "platform/core/math/angle.h"
#include "platform/core/math/vector.h"
#include "platform/core/shapes/point.h"
#include "platform/export.h"

/// An ellipse by centre, two radii and a rotation.
///
/// The record is kept as it was given: neither radius need be the larger one and the rotation is not reduced,
/// so one curve has several records, which compare unequal. The sign of a radius does not matter to any
/// measurement. A radius of zero makes the curve a segment, run through twice, and two of them make it a point.
/// With a NaN in the record measurements are NaN and no point is within. Nothing is thrown.
class GKCNTR_API gkEllipse {
public:
    /// What an ellipse is made of.
    struct gkEllipseGeom {
        /// All zero, both flags false.
        constexpr gkEllipseGeom() = default;
        constexpr gkEllipseGeom(const gkPoint& centerPoint, const gkVector<2>& bothRadii,
                                const gkRadian& direction, bool reversed = false, bool hole = false)
            : center(centerPoint), radii(bothRadii), rotation(direction), isReversed(reversed), isHole(hole) {}

        gkPoint center;
        /// The semi-axes: x() along the rotation direction, y() perpendicular to it.
        gkVector<2> radii;
        /// From the x axis to the first radius, counter-clockwise.
        gkRadian rotation;
        /// The curve is run through clockwise: point() turns the other way.
        bool isReversed = false;
        /// The ellipse bounds a hole: within() holds outside of it.
        bool isHole = false;
    };

    /// Everything zero.
    constexpr gkEllipse() = default;
    constexpr explicit gkEllipse(const gkEllipseGeom& geom) : geom_(geom) {}

    constexpr const gkEllipseGeom& geom() const { return geom_; }
    constexpr gkPoint center() const { return geom_.center; }
    constexpr gkVector<2> radii() const { return geom_.radii; }
    constexpr gkRadian rotation() const { return geom_.rotation; }

    /// Enclosed area, pi * |r1 * r2|; never negative, also for a hole.
    double area() const;

    /// The point of the curve at `parameter`: centre + r1 cos(t) u + r2 sin(t) v, with u along the rotation, v
    /// at a right angle counter-clockwise of it; t is `parameter`, negated when reversed.
    ///
    /// The parameter is the angle on the circle the ellipse is squeezed from, not the direction from the
    /// centre.
    gkPoint point(const gkRadian& parameter) const;

    /// Distance from `p` to the nearest point of the curve; being inside does not make it zero.
    ///
    /// The error is a few roundings of the largest among the radii and |p - centre|; NaN unless all of them are
    /// finite. Cost: O(1); about ten
    /// divisions and a sine and cosine.
    double distToPoint(const gkPoint& p) const;

    /// True when `p` is inside or on the curve, or, for a hole, outside or on it.
    ///
    /// Decided in rounded coordinates of the ellipse's own frame, so a point of the curve may fall on either
    /// side. A segment or a point contains only itself.
    bool within(const gkPoint& p) const;

    /// Exact comparison of the records, flags included.
    friend constexpr bool operator==(const gkEllipse& a, const gkEllipse& b) {
        return a.geom_.center == b.geom_.center && a.geom_.radii == b.geom_.radii &&
               a.geom_.rotation == b.geom_.rotation && a.geom_.isReversed == b.geom_.isReversed &&
               a.geom_.isHole == b.geom_.isHole;
    }
    friend constexpr bool operator!=(const gkEllipse& a, const gkEllipse& b) { return !(a == b); }

private:
    gkEllipseGeom geom_;
};

#endif
