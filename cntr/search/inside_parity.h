// The crossings between two points, counted without rounding.
#ifndef GK_CNTR_SEARCH_INSIDE_PARITY_H
#define GK_CNTR_SEARCH_INSIDE_PARITY_H

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segments.h"
#include "platform/core/shapes/orientation.h"

// All points are thought moved by (e, e^2) for an infinitely small e, so none lies on a segment, level with a
// vertex or above one. Source of the idea: Edelsbrunner and Mücke, Simulation of simplicity, 1990.
namespace gk_InsideParity {

// Whether the moved point lies left of the line from a to b, which must differ.
inline bool isLeft(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& point) {
    const int side = gk_Orientation(a, b, point);
    if (side != 0) return side > 0;
    return b.y() != a.y() ? b.y() < a.y() : b.x() > a.x();
}

// Whether one of a and b is level with the moved point or below it, and the other above.
inline bool spansHeight(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& point) {
    return (a.y() <= point.y()) != (b.y() <= point.y());
}

// The same from side to side.
inline bool spansWidth(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& point) {
    return (a.x() <= point.x()) != (b.x() <= point.x());
}

// Whether the segment crosses the level ray from the moved point to the right.
inline bool crossesRayRight(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& point) {
    if (!spansHeight(a, b, point)) return false;
    if (a.x() <= point.x() && b.x() <= point.x()) return false;
    if (a.x() > point.x() && b.x() > point.x()) return true;
    return isLeft(a, b, point) == (b.y() > a.y());
}

// Whether the segment crosses the way from one moved point straight up or down to the height of the other and
// then level to it an odd number of times.
inline bool crossesWay(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& from,
                       const gkVector<2>& to) {
    const gkVector<2> corner(from.x(), to.y());
    bool odd = false;
    if (spansWidth(a, b, from)) odd = isLeft(a, b, from) != isLeft(a, b, corner);
    if (spansHeight(a, b, to)) odd = odd != (isLeft(a, b, corner) != isLeft(a, b, to));
    return odd;
}

} // namespace gk_InsideParity

#endif
