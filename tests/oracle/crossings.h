// Where a segment or another outline crosses an outline, and whether an outline crosses itself.
#ifndef GK_TESTS_ORACLE_CROSSINGS_H
#define GK_TESTS_ORACLE_CROSSINGS_H

#include "tests/oracle/enclose.h"
#include "tests/oracle/segment_list.h"

#include <utility>

namespace oracle {

struct Crossing {
    gkVector<2> point;
    int segment;
};

// Closed intervals [a0, a1] and [b0, b1] have a point in common.
inline bool rangesOverlap(double a0, double a1, double b0, double b1) { return a1 >= b0 && !(a0 > b1); }

inline bool boxesOverlap(const gkRect& a, const gkRect& b) {
    return rangesOverlap(a.ul().x(), a.lr().x(), b.ul().x(), b.lr().x()) &&
           rangesOverlap(a.ul().y(), a.lr().y(), b.ul().y(), b.lr().y());
}

inline gkRect segmentBox(const gkLineSeg& seg) { return pointBox(seg.p1()).enclose(pointBox(seg.p2())); }

// Whether `own`, a segment of the outline, gives a crossing with `seg`, and where.
inline bool crosses(const gkLineSeg& own, const gkLineSeg& seg, bool includeEnds, gkVector<2>& point) {
    if (!isValidLine(own)) return false;
    if (!boxesOverlap(segmentBox(own), segmentBox(seg))) return false;
    if (own.line().isParallel(seg.line())) return false;
    if (!includeEnds && (own.distToPoint(seg.p1()) <= 1e-6 || own.distToPoint(seg.p2()) <= 1e-6)) return false;
    point = own.line().intersect(seg.line());
    return own.distToPoint(point) < 1e-6 && seg.distToPoint(point) < 1e-6;
}

// Orders by exchanges along the segment; which of two equal ones comes first follows from the exchanges.
inline void exchangeIntoOrder(std::vector<Crossing>& found, const gkLineSeg& seg) {
    const auto key = [&](const Crossing& c) { return (c.point - seg.p1()) * (seg.p2() - seg.p1()); };
    for (std::size_t i = 0; i + 1 < found.size(); ++i) {
        for (std::size_t j = i + 1; j < found.size(); ++j) {
            if (key(found[i]) > key(found[j])) std::swap(found[i], found[j]);
        }
    }
}

// `box` is the outline's box as it is kept, which a transform that shares the identity's key may have left
// there.
inline std::vector<Crossing> crossings(const Points& points, bool closed, const gkLineSeg& seg,
                                       bool includeEnds, const gkRect& box) {
    std::vector<Crossing> found;
    if (!boxesOverlap(box, segmentBox(seg))) return found;
    const std::vector<gkLineSeg> own = segments(points, closed);
    for (std::size_t k = 0; k < own.size(); ++k) {
        gkVector<2> point;
        if (crosses(own[k], seg, includeEnds, point)) found.push_back({point, static_cast<int>(k)});
    }
    exchangeIntoOrder(found, seg);
    return found;
}

inline std::vector<Crossing> crossings(const Points& points, bool closed, const gkLineSeg& seg,
                                       bool includeEnds) {
    return crossings(points, closed, seg, includeEnds, encloseRect(points, gkXform<2>()));
}

inline Points crossingsWithContour(const Points& points, bool closed, const Points& other, bool otherClosed) {
    needsTwo(points);
    Points all;
    for (const gkLineSeg& seg : segments(other, otherClosed)) {
        for (const Crossing& crossing : crossings(points, closed, seg, true)) all.push_back(crossing.point);
    }
    return all;
}

inline bool isSelfIntersecting(const Points& points, bool closed) {
    if (points.size() < 2) return false;
    for (const gkLineSeg& seg : segments(points, closed)) {
        if (isValidLine(seg) && !crossings(points, closed, seg, false).empty()) return true;
    }
    return false;
}

} // namespace oracle

#endif
