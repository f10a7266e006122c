// When the parity of a point must be what the plain ray count gives, whatever direction its ray takes.
#ifndef GK_CNTR_SEARCH_INSIDE_CERTIFICATE_H
#define GK_CNTR_SEARCH_INSIDE_CERTIFICATE_H

#include "cntr/search/box.h"
#include "cntr/search/magnitude.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/vector_ops.h"

enum class gk_Inside { eOutside, eInside, eUnknown };

// The plain count casts a ray of length D through the middle of a gap between vertex directions that is wider
// than pi / n; there is always one, for n gaps make a full turn. So the ray keeps an angle of pi / 2n from
// every vertex, and a vertex at distance r from the point keeps r sin(pi / 2n) from the ray's line. Let t be
// four touches and the slack of all distances involved. Suppose
//   - the slack is a small part of a touch,
//   - every vertex is at least t / sin(pi / 2n) from the point,
//   - every segment is farther than t from the point, and
//   - every place D from the point is farther than t from the outline, and outside it.
// Then each segment either has both ends on one side of the ray's line and farther than t from it, and is not
// counted; or its ends are on opposite sides, both farther than t from the line, so that it is not parallel to
// it. Rounding moves the computed crossing along both lines, by less than a touch across either. So a crossing
// on the ray is found within a touch of both and counts once, and one before the ray's start or behind its end,
// where the segment passes farther than t, does not. The count then has the parity of the crossings on a way
// from the point to the outside.
class gk_InsideCertificate {
public:
    // `first` is vertex 0, `rayLength` = D twice the distance of the farthest vertex from it, `box` the
    // vertices' own.
    gk_InsideCertificate(std::size_t vertexCount, const gkVector<2>& first, double rayLength, const gk_Box& box)
        : first_(first), rayLength_(rayLength), box_(box) {
        const double reach = std::max(gk_Reach({box.x0, box.y0}), gk_Reach({box.x1, box.y1}));
        const double slack = 8.0 * gk_DistanceSlack(reach + rayLength);
        isExact_ = slack <= 1e-6;
        touch_ = 4e-6 + slack;
        const double halfGap = 3.141592653589793 / (2.0 * static_cast<double>(vertexCount));
        vertexDistance_ = 1.01 * touch_ / gk_Trig::sinCos(halfGap).sin;
    }

    // Least distances of segments and of vertices from the point.
    double segmentDistance() const { return touch_; }
    double vertexDistance() const { return vertexDistance_; }

    // The slack is small enough for any ray.
    bool isExact() const { return isExact_; }
    // A ray that ends here ends outside the outline and away from it.
    bool allowsEnd(const gkVector<2>& end) const {
        return gk_VectorOps::distance(first_, end) > rayLength_ / 2.0 + touch_;
    }
    // The slack is small enough, and no ray from the point ends inside the outline or at it: the outline lies
    // within D / 2 of its first vertex, and within its box.
    bool allowsRaysFrom(const gkVector<2>& point) const {
        if (!isExact_) return false;
        if (gk_VectorOps::distance(first_, point) < rayLength_ / 2.0 - touch_) return true;
        const gkVector<2> farthest(std::max(point.x() - box_.x0, box_.x1 - point.x()),
                                   std::max(point.y() - box_.y0, box_.y1 - point.y()));
        return gk_VectorOps::length(farthest) < rayLength_ - touch_;
    }

    bool isVertexNear(const gkVector<2>& vertex, const gkVector<2>& point) const {
        return std::fabs(vertex.x() - point.x()) <= vertexDistance_ &&
               std::fabs(vertex.y() - point.y()) <= vertexDistance_;
    }

private:
    gkVector<2> first_;
    double rayLength_;
    gk_Box box_;
    bool isExact_;
    double touch_;
    double vertexDistance_;
};

#endif
