#include "cntr/search/close_segments.h"

#include "cntr/search/close_pairs.h"

#include <numeric>

namespace {

// More pairs than these for each segment cost more than a question for each.
constexpr std::size_t kMostPairs = 8;

} // namespace

std::optional<gk_CloseSegments> gk_CloseSegments::of(const gk_Segments& outline, const gk_SegmentTree& tree,
                                                     double margin) {
    if (outline.size() > UINT32_MAX / (2 * kMostPairs)) return std::nullopt;
    std::vector<Pair> pairs;
    const bool areTooMany = gk_ClosePairs(outline, tree, margin).any([&](std::size_t k, std::size_t j) {
        pairs.emplace_back(static_cast<std::uint32_t>(k), static_cast<std::uint32_t>(j));
        return pairs.size() > kMostPairs * outline.size();
    });
    if (areTooMany) return std::nullopt;
    return gk_CloseSegments(outline.size(), pairs);
}

gk_CloseSegments::gk_CloseSegments(std::size_t segmentCount, const std::vector<Pair>& pairs)
    : starts_(segmentCount + 1, 0), close_(2 * pairs.size()) {
    for (const Pair& pair : pairs) {
        ++starts_[pair.first];
        ++starts_[pair.second];
    }
    std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
    // From the end of each list to its start, where `starts_` then points.
    for (const Pair& pair : pairs) {
        close_[--starts_[pair.first]] = pair.second;
        close_[--starts_[pair.second]] = pair.first;
    }
    for (std::size_t k = 0; k < segmentCount; ++k) {
        if (starts_[k + 1] - starts_[k] > 1)
            std::sort(close_.begin() + starts_[k], close_.begin() + starts_[k + 1]);
    }
}
