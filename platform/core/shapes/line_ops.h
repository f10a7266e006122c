// The one set of line and segment formulas, inline for the library's own loops; the exported members call
// these.
#ifndef GK_PLATFORM_CORE_SHAPES_LINE_OPS_H
#define GK_PLATFORM_CORE_SHAPES_LINE_OPS_H

#include "platform/core/math/vector_ops.h"
#include "platform/core/shapes/line_seg.h"

#include <cmath>

namespace gk_LineOps {

inline double distToPoint(const gkLine& line, const gkVector<2>& p) {
    const gkVector<2> offset = p - line.point();
    const double length = gk_VectorOps::length(line.direction());
    if (length == 0.0) return gk_VectorOps::length(offset);
    return std::fabs(gk_VectorOps::cross(line.direction(), offset)) / length;
}

// Position of the foot of the perpendicular from p, in lengths of the direction; NaN for a zero direction.
inline double footPosition(const gkLine& line, const gkVector<2>& p) {
    return gk_VectorOps::dot(p - line.point(), line.direction()) /
           gk_VectorOps::dot(line.direction(), line.direction());
}

inline gkVector<2> proj(const gkLine& line, const gkVector<2>& p) {
    if (gk_VectorOps::length(line.direction()) == 0.0) return line.point();
    return line.point() + line.direction() * footPosition(line, p);
}

// Written so that a zero direction and NaN come out parallel.
inline bool isParallel(const gkLine& a, const gkLine& b) {
    const double det = gk_VectorOps::cross(a.direction(), b.direction());
    const double scale = gk_VectorOps::length(a.direction()) * gk_VectorOps::length(b.direction());
    return !(std::fabs(det) > gkLine::kParallelSine * scale);
}

inline gkVector<2> intersect(const gkLine& a, const gkLine& b) {
    const double det = gk_VectorOps::cross(a.direction(), b.direction());
    const double t = gk_VectorOps::cross(b.point() - a.point(), b.direction()) / det;
    return std::isfinite(t) ? a.point() + a.direction() * t : a.point();
}

inline double distToPoint(const gkLineSeg& seg, const gkVector<2>& p) {
    const gkLine line = seg.line();
    const double t = footPosition(line, p);
    if (!(t > 0.0)) return gk_VectorOps::distance(seg.p1(), p);
    if (t >= 1.0) return gk_VectorOps::distance(seg.p2(), p);
    return distToPoint(line, p);
}

inline gkVector<2> closestPoint(const gkLineSeg& seg, const gkVector<2>& p) {
    const gkLine line = seg.line();
    const double t = footPosition(line, p);
    if (!(t > 0.0)) return seg.p1();
    if (t >= 1.0) return seg.p2();
    return proj(line, p);
}

} // namespace gk_LineOps

#endif
