#include "cntr/search/region_boxes.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/space_order.h"

#include <utility>

std::optional<gk_Box> gk_OwnBox(const gkContour& outline) {
    const std::vector<gkVector<2>>& points = outline.points();
    if (points.size() < 2) return std::nullopt;
    gk_Box box = gk_Box::of(points.front(), points.front());
    for (const gkVector<2>& p : points) {
        if (!gk_IsModerate(p)) return std::nullopt;
        box = box.enclosing(gk_Box::of(p, p));
    }
    return box;
}

std::optional<gk_Box> gk_RegionBoxes::measure(const gkContour& outline) {
    outline.caches_.mark.set(); // also one that prevents the index, which may be mended
    return gk_OwnBox(outline);
}

std::optional<gk_Box> gk_RegionBoxes::measure(const gkRegion& region, bool holesToo) {
    std::optional<gk_Box> box = measure(region);
    if (!box) return std::nullopt;
    const gkRect* const kept = region.keptBox();
    if (kept && *kept != gkRect::fromCorners({box->x0, box->y0}, {box->x1, box->y1})) return std::nullopt;
    if (!holesToo) return box;
    for (const auto& hole : region.holes()) {
        const std::optional<gk_Box> holeBox = hole.isNull() ? std::nullopt : measure(*hole);
        if (!holeBox) return std::nullopt;
        box = box->enclosing(*holeBox); // holes may lie outside the outline
    }
    return box;
}

std::optional<gk_RegionBoxes> gk_RegionBoxes::of(const gk_Regions& regions, bool holesToo) {
    if (regions.empty() || regions.size() > UINT32_MAX) return std::nullopt;
    gk_RegionBoxes index;
    std::vector<gk_Box> boxes;
    boxes.reserve(regions.size());
    for (const auto& region : regions) {
        const std::optional<gk_Box> box = region.isNull() ? std::nullopt : measure(*region, holesToo);
        if (!box) return std::nullopt;
        boxes.push_back(*box);
    }
    index.order(boxes);
    return index;
}

void gk_RegionBoxes::order(const std::vector<gk_Box>& boxes) {
    gk_Box all = boxes.front();
    for (const gk_Box& box : boxes) all = all.enclosing(box);
    reach_ = std::max(gk_Reach({all.x0, all.y0}), gk_Reach({all.x1, all.y1}));
    numbers_ = gk_OrderInSpace(boxes, all);
    std::vector<gk_Box> leaves;
    leaves.reserve(boxes.size());
    for (const std::uint32_t number : numbers_) leaves.push_back(boxes[number]);
    boxes_ = gk_BoxHierarchy(leaves);
}
