#include "cntr/search/segment_tree.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/space_order.h"
#include "platform/core/math/two_doubles.h"

#include <utility>

namespace {

// Of a run within the bounds of magnitude.h, none for others and for one with a NaN.
std::optional<gk_Box> moderateRunBox(const gk_Segments& segments, gk_SegmentTree::Range range) {
    gk_TwoDoubles from = gk_TwoOf(segments.first(range.begin));
    gk_TwoDoubles low = from;
    gk_TwoDoubles high = from;
    for (std::size_t k = range.begin; k < range.end; ++k) {
        const gk_TwoDoubles to = gk_TwoOf(segments.second(k));
        const gk_TwoDoubles step = to - from;
        const gk_TwoDoubles squares = step * step;
        const bool isLongEnough = squares.first() + squares.second() >= kShortestSquare;
        if (!isLongEnough && segments.first(k) != segments.second(k)) return std::nullopt;
        low = to.orLess(low);
        high = to.orGreater(high);
        from = to;
    }
    const gk_Box box{low.first(), low.second(), high.first(), high.second()};
    const bool isModerate = gk_IsModerate({box.x0, box.y0}) && gk_IsModerate({box.x1, box.y1});
    return isModerate ? std::optional<gk_Box>(box) : std::nullopt;
}

} // namespace

std::optional<gk_Box> gk_OutlineBox(const gk_Segments& outline) {
    if (outline.size() == 0 || outline.size() > UINT32_MAX / 2) return std::nullopt;
    gk_Box all = gk_Box::of(outline.first(0), outline.first(0));
    for (std::size_t begin = 0; begin < outline.size(); begin += gk_SegmentTree::kRun) {
        const std::optional<gk_Box> run =
            moderateRunBox(outline, {begin, std::min(begin + gk_SegmentTree::kRun, outline.size())});
        if (!run) return std::nullopt;
        all = all.enclosing(*run);
    }
    return all;
}

std::optional<gk_SegmentTree> gk_SegmentTree::of(const gk_Segments& segments) {
    gk_SegmentTree tree;
    std::vector<gk_Box> runBoxes;
    if (segments.size() == 0 || !tree.measureRuns(segments, runBoxes)) return std::nullopt;
    tree.order(runBoxes);
    return tree;
}

gk_Box gk_RunBox(const gk_Segments& segments, gk_SegmentTree::Range range) {
    gk_TwoDoubles low = gk_TwoOf(segments.first(range.begin));
    gk_TwoDoubles high = low;
    for (std::size_t k = range.begin; k < range.end; ++k) {
        const gk_TwoDoubles place = gk_TwoOf(segments.second(k));
        low = place.orLess(low);
        high = place.orGreater(high);
    }
    return {low.first(), low.second(), high.first(), high.second()};
}

bool gk_SegmentTree::measureRuns(const gk_Segments& segments, std::vector<gk_Box>& runBoxes) {
    segmentCount_ = segments.size();
    vertexCount_ = segments.vertexCount();
    const std::size_t runCount = (segmentCount_ + kRun - 1) / kRun;
    if (runCount > UINT32_MAX) return false;
    runBoxes.reserve(runCount);
    for (std::size_t run = 0; run < runCount; ++run) {
        const std::optional<gk_Box> box = moderateRunBox(segments, segmentsOf(run));
        if (!box) return false;
        runBoxes.push_back(*box);
    }
    return true;
}

void gk_SegmentTree::order(const std::vector<gk_Box>& runBoxes) {
    gk_Box all = runBoxes.front();
    for (const gk_Box& box : runBoxes) all = all.enclosing(box);
    reach_ = std::max(gk_Reach({all.x0, all.y0}), gk_Reach({all.x1, all.y1}));

    runs_ = gk_OrderInSpace(runBoxes, all);
    std::vector<gk_Box> leaves;
    leaves.reserve(runs_.size());
    for (const std::uint32_t run : runs_) leaves.push_back(runBoxes[run]);
    boxes_ = gk_BoxHierarchy(leaves);
}
