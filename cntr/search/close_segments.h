// For every segment of a closed outline the others that come close to it, found together.
#ifndef GK_CNTR_SEARCH_CLOSE_SEGMENTS_H
#define GK_CNTR_SEARCH_CLOSE_SEGMENTS_H

#include "cntr/search/segment_tree.h"

#include <cstdint>
#include <optional>
#include <vector>

// Who walks along all segments asks each for its crossings. One join of the tree with itself costs less than a
// question for each, since most segments have nobody close but their neighbours.
class gk_CloseSegments {
public:
    // Segments are close when their boxes are within `margin` of each other; a segment and its neighbours are
    // not listed. None when there are so many pairs that the list would be a burden.
    static std::optional<gk_CloseSegments> of(const gk_Segments& outline, const gk_SegmentTree& tree,
                                              double margin);

    bool hasNone(std::size_t segment) const { return starts_[segment] == starts_[segment + 1]; }

    // Calls visit(k) for the segment, its two neighbours and those close to it, in ascending order.
    template <class Visit> void visitAround(std::size_t segment, Visit visit) const {
        const std::size_t count = starts_.size() - 1;
        std::size_t own[] = {segment == 0 ? count - 1 : segment - 1, segment,
                             segment + 1 == count ? 0 : segment + 1};
        std::sort(std::begin(own), std::end(own));
        const std::size_t* next = std::begin(own);
        for (std::uint32_t i = starts_[segment]; i < starts_[segment + 1]; ++i) {
            for (; next != std::end(own) && *next < close_[i]; ++next) visit(*next);
            visit(close_[i]);
        }
        for (; next != std::end(own); ++next) visit(*next);
    }

private:
    using Pair = std::pair<std::uint32_t, std::uint32_t>;

    gk_CloseSegments(std::size_t segmentCount, const std::vector<Pair>& pairs);

    std::vector<std::uint32_t> starts_; // segment k's are at starts_[k] to before starts_[k + 1]
    std::vector<std::uint32_t> close_;
};

#endif
