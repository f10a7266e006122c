#include "cntr/search/box_hierarchy.h"

gk_BoxHierarchy::gk_BoxHierarchy(const std::vector<gk_Box>& leaves) : box_(leaves.front()) {
    constexpr std::size_t kMostLevels = 12;
    eights_.reserve((leaves.size() + kFan - 2) / (kFan - 1) + kMostLevels);
    for (std::vector<gk_Box> boxes = leaves, above; boxes.size() > 1; boxes.swap(above)) {
        levels_.push_back({eights_.size(), boxes.size()});
        above.clear();
        for (std::size_t first = 0; first < boxes.size(); first += kFan) {
            gk_EightBoxes& eight = eights_.emplace_back();
            gk_Box all = boxes[first];
            for (std::size_t i = first; i < std::min(first + kFan, boxes.size()); ++i) {
                eight.set(i - first, boxes[i]);
                all = all.enclosing(boxes[i]);
            }
            above.push_back(all);
        }
        box_ = above.front();
    }
}
