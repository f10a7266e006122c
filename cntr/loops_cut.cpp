#include "cntr/contour_defs.h"
#include "cntr/loop_rings.h"
#include "cntr/loops.h"
#include "cntr/search/vertex_cells.h"
#include "cntr/search/vertex_company.h"

#include <numeric>

namespace {

constexpr double kSameVertex = 1e-6; // vertex units

using Index = gk_LoopRings::Index;
constexpr Index kNone = gk_LoopRings::kNone;

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
        : walked_(walked), company_(walked, kSameVertex), vertices_(walked.size()), repeated_(walked.size()),
          ring_(walked.size(), 0) {
        std::vector<Index> all(walked.size());
        std::iota(all.begin(), all.end(), Index{0});
        vertices_.close(all);
        repeated_.close(company_.vertices());
    }

    Loop whole() const { return {0, company_.vertices().empty() ? kNone : company_.vertices().front()}; }
    bool isSingle(const Loop& loop) const { return vertices_.next(loop.start) == loop.start; }

    // The first vertex of the loop that comes again in it, and which other one is found there first.
    bool findRepeat(const Loop& loop, Repeat& repeat) const {
        if (loop.scanned == kNone) return false;
        return repeated_.any(loop.scanned, [&](Index i) {
            repeat = {i, firstNear(i, loop)};
            return repeat.second != kNone;
        });
    }

    void cut(const Repeat& repeat) {
        vertices_.exchange(repeat.first, repeat.second);
        repeated_.exchange(repeat.first, repeat.second);
        renumberShorter(repeat.first, repeat.second);
    }

    gk_Loop points(const Loop& loop) const {
        gk_Loop points;
        vertices_.any(loop.start, [&](Index i) {
            points.push_back(walked_[i]);
            return false;
        });
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
        for (const Index other : company_.near(i)) {
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
        repeated_.any(begin, [&](Index i) {
            ring_[i] = rings_;
            return false;
        });
    }

    const gk_Loop& walked_;
    gk_VertexCompany company_;
    gk_LoopRings vertices_;
    gk_LoopRings repeated_;   // those that have others near them
    std::vector<Index> ring_; // which one a repeated vertex is in
    Index rings_ = 0;
};

} // namespace

// Ends: a cut turns one loop of m vertices into two that have at least one each, m together, so there are fewer
// cuts than vertices. After a cut the scan goes on where it was: the loops before are free of repeats and stay
// so, and so are the vertices before the cut, which now are in the other part.
std::vector<gk_Loop> gk_CutLoops(const gk_Loop& walked) {
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
