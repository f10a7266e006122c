#include "cntr/crossings.h"

#include "cntr/index.h"
#include "platform/core/shapes/line_ops.h"

#include <utility>

namespace {

constexpr double kTouch = 1e-6; // vertex units: how near a point counts as on a segment

} // namespace

std::vector<gk_Crossing> gk_Crossings(const gk_SegmentCache& outline, const gkLineSeg& seg, bool includeEnds) {
    const gkLine line = seg.line();
    const gkRect box = gk_SegmentBox(seg.p1(), seg.p2());
    std::vector<gk_Crossing> crossings;
    for (std::size_t k = 0; k < outline.segments.size(); ++k) {
        const gkLineSeg& segment = outline.segments[k];
        if (!outline.validLine[k] || !outline.boxes[k].overlaps(box)) continue;
        if (gk_LineOps::isParallel(outline.lines[k], line)) continue;
        if (!includeEnds && (gk_LineOps::distToPoint(segment, seg.p1()) <= kTouch ||
                             gk_LineOps::distToPoint(segment, seg.p2()) <= kTouch)) {
            continue;
        }
        const gkVector<2> x = gk_LineOps::intersect(outline.lines[k], line);
        if (gk_LineOps::distToPoint(segment, x) < kTouch && gk_LineOps::distToPoint(seg, x) < kTouch) {
            crossings.push_back({x, gk_IndexAs<int>(k)});
        }
    }
    return crossings;
}

void gk_OrderAlong(const gkLineSeg& seg, std::vector<gk_Crossing>& crossings) {
    const gkVector<2> direction = seg.p2() - seg.p1();
    const auto key = [&](std::size_t i) { return gk_VectorOps::dot(crossings[i].point - seg.p1(), direction); };
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        for (std::size_t j = i + 1; j < crossings.size(); ++j) {
            if (key(i) > key(j)) std::swap(crossings[i], crossings[j]);
        }
    }
}
