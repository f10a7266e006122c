#include "cntr/contour_defs.h"
#include "cntr/loops.h"
#include "cntr/outline.h"
#include "cntr/search/vertex_cells.h"

#include <cstdint>

namespace {

constexpr double kSameVertex = 1e-6; // vertex units

using Index = std::uint32_t;
constexpr Index kNone = UINT32_MAX;

// Indices in rings, each with a next and a previous one.
class Rings {
public:
    explicit Rings(std::size_t count) : next_(count, kNone), previous_(count, kNone) {}

    Index next(Index i) const { return next_[i]; }
    // Makes `second` follow `first`.
    void join(Index first, Index second) {
        next_[first] = second;
        previous_[second] = first;
    }
    // Cuts the ring of both in two: from one to before the other, and from the other on.
    void cut(Index one, Index other) {
        const Index beforeOne = previous_[one];
        join(previous_[other], one);
        join(beforeOne, other);
    }

private:
    std::vector<Index> next_;
    std::vector<Index> previous_;
};

// A walked outline in loops. A loop is a ring of the walk's vertices in the walk's order, whatever has been cut
// out of it, so the order of its vertices from its start on is that of their distances along the walk.
class WalkedLoops {
public:
    struct Loop {
        Index start;
        Index scanned; // the first from the start on that has others near it, or kNone
    };
    struct Repeat {
        Index first;
        Index second;
    };

    explicit WalkedLoops(const gk_Loop& walked)
        : walked_(walked), vertices_(walked.size()), repeated_(walked.size()), near_(walked.size()),
          ring_(walked.size(), 0) {
        const auto count = static_cast<Index>(walked.size());
        gk_Outline outline(walked);
        Index last = kNone;
        for (Index i = 0; i < count; ++i) {
            vertices_.join(i, i + 1 < count ? i + 1 : 0);
            std::vector<int> near = outline.near(walked[i], kSameVertex);
            if (near.size() < 2) continue;
            near_[i] = std::move(near);
            if (last != kNone) repeated_.join(last, i);
            if (first_ == kNone) first_ = i;
            last = i;
        }
        if (first_ != kNone) repeated_.join(last, first_);
    }

    Loop whole() const { return {0, first_}; }
    bool isSingle(const Loop& loop) const { return vertices_.next(loop.start) == loop.start; }

    // The first vertex of the loop that comes again in it, and which other one is found there first.
    bool findRepeat(const Loop& loop, Repeat& repeat) const {
        if (loop.scanned == kNone) return false;
        Index i = loop.scanned;
        do {
            const Index other = firstNear(i, loop);
            if (other != kNone) {
                repeat = {i, other};
                return true;
            }
            i = repeated_.next(i);
        } while (i != loop.scanned);
        return false;
    }

    void cut(const Repeat& repeat) {
        vertices_.cut(repeat.first, repeat.second);
        repeated_.cut(repeat.first, repeat.second);
        renumberShorter(repeat.first, repeat.second);
    }

    gk_Loop points(const Loop& loop) const {
        gk_Loop points;
        Index i = loop.start;
        do {
            points.push_back(walked_[i]);
            i = vertices_.next(i);
        } while (i != loop.start);
        return points;
    }

private:
    std::size_t placeIn(const Loop& loop, Index i) const {
        return i >= loop.start ? i - loop.start : i + walked_.size() - loop.start;
    }

    bool shareCell(Index a, Index b) const {
        return gk_GridCell(walked_[a].x(), kSameVertex) == gk_GridCell(walked_[b].x(), kSameVertex) &&
               gk_GridCell(walked_[a].y(), kSameVertex) == gk_GridCell(walked_[b].y(), kSameVertex);
    }

    // Those near come cell by cell; within a cell the first in the loop's order counts.
    Index firstNear(Index i, const Loop& loop) const {
        Index found = kNone;
        for (const int candidate : near_[i]) {
            const auto other = static_cast<Index>(candidate);
            if (other == i || ring_[other] != ring_[i]) continue;
            if (found != kNone && !shareCell(found, other)) break;
            if (found == kNone || placeIn(loop, other) < placeIn(loop, found)) found = other;
        }
        return found;
    }

    void renumberShorter(Index one, Index other) {
        Index a = one;
        Index b = other;
        do {
            a = repeated_.next(a);
            b = repeated_.next(b);
        } while (a != one && b != other);
        const Index begin = a == one ? one : other;
        ++rings_;
        Index i = begin;
        do {
            ring_[i] = rings_;
            i = repeated_.next(i);
        } while (i != begin);
    }

    const gk_Loop& walked_;
    Rings vertices_;
    Rings repeated_; // those that have others near them
    std::vector<std::vector<int>> near_;
    std::vector<Index> ring_; // which one a repeated vertex is in
    Index rings_ = 0;
    Index first_ = kNone;
};

} // namespace

// Ends: a cut turns one loop of m vertices into two that have at least one each, m together, so there are fewer
// cuts than vertices. After a cut the scan goes on where it was: the loops before are free of repeats and stay
// so, and so are the vertices before the cut, which now are in the other part.
std::vector<gk_Loop> gk_CutLoops(const gk_Loop& walked) {
    if (walked.empty()) return {walked};
    WalkedLoops rings(walked);
    std::vector<WalkedLoops::Loop> loops = {rings.whole()};
    for (std::size_t i = 0; i < loops.size();) {
        if (rings.isSingle(loops[i])) throw gkContourDefs::EmptyContour(L"");
        WalkedLoops::Repeat repeat{};
        if (!rings.findRepeat(loops[i], repeat)) {
            ++i;
            continue;
        }
        rings.cut(repeat);
        loops[i] = {repeat.first, repeat.first};
        loops.push_back({repeat.second, repeat.second});
    }
    std::vector<gk_Loop> cut;
    cut.reserve(loops.size());
    for (const WalkedLoops::Loop& loop : loops) cut.push_back(rings.points(loop));
    return cut;
}
