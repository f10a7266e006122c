// A hierarchy of boxes over runs of consecutive segments, the runs put in order of space.
#ifndef GK_CNTR_SEARCH_SEGMENT_TREE_H
#define GK_CNTR_SEARCH_SEGMENT_TREE_H

#include "cntr/search/box_hierarchy.h"
#include "cntr/search/segments.h"

#include <cstdint>
#include <optional>

// Consecutive segments are neighbours in space, so a run of them needs one box, and within a run they come in
// index order. Runs that follow each other may be far from their neighbours in space (the turns of a spiral,
// the teeth of a comb), so what lies above the runs is ordered by space. About 5 bytes per segment.
class gk_SegmentTree {
public:
    static constexpr std::size_t kRun = 8; // segments

    // None for an outline whose numbers are beyond the bounds of magnitude.h.
    static std::optional<gk_SegmentTree> of(const gk_Segments& segments);

    const gk_Box& box() const { return boxes_.box(); }
    // Greatest |coordinate|.
    double reach() const { return reach_; }

    struct Range {
        std::size_t begin;
        std::size_t end;
    };
    Range segmentsOf(std::size_t run) const {
        const std::size_t begin = run * kRun;
        return {begin, std::min(begin + kRun, segmentCount_)};
    }
    // Every vertex belongs to one run: to that of the segment which has its number, the last one of an open
    // outline to the last run.
    Range verticesOf(std::size_t run) const {
        const Range range = segmentsOf(run);
        return {range.begin, range.end == segmentCount_ ? vertexCount_ : range.end};
    }

    // As gk_BoxHierarchy, with runs for leaves.
    template <class Wanted, class Visit> bool any(Wanted wanted, Visit visit) const {
        return boxes_.any(wanted, [&](std::size_t leaf) { return visit(runs_[leaf]); });
    }
    template <class Wanted, class Visit>
    bool anyOverlapping(const gk_Box& box, Wanted wanted, Visit visit) const {
        return boxes_.anyOverlapping(box, wanted, [&](std::size_t leaf) { return visit(runs_[leaf]); });
    }
    template <class Visit> bool anyOverlapping(const gk_Box& box, Visit visit) const {
        return boxes_.anyOverlapping(box, [&](std::size_t leaf) { return visit(runs_[leaf]); });
    }
    template <class Nearness, class Limit, class Visit>
    void nearestFirst(Nearness nearness, Limit limit, Visit visit) const {
        boxes_.nearestFirst(nearness, limit, [&](std::size_t leaf) { visit(runs_[leaf]); });
    }
    template <class Limit, class Visit> void nearestTo(const gkVector<2>& p, Limit limit, Visit visit) const {
        boxes_.nearestTo(p, limit, [&](std::size_t leaf) { visit(runs_[leaf]); });
    }
    // Calls visit(run, box, other, box of the other).
    // A range of some runs of which isNone(range) tells that it holds no pair of use is passed over.
    template <class IsNone, class Visit> bool anyClosePair(double margin, IsNone isNone, Visit visit) const {
        const auto isNoneOfLeaves = [&](std::size_t first, std::size_t count) {
            const std::uint32_t run = runs_[first];
            for (std::size_t i = 1; i < count; ++i)
                if (runs_[first + i] != run + i) return false;
            return isNone(Range{segmentsOf(run).begin, segmentsOf(run + count - 1).end});
        };
        return boxes_.anyClosePair(margin, isNoneOfLeaves, [&](std::size_t leaf, std::size_t other) {
            return visit(runs_[leaf], boxes_.leaf(leaf), runs_[other], boxes_.leaf(other));
        });
    }

private:
    gk_SegmentTree() = default;

    bool measureRuns(const gk_Segments& segments, std::vector<gk_Box>& runBoxes);
    void order(const std::vector<gk_Box>& runBoxes);

    std::size_t segmentCount_ = 0;
    std::size_t vertexCount_ = 0;
    double reach_ = 0.0;
    gk_BoxHierarchy boxes_;
    std::vector<std::uint32_t> runs_; // the leaves'
};

// The box of an outline within the bounds of magnitude.h; none for others and for one without a segment.
std::optional<gk_Box> gk_OutlineBox(const gk_Segments& outline);

// The box of some consecutive segments.
gk_Box gk_RunBox(const gk_Segments& segments, gk_SegmentTree::Range range);

#endif
