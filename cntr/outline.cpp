#include "cntr/outline.h"

#include "cntr/contour_defs.h"
#include "cntr/inside_count.h"
#include "cntr/measures.h"

#include <utility>

gk_Outline::gk_Outline(std::vector<gkVector<2>> points) : points_(std::move(points)) {}

gk_Outline::gk_Outline(std::vector<gkVector<2>> points, const gkRect& box)
    : points_(std::move(points)), box_(box) {}

void gk_Outline::check() const {
    if (points_.size() < 2) throw gkContourDefs::EmptyContour(L"");
}

const gkRect& gk_Outline::box() {
    if (!box_) box_ = gk_EncloseRect(points_, gkXform<2>());
    return *box_;
}

std::vector<gk_Crossing> gk_Outline::crossings(const gkLineSeg& seg, bool includeEnds) {
    check();
    if (!box().overlaps(gk_SegmentBox(seg.p1(), seg.p2()))) return {};
    if (!segments_.computed) segments_.build(points_, true);
    std::vector<gk_Crossing> found = gk_Crossings(segments_, seg, includeEnds);
    gk_OrderAlong(seg, found);
    return found;
}

std::vector<int> gk_Outline::near(const gkVector<2>& p, double tolerance) {
    check();
    return grids_.near(points_, p, tolerance);
}

long gk_Outline::insideCount(const gkVector<2>& point, bool bothWays) {
    check();
    if (!box().within(point)) return 0;
    if (!rayLength_) rayLength_ = 2.0 * gk_CircleAroundFirst(points_).radius();
    return gk_InsideCount(points_, point, *rayLength_, bothWays, [&](const gkVector<2>& end) {
        return static_cast<long>(crossings(gkLineSeg(point, end), false).size());
    });
}
