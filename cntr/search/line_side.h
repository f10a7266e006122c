// Rejects, without a division or a root, what lies on one side of a query segment's line.
#ifndef GK_CNTR_SEARCH_LINE_SIDE_H
#define GK_CNTR_SEARCH_LINE_SIDE_H

#include "cntr/search/box.h"
#include "cntr/search/magnitude.h"
#include "platform/core/math/vector_ops.h"

#include <limits>

// How much farther on along a direction than another, counted in its length, a place must be so that no
// crossing can touch segments at both. `reach` bounds the coordinates; infinite for a direction so short that
// products with it could underflow.
//
// Twice 1e-6 is the touch; the rest covers 64 u M of each distance and, of products with the direction, 16 u M
// for each unit of |dx| + |dy|, which is no less than the direction's length.
inline double gk_ApartMargin(const gkVector<2>& direction, double reach) {
    const double length = std::fabs(direction.x()) + std::fabs(direction.y());
    if (!(length >= 1e-100)) return std::numeric_limits<double>::infinity();
    return (2.5e-6 + 4.0 * gk_DistanceSlack(reach)) * length;
}

// A crossing lies within kTouch of both segments as distances are computed. So a segment whose ends are both on
// one side of the query's line, farther from it than two touches and the slack of both distances, is not
// crossed, nor is anything in a box whose corners are.
class gk_LineSide {
public:
    // `reach` bounds the coordinates on both sides.
    gk_LineSide(const gkVector<2>& p1, const gkVector<2>& p2, double reach)
        : origin_(p1), direction_(p2 - p1), margin_(gk_ApartMargin(direction_, reach)) {}

    bool rejects(const gkVector<2>& a, const gkVector<2>& b) const {
        const double sideA = side(a);
        const double sideB = side(b);
        return (sideA > margin_ && sideB > margin_) || (sideA < -margin_ && sideB < -margin_);
    }

    bool rejects(const gk_Box& box) const {
        const double spread = std::fabs(direction_.x()) * (box.y1 / 2 - box.y0 / 2) +
                              std::fabs(direction_.y()) * (box.x1 / 2 - box.x0 / 2);
        return std::fabs(side(box.middle())) > spread + margin_;
    }

private:
    double side(const gkVector<2>& p) const { return gk_VectorOps::cross(direction_, p - origin_); }

    gkVector<2> origin_;
    gkVector<2> direction_;
    double margin_;
};

#endif
