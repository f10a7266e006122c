/// \file
/// The axis-aligned rectangle.
#ifndef GK_PLATFORM_CORE_SHAPES_RECT_H
#define GK_PLATFORM_CORE_SHAPES_RECT_H

#include "platform/core/math/vector.h"
#include "platform/export.h"

/// An axis-aligned rectangle, kept as its two corners exactly.
///
/// Corner plus size would round the far corner, and two boxes that just touch could then miss each other by one
/// ulp, and with them a crossing at a vertex. A rectangle of size zero is a point and counts as one everywhere.
class GKCNTR_API gkRect {
public:
    /// The point (0, 0).
    constexpr gkRect() = default;
    /// From a corner and the size; a negative size reaches to the other side of the corner.
    constexpr gkRect(const gkVector<2>& corner, const gkVector<2>& size)
        : gkRect(fromCorners(corner, corner + size)) {}
    /// From two opposite corners, exactly and in any order.
    static constexpr gkRect fromCorners(const gkVector<2>& a, const gkVector<2>& b) {
        gkRect rect;
        rect.ul_ = gkVector<2>(least(a.x(), b.x()), least(a.y(), b.y()));
        rect.lr_ = gkVector<2>(greatest(a.x(), b.x()), greatest(a.y(), b.y()));
        return rect;
    }

    /// Upper-left corner: the least x and y (y grows downwards in images).
    constexpr const gkVector<2>& ul() const { return ul_; }
    /// Lower-right corner: the greatest x and y.
    constexpr const gkVector<2>& lr() const { return lr_; }
    constexpr gkVector<2> size() const { return lr_ - ul_; }
    constexpr double width() const { return lr_.x() - ul_.x(); }
    constexpr double height() const { return lr_.y() - ul_.y(); }
    constexpr gkVector<2> center() const { return (ul_ + lr_) / 2.0; }

    /// The least rectangle that holds both; a rectangle of size zero counts as its point.
    ///
    /// Each side is taken over from `other` only when it lies strictly further out, so a NaN in `other` changes
    /// nothing and a NaN in *this stays.
    constexpr gkRect enclose(const gkRect& other) const {
        gkRect rect;
        rect.ul_ = gkVector<2>(least(ul_.x(), other.ul_.x()), least(ul_.y(), other.ul_.y()));
        rect.lr_ = gkVector<2>(greatest(lr_.x(), other.lr_.x()), greatest(lr_.y(), other.lr_.y()));
        return rect;
    }

    /// True when the point lies in the closed rectangle, its border included; false with a NaN.
    constexpr bool within(const gkVector<2>& point) const {
        return ul_.x() <= point.x() && point.x() <= lr_.x() && ul_.y() <= point.y() && point.y() <= lr_.y();
    }
    /// True when the closed rectangles have a point in common; boxes that only touch do. False with a NaN.
    constexpr bool overlaps(const gkRect& other) const {
        return lr_.x() >= other.ul_.x() && ul_.x() <= other.lr_.x() && lr_.y() >= other.ul_.y() &&
               ul_.y() <= other.lr_.y();
    }

    friend constexpr bool operator==(const gkRect& a, const gkRect& b) {
        return a.ul_ == b.ul_ && a.lr_ == b.lr_;
    }
    friend constexpr bool operator!=(const gkRect& a, const gkRect& b) { return !(a == b); }

private:
    static constexpr double least(double a, double b) { return b < a ? b : a; }
    static constexpr double greatest(double a, double b) { return b > a ? b : a; }

    gkVector<2> ul_;
    gkVector<2> lr_;
};

#endif
