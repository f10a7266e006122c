#include "cntr/loops.h"
#include "cntr/outline.h"

#include <utility>

namespace {

// The first loop, in order, that lies inside another one; the number of loops when there is none.
std::size_t firstInner(std::vector<gk_Outline>& loops) {
    for (std::size_t i = 0; i < loops.size(); ++i) {
        for (std::size_t k = 0; k < loops.size(); ++k) {
            if (k == i) continue;
            const gkVector<2> middle = (loops[i].wrapped(0) + loops[i].wrapped(1)) / 2.0;
            if (loops[k].inside(middle)) return i;
        }
    }
    return loops.size();
}

} // namespace

// Ends: every round leaves one loop fewer.
std::vector<gk_Loop> gk_DropInnerLoops(std::vector<gk_Loop> loops) {
    std::vector<gk_Outline> outlines;
    outlines.reserve(loops.size());
    for (gk_Loop& loop : loops) outlines.emplace_back(std::move(loop));
    for (std::size_t i = firstInner(outlines); i < outlines.size(); i = firstInner(outlines)) {
        if (i + 1 < outlines.size()) outlines[i] = std::move(outlines.back());
        outlines.pop_back();
    }
    std::vector<gk_Loop> left;
    left.reserve(outlines.size());
    for (const gk_Outline& outline : outlines) left.push_back(outline.points());
    return left;
}
