// The vertex with the greatest score, by boxes over runs of consecutive vertices.
#ifndef GK_CNTR_SEARCH_VERTEX_RUNS_H
#define GK_CNTR_SEARCH_VERTEX_RUNS_H

#include "cntr/search/box.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

// A score is computed from a vertex so that it grows, or falls, with each coordinate, also as it rounds; then
// no vertex of a box has a greater one than the box's corner in that direction. A score has
//   double operator()(const gkVector<2>& vertex) const
//   gkVector<2> corner(const gk_Box& box) const
//
// Any vertices will do: coordinates that are NaN are left out of the boxes, as a score that is NaN is never the
// greatest. About 2 bytes a vertex.
class gk_VertexRuns {
public:
    using Points = std::vector<gkVector<2>>;

    explicit gk_VertexRuns(const Points& points);

    // Index of the first vertex with the greatest score above the most negative double; -1 when there is none.
    template <class Score> long firstGreatest(const Points& points, const Score& score) const {
        Best best{std::numeric_limits<double>::lowest(), -1};
        double limit = best.score; // no more than the greatest score
        const auto isBelow = [&](const gk_Box& box) { return score(score.corner(box)) < limit; };
        if (!groups_.empty()) limit = greatestOfLikeliest(points, score);
        for (std::size_t group = 0; group < groups_.size(); ++group) {
            if (isBelow(groups_[group])) continue;
            for (std::size_t run = group * kGroup; run < endOf(group, kGroup, runs_.size()); ++run) {
                if (isBelow(runs_[run])) continue;
                best = greatest(points, score, run, best);
                limit = std::max(limit, best.score);
            }
        }
        return best.index;
    }

private:
    static constexpr std::size_t kRun = 16;   // vertices
    static constexpr std::size_t kGroup = 16; // runs

    struct Best {
        double score;
        long index;
    };

    static std::size_t endOf(std::size_t part, std::size_t size, std::size_t count) {
        return std::min((part + 1) * size, count);
    }

    template <class Score>
    static Best greatest(const Points& points, const Score& score, std::size_t run, Best best) {
        for (std::size_t i = run * kRun; i < endOf(run, kRun, points.size()); ++i) {
            const double candidate = score(points[i]);
            if (candidate > best.score) best = {candidate, static_cast<long>(i)};
        }
        return best;
    }

    // The greatest score in the run whose box promises most.
    template <class Score> double greatestOfLikeliest(const Points& points, const Score& score) const {
        const auto likeliest = [&](const std::vector<gk_Box>& boxes, std::size_t begin, std::size_t end) {
            double most = std::numeric_limits<double>::lowest();
            std::size_t found = begin;
            for (std::size_t i = begin; i < end; ++i) {
                const double promise = score(score.corner(boxes[i]));
                if (!(promise > most)) continue;
                most = promise;
                found = i;
            }
            return found;
        };
        const std::size_t group = likeliest(groups_, 0, groups_.size());
        const std::size_t run = likeliest(runs_, group * kGroup, endOf(group, kGroup, runs_.size()));
        return greatest(points, score, run, {std::numeric_limits<double>::lowest(), -1}).score;
    }

    std::vector<gk_Box> runs_;
    std::vector<gk_Box> groups_;
};

#endif
