// An index over the boxes of a list of regions.
#ifndef GK_CNTR_SEARCH_REGION_BOXES_H
#define GK_CNTR_SEARCH_REGION_BOXES_H

#include "cntr/region.h"
#include "cntr/search/box_hierarchy.h"

#include <cstdint>
#include <optional>
#include <vector>

using gk_Regions = std::vector<gkPtrHandle_const<gkRegion>>;

// The exact box of an outline's vertices, whatever box is kept for it; none when a vertex is beyond the bounds
// of magnitude.h or there are fewer than 2.
std::optional<gk_Box> gk_OwnBox(const gkContour& outline);

// Never changes, so copies of a set may share it. It marks what it has measured (cntr/change_mark.h), so that
// its owner can tell when it is out of date.
//
// Holes are measured only when asked for: a question that leaves them alone must not touch regions that other
// threads may be using.
class gk_RegionBoxes {
public:
    // None where a region's answer may depend on more than its box: a null handle, an outline (with
    // `holesToo` a hole's as well) without own box, an outline whose kept box is not its own.
    static std::optional<gk_RegionBoxes> of(const gk_Regions& regions, bool holesToo);

    // Greatest |coordinate|.
    double reach() const { return reach_; }

    // The regions whose boxes overlap the given one, in list order.
    std::vector<std::uint32_t> overlapping(const gk_Box& box) const {
        std::vector<std::uint32_t> found;
        boxes_.anyOverlapping(box, [&](std::size_t leaf) {
            found.push_back(numbers_[leaf]);
            return false;
        });
        std::sort(found.begin(), found.end());
        return found;
    }
    // As gk_BoxHierarchy, with regions for leaves.
    template <class Nearness, class Limit, class Visit>
    void nearestFirst(Nearness nearness, Limit limit, Visit visit) const {
        boxes_.nearestFirst(nearness, limit, [&](std::size_t leaf) { visit(numbers_[leaf]); });
    }

private:
    gk_RegionBoxes() = default;

    static std::optional<gk_Box> measure(const gkContour& outline);
    static std::optional<gk_Box> measure(const gkRegion& region, bool holesToo);
    void order(const std::vector<gk_Box>& boxes);

    double reach_ = 0.0;
    gk_BoxHierarchy boxes_;
    std::vector<std::uint32_t> numbers_; // the leaves'
};

#endif
