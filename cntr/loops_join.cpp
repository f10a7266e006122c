#include "cntr/loop_rings.h"
#include "cntr/loops.h"
#include "cntr/search/vertex_cells.h"
#include "cntr/search/vertex_company.h"

#include <algorithm>

namespace {

constexpr double kSameVertex = 1e-6; // vertex units

using Index = gk_LoopRings::Index;
constexpr Index kNone = gk_LoopRings::kNone;

gk_Loop allVertices(const std::vector<gk_Loop>& loops) {
    gk_Loop all;
    for (const gk_Loop& loop : loops) all.insert(all.end(), loop.begin(), loop.end());
    return all;
}

// The loops with their vertices numbered through. Only vertices that have company can join two loops.
class JoinedLoops {
public:
    explicit JoinedLoops(const std::vector<gk_Loop>& loops)
        : points_(allVertices(loops)), company_(points_, kSameVertex), vertices_(points_.size()),
          shared_(points_.size()), loopOf_(points_.size()) {
        std::size_t shared = 0;
        Index begin = 0;
        for (const gk_Loop& loop : loops) {
            const auto end = static_cast<Index>(begin + loop.size());
            std::vector<Index> own;
            for (Index i = begin; i < end; ++i) own.push_back(i);
            vertices_.close(own);
            own.clear();
            for (; shared < company_.vertices().size() && company_.vertices()[shared] < end; ++shared)
                own.push_back(company_.vertices()[shared]);
            shared_.close(own);
            for (const Index i : own) loopOf_[i] = static_cast<Index>(list_.size());
            places_.push_back(list_.size());
            list_.push_back({static_cast<Index>(places_.size() - 1), begin, own.empty() ? kNone : own.front()});
            begin = end;
        }
    }

    // Joins each loop with the first behind it that shares a vertex with it, at the first such vertex, until
    // none is left. The loops before share no vertex with any behind them, so none with what the joins make of
    // those.
    void joinAll() {
        for (std::size_t place = 0; place + 1 < list_.size();) {
            const std::size_t other = firstSharing(place);
            if (other == list_.size())
                ++place;
            else
                join(place, other);
        }
    }

    std::vector<gk_Loop> loops() const {
        std::vector<gk_Loop> loops;
        loops.reserve(list_.size());
        for (const Loop& loop : list_) {
            loops.emplace_back();
            vertices_.any(loop.start, [&](Index i) {
                loops.back().push_back(points_[i]);
                return false;
            });
        }
        return loops;
    }

private:
    struct Loop {
        Index name;
        Index start;
        Index firstShared; // the first from the start on that has company, or kNone
    };

    std::size_t placeOf(Index vertex) const { return places_[loopOf_[vertex]]; }

    // The place of the first loop behind one that shares a vertex with it; the end when there is none.
    std::size_t firstSharing(std::size_t place) const {
        std::size_t first = list_.size();
        if (list_[place].firstShared == kNone) return first;
        shared_.any(list_[place].firstShared, [&](Index i) {
            for (const Index other : company_.near(i))
                if (placeOf(other) > place) first = std::min(first, placeOf(other));
            return false;
        });
        return first;
    }

    void join(std::size_t place, std::size_t otherPlace) {
        Loop& one = list_[place];
        const Loop& other = list_[otherPlace];
        Index vertex = kNone;
        Index otherVertex = kNone;
        shared_.any(one.firstShared, [&](Index i) {
            vertex = i;
            otherVertex = firstNear(i, other);
            return otherVertex != kNone;
        });
        shared_.any(other.firstShared, [&](Index i) {
            loopOf_[i] = one.name;
            return false;
        });
        vertices_.exchange(vertex, otherVertex);
        shared_.exchange(vertex, otherVertex);
        one.start = vertex;
        one.firstShared = vertex;
        if (otherPlace + 1 < list_.size()) {
            list_[otherPlace] = list_.back();
            places_[list_[otherPlace].name] = otherPlace;
        }
        list_.pop_back();
    }

    // Those near come cell by cell; within a cell the first in the loop's order counts.
    Index firstNear(Index vertex, const Loop& loop) const {
        std::vector<Index> ofFirstCell;
        for (const Index other : company_.near(vertex)) {
            if (loopOf_[other] != loop.name) continue;
            if (!ofFirstCell.empty() && !shareCell(ofFirstCell.front(), other)) break;
            ofFirstCell.push_back(other);
        }
        if (ofFirstCell.empty()) return kNone;
        Index first = kNone;
        shared_.any(loop.firstShared, [&](Index i) {
            first = i;
            return std::find(ofFirstCell.begin(), ofFirstCell.end(), i) != ofFirstCell.end();
        });
        return first;
    }

    bool shareCell(Index a, Index b) const {
        return gk_GridCell(points_[a].x(), kSameVertex) == gk_GridCell(points_[b].x(), kSameVertex) &&
               gk_GridCell(points_[a].y(), kSameVertex) == gk_GridCell(points_[b].y(), kSameVertex);
    }

    gk_Loop points_;
    gk_VertexCompany company_;
    gk_LoopRings vertices_;
    gk_LoopRings shared_;             // those with company
    std::vector<Index> loopOf_;       // the name of the loop that a shared vertex is in
    std::vector<std::size_t> places_; // of the loops in the list, by name
    std::vector<Loop> list_;
};

} // namespace

// Ends: every join leaves one loop fewer.
std::vector<gk_Loop> gk_JoinLoops(std::vector<gk_Loop> loops) {
    if (loops.size() < 2) return loops;
    JoinedLoops joined(loops);
    joined.joinAll();
    return joined.loops();
}
