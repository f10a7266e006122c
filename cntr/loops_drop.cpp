#include "cntr/loops.h"
#include "cntr/outline.h"

#include <utility>

namespace {

bool isInner(std::vector<gk_Outline>& loops, std::size_t i) {
    const gkVector<2> middle = (loops[i].wrapped(0) + loops[i].wrapped(1)) / 2.0;
    for (std::size_t k = 0; k < loops.size(); ++k) {
        if (k != i && loops[k].inside(middle)) return true;
    }
    return false;
}

} // namespace

// Ends: every round leaves one loop fewer or goes on to the next. A loop in no other one is in none when there
// are fewer, so none is looked at twice.
std::vector<gk_Loop> gk_DropInnerLoops(std::vector<gk_Loop> loops) {
    std::vector<gk_Outline> outlines;
    outlines.reserve(loops.size());
    for (gk_Loop& loop : loops) outlines.emplace_back(std::move(loop));
    for (std::size_t i = 0; i < outlines.size();) {
        if (!isInner(outlines, i)) {
            ++i;
            continue;
        }
        if (i + 1 < outlines.size()) outlines[i] = std::move(outlines.back());
        outlines.pop_back();
    }
    std::vector<gk_Loop> left;
    left.reserve(outlines.size());
    for (gk_Outline& outline : outlines) left.push_back(outline.takePoints());
    return left;
}
