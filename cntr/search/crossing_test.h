// Whether and where one segment of an outline is crossed by a query segment: the one test that every search
// runs.
#ifndef GK_CNTR_SEARCH_CROSSING_TEST_H
#define GK_CNTR_SEARCH_CROSSING_TEST_H

#include "cntr/search/box.h"
#include "platform/core/math/real.h"
#include "platform/core/shapes/line_ops.h"

constexpr double kTouch = 1e-6; // vertex units: how near a point counts as on a segment

// True when the ends differ by more than 1e-15: only such a segment has a line.
inline bool gk_IsValidLine(const gkVector<2>& p1, const gkVector<2>& p2) {
    const auto differ = [](double a, double b) { return !(a == b || std::fabs(a - b) <= 1e-15); };
    return differ(p2.x(), p1.x()) || differ(p2.y(), p1.y());
}

class gk_CrossingTest {
public:
    // Without `includeEnds`, an outline's segment within kTouch of an end of `seg` does not count.
    gk_CrossingTest(const gkLineSeg& seg, bool includeEnds)
        : seg_(seg), line_(seg.line()), box_(gk_Box::of(seg.p1(), seg.p2())), includeEnds_(includeEnds) {}

    const gkLineSeg& segment() const { return seg_; }
    const gk_Box& box() const { return box_; }

    // True when the segment from p1 to p2 is crossed; `point` is where.
    bool crosses(const gkVector<2>& p1, const gkVector<2>& p2, gkVector<2>& point) const {
        if (!overlaps(p1, p2) || !gk_IsValidLine(p1, p2)) return false;
        const gkLineSeg segment(p1, p2);
        const gkLine line = segment.line();
        if (gk_LineOps::isParallel(line, line_)) return false;
        if (!includeEnds_ && (gk_LineOps::distToPoint(segment, seg_.p1()) <= kTouch ||
                              gk_LineOps::distToPoint(segment, seg_.p2()) <= kTouch)) {
            return false;
        }
        point = gk_LineOps::intersect(line, line_);
        return gk_LineOps::distToPoint(segment, point) < kTouch &&
               gk_LineOps::distToPoint(seg_, point) < kTouch;
    }

private:
    // Said the way round that a NaN does not overlap.
    bool overlaps(const gkVector<2>& p1, const gkVector<2>& p2) const {
        return gk_Box::of(p1, p2).overlaps(box_);
    }

    gkLineSeg seg_;
    gkLine line_;
    gk_Box box_;
    bool includeEnds_;
};

#endif
