/// \file
/// The rigid motion of the plane: a rotation and a translation.
#ifndef GK_PLATFORM_CORE_TRANSFORM_RIGID_H
#define GK_PLATFORM_CORE_TRANSFORM_RIGID_H

#include "platform/core/math/angle.h"
#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"
#include "platform/export.h"

/// Turns a point about the origin by an angle, then moves it; also a pose, a place with a direction.
class GKCNTR_API gk2Rigid {
public:
    /// The identity.
    gk2Rigid() = default;
    gk2Rigid(const gkRadian& angle, const gkVector<2>& translation)
        : angle_(angle), translation_(translation) {}

    const gkRadian& angle() const { return angle_; }
    const gkVector<2>& translation() const { return translation_; }

    /// The image of a point.
    gkVector<2> mapPoint(const gkVector<2>& point) const;
    /// The motion that undoes this one.
    gk2Rigid inverse() const;
    /// The motion that applies `first`, then this one. Angles add and are not reduced.
    gk2Rigid operator*(const gk2Rigid& first) const;
    /// The same motion as a matrix and a translation.
    gkXform<2> xform() const;

    /// Exact comparison of angle and translation, angles as raw values.
    friend bool operator==(const gk2Rigid& a, const gk2Rigid& b) {
        return a.angle_ == b.angle_ && a.translation_ == b.translation_;
    }
    friend bool operator!=(const gk2Rigid& a, const gk2Rigid& b) { return !(a == b); }

private:
    gkRadian angle_;
    gkVector<2> translation_;
};

#endif
