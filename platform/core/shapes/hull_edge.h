// An edge of a polygon that grows towards a convex hull, and what it certainly has on its inner side.
#ifndef GK_PLATFORM_CORE_SHAPES_HULL_EDGE_H
#define GK_PLATFORM_CORE_SHAPES_HULL_EDGE_H

#include "platform/core/math/vector.h"

#include <algorithm>
#include <array>
#include <cmath>

// The least x and y of some points and the greatest ones, in this order.
using gk_HullBox = std::array<double, 4>;

// The inner side is on the left.
//
// The corners of the polygon are some of the points, so it lies in their hull. An edge ab gives way to ac and
// cb when the point c is certainly on its right. A point is dropped when every edge, or one that gave way to
// it, has the point, or the box of its run, on the left by more than its margin; there is no need to hold what
// is left of ab against ac and cb.
//
// Proof. Seen from a point q on its left an edge turns counter-clockwise. If q is on none of the edges, ac and
// cb together turn as ab does, or by one whole turn more when the triangle acb, which turns that way, lies
// around q. So seen from a point that is dropped, and from all that is within the slack of it, the polygon
// turns counter-clockwise, that is, winds around it at least once: it is strictly inside the hull. What is on
// an edge is between two points. A corner is not dropped, nor is a point equal to it: no corner of ac, cb and
// what follows them is left of ab by the margin, and for the corner's own edges it is not either. The edges
// from the least to the greatest point alone tell so of all that lies below the line between these two, the
// others of all above: seen from there the line turns clockwise, so that only a polygon that winds around it
// turns the other way.
//
// The margin. Let H and W be the sizes of the box of all points and B = |ex| H + |ey| W. The differences and
// products of inwardOf() are each off by a factor within 1 +- u (u = 2^-53), the last difference by u of
// itself: together by less than 4.1 u B, and by 2^-1073 where a product underflows. The margin is 8 u B, and
// 2^-900 at least; a slack comes times the sum of the edge's sides, which is no less than its length. An
// overflow makes the margin infinite or NaN, and then nothing is beyond it.
class gk_HullEdge {
public:
    gk_HullEdge(const gkVector<2>& from, const gkVector<2>& to, const gk_HullBox& all, double slack)
        : from_(from), to_(to), ex_(to.x() - from.x()), ey_(to.y() - from.y()), replaced_(nullptr),
          slack_(slack) {
        const double width = std::fabs(ex_);
        const double height = std::fabs(ey_);
        const double rounding = 0x1p-50 * (width * (all[3] - all[1]) + height * (all[2] - all[0]));
        margin_ = std::max(rounding + slack * (width + height) * (1.0 + 0x1p-49), 0x1p-900);
    }

    gk_HullEdge toCorner(const gkVector<2>& corner, const gk_HullBox& all) const {
        return gk_HullEdge(from_, corner, all, slack_, this);
    }
    gk_HullEdge fromCorner(const gkVector<2>& corner, const gk_HullBox& all) const {
        return gk_HullEdge(corner, to_, all, slack_, this);
    }

    // The distance from the line, times the edge's length; positive on the left.
    double inwardOf(const gkVector<2>& p) const { return inwardOf(p.x(), p.y()); }
    // The least one of a box: products and differences are monotone also as they round.
    double inwardOf(const gk_HullBox& box) const {
        return inwardOf(box[ey_ > 0.0 ? 2 : 0], box[ex_ > 0.0 ? 1 : 3]);
    }
    // False for NaN.
    bool isInside(double inward) const { return inward > margin_; }

    // Whether the polygon may grow to this point.
    bool mayGiveWayTo(const gkVector<2>& corner) const {
        for (const gk_HullEdge* edge = replaced_; edge != nullptr; edge = edge->replaced_)
            if (edge->isInside(edge->inwardOf(corner))) return false;
        return inwardOf(corner) < -margin_;
    }

private:
    gk_HullEdge(const gkVector<2>& from, const gkVector<2>& to, const gk_HullBox& all, double slack,
                const gk_HullEdge* replaced)
        : gk_HullEdge(from, to, all, slack) {
        replaced_ = replaced;
    }

    double inwardOf(double x, double y) const { return ex_ * (y - from_.y()) - ey_ * (x - from_.x()); }

    gkVector<2> from_;
    gkVector<2> to_;
    double ex_;
    double ey_;
    double margin_;
    const gk_HullEdge* replaced_; // the edge that gave way to this one
    double slack_;
};

#endif
