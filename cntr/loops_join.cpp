#include "cntr/loops.h"
#include "cntr/outline.h"

#include <utility>

namespace {

constexpr double kSameVertex = 1e-6; // vertex units

struct Join {
    std::size_t one;
    std::size_t other;
    long oneVertex;
    long otherVertex;
};

// The first join of the loops from `from` on.
bool findJoin(std::vector<gk_Outline>& loops, std::size_t from, Join& join) {
    for (std::size_t i = from; i + 1 < loops.size(); ++i) {
        for (std::size_t k = i + 1; k < loops.size(); ++k) {
            for (long j = 0; j < loops[i].size(); ++j) {
                if (!loops[k].mayHaveNear(loops[i][j], kSameVertex)) continue;
                const std::vector<int> shared = loops[k].near(loops[i][j], kSameVertex);
                if (shared.empty()) continue;
                join = {i, k, j, shared.front()};
                return true;
            }
        }
    }
    return false;
}

gk_Loop joined(const gk_Outline& one, long oneVertex, const gk_Outline& other, long otherVertex) {
    gk_Loop vertices;
    vertices.reserve(static_cast<std::size_t>(one.size() + other.size()));
    for (long i = 0; i < one.size(); ++i) vertices.push_back(one.wrapped(oneVertex + i));
    for (long i = 0; i < other.size(); ++i) vertices.push_back(other.wrapped(otherVertex + i));
    return vertices;
}

} // namespace

// Ends: every join leaves one loop fewer. The loops before the joined one share no vertex with any behind them,
// so none with what the join makes of those.
std::vector<gk_Loop> gk_JoinLoops(std::vector<gk_Loop> loops) {
    std::vector<gk_Outline> outlines;
    outlines.reserve(loops.size());
    for (gk_Loop& loop : loops) outlines.emplace_back(std::move(loop));
    for (Join join{}; findJoin(outlines, join.one, join);) {
        outlines[join.one] =
            gk_Outline(joined(outlines[join.one], join.oneVertex, outlines[join.other], join.otherVertex));
        if (join.other + 1 < outlines.size()) outlines[join.other] = std::move(outlines.back());
        outlines.pop_back();
    }
    std::vector<gk_Loop> left;
    left.reserve(outlines.size());
    for (const gk_Outline& outline : outlines) left.push_back(outline.points());
    return left;
}
