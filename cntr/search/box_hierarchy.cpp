#include "cntr/search/box_hierarchy.h"

gk_BoxHierarchy::gk_BoxHierarchy(std::vector<gk_Box> leaves) : boxes_(std::move(leaves)) {
    constexpr std::size_t kMostLevels = 12;
    boxes_.reserve(boxes_.size() + boxes_.size() / (kFan - 1) + kMostLevels);
    levelStarts_.push_back(0);
    for (std::size_t begin = 0, end = boxes_.size(); end - begin > 1;
         begin = levelStarts_.back(), end = boxes_.size()) {
        levelStarts_.push_back(end);
        for (std::size_t child = begin; child < end; child += kFan) {
            gk_Box box = boxes_[child];
            for (std::size_t i = child + 1; i < std::min(child + kFan, end); ++i)
                box = box.enclosing(boxes_[i]);
            boxes_.push_back(box);
        }
    }
}
