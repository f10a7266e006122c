#include "tests/support/repair_outcome.h"

#include "platform/core/shapes/line_seg.h"

namespace {

constexpr double kOnOutline = 1e-5; // well above the tolerances that move a crossing point

gkLineSeg edge(const Outline& outline, std::size_t i) {
    return gkLineSeg(outline[i], outline[(i + 1) % outline.size()]);
}

// The classic half-open rule: an edge counts when it spans the point's row and meets it to the right.
bool isInsideEvenOdd(const Outline& outline, const gkVector<2>& p) {
    bool inside = false;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const gkLineSeg seg = edge(outline, i);
        const gkVector<2>& low = seg.p1().y() < seg.p2().y() ? seg.p1() : seg.p2();
        const gkVector<2>& high = seg.p1().y() < seg.p2().y() ? seg.p2() : seg.p1();
        if (low.y() <= p.y() && p.y() < high.y() && (high - low).cross(p - low) > 0.0) inside = !inside;
    }
    return inside;
}

} // namespace

bool isOutside(const std::vector<Outline>& outlines, const gkVector<2>& point, double margin) {
    for (const Outline& outline : outlines) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            if (edge(outline, i).distToPoint(point) <= margin) return false;
        }
        if (isInsideEvenOdd(outline, point)) return false;
    }
    return true;
}

bool losesAPart(const std::vector<Outline>& given, const std::vector<Outline>& repaired) {
    for (const Outline& outline : given) {
        for (const gkVector<2>& vertex : outline) {
            if (isOutside(repaired, vertex, kOnOutline)) return true;
        }
    }
    return false;
}
