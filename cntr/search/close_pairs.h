// All pairs of an outline's segments that are close to each other.
#ifndef GK_CNTR_SEARCH_CLOSE_PAIRS_H
#define GK_CNTR_SEARCH_CLOSE_PAIRS_H

#include "cntr/search/line_side.h"
#include "cntr/search/segment_tree.h"

#include <array>

// The pairs within a run and those of two runs.
class gk_ClosePairs {
public:
    gk_ClosePairs(const gk_Segments& outline, const gk_SegmentTree& tree, double margin)
        : outline_(outline), tree_(tree), margin_(margin) {}

    // Calls visit(k, j) once for every two segments whose boxes are within the margin, but not for neighbours.
    // A visit that returns true ends it; tells whether one did.
    template <class Visit> bool any(Visit visit) const {
        return anyUnless([&](gk_SegmentTree::Range range) { return goesOnAlongAnAxis(range); }, visit);
    }
    // The same but for some that certainly do not cross.
    template <class Visit> bool anyThatMayCross(Visit visit) const {
        return anyUnless([&](gk_SegmentTree::Range range) { return goesOn(range); }, visit);
    }

private:
    // Some of a run's segments.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): each is set before it is read
    class Reached {
    public:
        void addIf(bool isReached, std::size_t segment) {
            segments_[count_] = segment;
            count_ += isReached ? 1 : 0;
        }
        const std::size_t* begin() const { return segments_.data(); }
        const std::size_t* end() const { return segments_.data() + count_; }

    private:
        std::array<std::size_t, gk_SegmentTree::kRun + 1> segments_;
        std::size_t count_ = 0;
    };

    // But for those in a range of which areApart(range) tells that it has none.
    template <class AreApart, class Visit> bool anyUnless(AreApart areApart, Visit& visit) const {
        return tree_.anyClosePair(
            margin_, areApart,
            [&](std::size_t run, const gk_Box& box, std::size_t other, const gk_Box& otherBox) {
                const gk_SegmentTree::Range range = tree_.segmentsOf(std::min(run, other));
                if (run == other) return !areApart(range) && anyWithin(run, visit);
                const bool areNext = range.end == tree_.segmentsOf(std::max(run, other)).begin;
                if (areNext && areApart({range.begin, tree_.segmentsOf(std::max(run, other)).end}))
                    return false;
                return anyOf(run, box, other, otherBox, visit);
            });
    }

    template <class Visit> bool anyWithin(std::size_t run, Visit& visit) const {
        const gk_SegmentTree::Range range = tree_.segmentsOf(run);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): each is set before it is read
        std::array<gk_Box, gk_SegmentTree::kRun> boxes;
        for (std::size_t k = range.begin; k < range.end; ++k) boxes[k - range.begin] = boxOf(k);
        for (std::size_t k = range.begin; k + 2 < range.end; ++k) {
            const gk_Box around = boxes[k - range.begin].grownBy(margin_);
            for (std::size_t j = k + 2; j < range.end; ++j)
                if (around.overlaps(boxes[j - range.begin]) && areNoNeighbours(k, j) && visit(k, j))
                    return true;
        }
        return false;
    }

    // Only what lies near both boxes can be close: where runs follow each other, the ends beside their common
    // vertex.
    template <class Visit>
    bool anyOf(std::size_t run, const gk_Box& box, std::size_t other, const gk_Box& otherBox,
               Visit& visit) const {
        const gk_Box common = box.grownBy(margin_).common(otherBox.grownBy(margin_));
        const Reached ones = reached(tree_.segmentsOf(run), common);
        if (ones.begin() == ones.end()) return false;
        const Reached others = reached(tree_.segmentsOf(other), common);
        for (const std::size_t k : ones) {
            const gk_Box around = boxOf(k).grownBy(margin_);
            for (const std::size_t j : others)
                if (areNoNeighbours(k, j) && around.overlaps(boxOf(j)) && visit(k, j)) return true;
        }
        return false;
    }

    Reached reached(gk_SegmentTree::Range range, const gk_Box& common) const {
        Reached found;
        const gk_TwoDoubles least(common.x0, common.y0);
        const gk_TwoDoubles greatest(common.x1, common.y1);
        gk_TwoDoubles from = gk_TwoOf(outline_.first(range.begin));
        for (std::size_t k = range.begin; k < range.end; ++k) {
            const gk_TwoDoubles to = gk_TwoOf(outline_.second(k));
            found.addIf(((from.orGreater(to) >= least) & (from.orLess(to) <= greatest)).all(), k);
            from = to;
        }
        return found;
    }

    gk_Box boxOf(std::size_t k) const { return gk_Box::of(outline_.first(k), outline_.second(k)); }

    // Every segment leads on by more than the margin in one direction along an axis, so the boxes of segments
    // that are not neighbours are farther apart than that.
    bool goesOnAlongAnAxis(gk_SegmentTree::Range range) const {
        bool right = true;
        bool left = true;
        bool up = true;
        bool down = true;
        for (std::size_t k = range.begin; k < range.end; ++k) {
            const gkVector<2> step = outline_.second(k) - outline_.first(k);
            right = right && step.x() > margin_;
            left = left && -step.x() > margin_;
            up = up && step.y() > margin_;
            down = down && -step.y() > margin_;
        }
        return right || left || up || down;
    }

    // Every segment leads on towards the last one's end, so far that those on either side of it cannot cross.
    bool goesOn(gk_SegmentTree::Range range) const {
        const gkVector<2> direction = outline_.second(range.end - 1) - outline_.first(range.begin);
        const double margin = gk_ApartMargin(direction, tree_.reach());
        const gkVector<2>* from = &outline_.first(range.begin);
        for (std::size_t k = range.begin; k < range.end; ++k) {
            const gkVector<2>& to = outline_.second(k);
            if (!(gk_VectorOps::dot(to - *from, direction) > margin)) return false;
            from = &to;
        }
        return true;
    }

    bool areNoNeighbours(std::size_t k, std::size_t j) const {
        const std::size_t apart = k < j ? j - k : k - j;
        return apart > 1 && !(outline_.closed() && apart == outline_.size() - 1);
    }

    const gk_Segments& outline_;
    const gk_SegmentTree& tree_;
    double margin_;
};

#endif
