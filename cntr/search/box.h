// The axis-aligned box of the search: four numbers, its tests without rounding.
#ifndef GK_CNTR_SEARCH_BOX_H
#define GK_CNTR_SEARCH_BOX_H

#include "platform/core/math/vector.h"
#include "platform/core/shapes/rect.h"

#include <algorithm>

struct gk_Box {
    double x0;
    double y0;
    double x1;
    double y1;

    static gk_Box of(const gkVector<2>& a, const gkVector<2>& b) {
        return {std::min(a.x(), b.x()), std::min(a.y(), b.y()), std::max(a.x(), b.x()), std::max(a.y(), b.y())};
    }
    static gk_Box of(const gkRect& rect) {
        return {rect.ul().x(), rect.ul().y(), rect.lr().x(), rect.lr().y()};
    }

    // Closed: boxes that only touch overlap, as gkRect::overlaps says. All four comparisons, without a jump
    // after each: which one fails cannot be foreseen.
    bool overlaps(const gk_Box& other) const {
        return (x1 >= other.x0) & (x0 <= other.x1) & (y1 >= other.y0) & (y0 <= other.y1);
    }
    bool holds(const gkVector<2>& p) const {
        const double x = p.x();
        const double y = p.y();
        return (x0 <= x) & (x <= x1) & (y0 <= y) & (y <= y1);
    }
    gk_Box enclosing(const gk_Box& other) const {
        return {std::min(x0, other.x0), std::min(y0, other.y0), std::max(x1, other.x1), std::max(y1, other.y1)};
    }
    gkVector<2> middle() const { return gkVector<2>(x0 / 2 + x1 / 2, y0 / 2 + y1 / 2); }
    // What both hold, of boxes that overlap.
    gk_Box common(const gk_Box& other) const {
        return {std::max(x0, other.x0), std::max(y0, other.y0), std::min(x1, other.x1), std::min(y1, other.y1)};
    }
    gk_Box grownBy(double margin) const { return {x0 - margin, y0 - margin, x1 + margin, y1 + margin}; }

    // Square of the distance from p to the nearest point of the box, a few roundings off.
    double distance2(const gkVector<2>& p) const {
        const double dx = std::max(std::max(x0 - p.x(), p.x() - x1), 0.0);
        const double dy = std::max(std::max(y0 - p.y(), p.y() - y1), 0.0);
        return dx * dx + dy * dy;
    }
};

#endif
