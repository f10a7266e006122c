#include "cntr/search/farthest_pair.h"

#include "cntr/search/box_hierarchy.h"
#include "cntr/search/distinct_places.h"
#include "cntr/search/magnitude.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/math/vector_ops.h"
#include "platform/core/shapes/hull_sieve.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

using Points = std::vector<gkVector<2>>;
using Names = std::vector<std::size_t>;

double square(const gkVector<2>& a, const gkVector<2>& b) {
    const gkVector<2> offset = b - a;
    return gk_VectorOps::dot(offset, offset);
}

// Of the distances between places of two boxes.
double greatestSquare(const gk_Box& a, const gk_Box& b) {
    const double dx = std::max(a.x1 - b.x0, b.x1 - a.x0);
    const double dy = std::max(a.y1 - b.y0, b.y1 - a.y0);
    return (dx * dx + dy * dy) * (1.0 + 0x1p-49);
}

// Noisy outlines, combs and lattices have up to eight pairs for each run near the hull. More come of runs with
// long steps, such as a wide spiral's: then single vertices take less.
constexpr std::size_t kFewPairs = 10;
// From so many pairs of runs on, for each vertex, it is asked whether many vertices are at the same place.
constexpr std::size_t kMostPairs = 8;

// The farthest pair so far. Squares are compared first: the root is monotone also as it rounds, so a lesser
// root has a lesser square, and squares a few roundings apart may share a root.
class Farthest {
public:
    // The vertices' indices are `names`, or their own places when there is none. Some pair's square is at least
    // `someSquare`; 0 when all vertices may be equal, whose pairs do not count.
    Farthest(const Points& points, const Names& names, double someSquare)
        : points_(points), names_(names), nearly2_(std::max(nearly(someSquare), 0x1p-1074)) {}

    bool mayBeat(double greatestSquare) const { return greatestSquare >= nearly2_; }

    void offer(std::size_t i, std::size_t j) {
        const double distance2 = square(points_[i], points_[j]);
        if (distance2 < nearly2_) return;
        const std::size_t a = nameOf(i);
        const std::size_t b = nameOf(j);
        const gk_VertexPair pair{std::min(a, b), std::max(a, b), std::sqrt(distance2)};
        const bool isFirst =
            pair.first < pair_.first || (pair.first == pair_.first && pair.second < pair_.second);
        if (!(pair.distance > pair_.distance || (pair.distance == pair_.distance && isFirst))) return;
        pair_ = pair;
        nearly2_ = std::max(nearly2_, nearly(distance2));
    }

    // Every vertex of the one range with every one of the other.
    void offerAll(std::size_t begin, std::size_t end, std::size_t otherBegin, std::size_t otherEnd,
                  const gk_Box& other) {
        for (std::size_t i = begin; i < end; ++i) {
            if (!mayBeat(greatestSquare(gk_Box::of(points_[i], points_[i]), other))) continue;
            for (std::size_t j = otherBegin; j < otherEnd; ++j) offer(i, j);
        }
    }

    const gk_VertexPair& pair() const { return pair_; }

private:
    std::size_t nameOf(std::size_t i) const { return names_.empty() ? i : names_[i]; }
    static double nearly(double square) { return square * (1.0 - 0x1p-49); }

    const Points& points_;
    const Names& names_;
    gk_VertexPair pair_{0, 0, 0.0};
    double nearly2_;
};

// The greatest of the squares met when going from corner to farthest corner.
double someGreatSquare(const Points& corners) {
    double greatest = 0.0;
    std::size_t from = 0;
    for (int step = 0; step < 3; ++step) {
        std::size_t to = from;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const double distance2 = square(corners[from], corners[i]);
            if (distance2 <= greatest) continue;
            greatest = distance2;
            to = i;
        }
        from = to;
    }
    return greatest;
}

// None when more pairs of runs than `most` may hold the farthest two.
std::optional<gk_VertexPair> farthestOfRuns(const Points& points, const Names& names, const gk_HullSieve& sieve,
                                            const gk_HullSieve::OuterRuns& outer, std::size_t most) {
    Farthest farthest(points, names, someGreatSquare(outer.corners));
    std::vector<gk_Box> boxes;
    boxes.reserve(outer.runs.size());
    for (const std::size_t run : outer.runs) {
        const gk_HullBox& box = sieve.boxOf(run);
        boxes.push_back({box[0], box[1], box[2], box[3]});
    }
    const auto wanted = [&](const gk_Box& a, const gk_Box& b) {
        return farthest.mayBeat(greatestSquare(a, b));
    };
    const auto beginOf = [](std::size_t run) { return run * gk_HullSieve::kRun; };
    const auto endOf = [&](std::size_t run) { return std::min(beginOf(run + 1), points.size()); };
    std::size_t pairs = 0;
    const bool stopped = gk_BoxHierarchy(boxes).anyPair(wanted, [&](std::size_t a, std::size_t b) {
        const std::size_t one = outer.runs[a];
        const std::size_t other = outer.runs[b];
        if (a != b || wanted(boxes[a], boxes[a]))
            farthest.offerAll(beginOf(one), endOf(one), beginOf(other), endOf(other), boxes[b]);
        return ++pairs > most;
    });
    if (stopped) return std::nullopt;
    return farthest.pair();
}

// For vertices in no order: those near the hull, laid around it.
std::optional<gk_VertexPair> farthestOfPoints(const Points& points, const gk_HullSieve& sieve, double slack,
                                              std::size_t most) {
    gk_HullSieve::OuterPoints outer = sieve.outerPoints(slack);
    const auto isBefore = [&](std::size_t a, std::size_t b) { return points[a].x() < points[b].x(); };
    std::sort(outer.lower.begin(), outer.lower.end(), isBefore);
    std::sort(outer.upper.begin(), outer.upper.end(), isBefore);
    Names names = outer.lower;
    names.insert(names.end(), outer.upper.begin(), outer.upper.end());
    const Points around = gk_VerticesAt(points, names);
    const gk_HullSieve sieveOfThese(around);
    return farthestOfRuns(around, names, sieveOfThese, sieveOfThese.outerRuns(slack), most);
}

std::optional<gk_VertexPair> farthestOf(const Points& points, const gk_HullSieve& sieve, double slack,
                                        std::size_t most) {
    const gk_HullSieve::OuterRuns outer = sieve.outerRuns(slack);
    if (outer.areTelling) {
        const std::size_t few = kFewPairs * outer.runs.size() + gk_HullSieve::kRun * gk_HullSieve::kRun;
        if (const auto pair = farthestOfRuns(points, {}, sieve, outer, few)) return pair;
    }
    return farthestOfPoints(points, sieve, slack, most);
}

} // namespace

// A computed distance is less than half the slack off (magnitude.h). An end of a pair that is e short of the
// farthest two is no deeper in the hull than e: from the other end, a hull vertex beyond it would be farther
// than the farthest. Runs that come around the hull lie in boxes that tell most pairs of them apart.
std::optional<gk_VertexPair> gk_FarthestPair(const Points& points) {
    if (points.empty()) return std::nullopt;
    const gk_HullSieve sieve(points);
    const gk_HullBox& all = sieve.box();
    const gkVector<2> least(all[0], all[1]);
    const gkVector<2> greatest(all[2], all[3]);
    if (!sieve.areFinite() || !gk_IsModerate(least) || !gk_IsModerate(greatest)) return std::nullopt;
    const double slack = 2.0 * gk_DistanceSlack(std::max(gk_Reach(least), gk_Reach(greatest)));
    if (const auto pair = farthestOf(points, sieve, slack, kMostPairs * points.size())) return pair;
    const Names names = gk_DistinctPlaces(points);
    if (names.size() > points.size() / 2) return farthestOf(points, sieve, slack, SIZE_MAX);
    const Points places = gk_VerticesAt(points, names);
    const auto pair = farthestOf(places, gk_HullSieve(places), slack, SIZE_MAX);
    return gk_VertexPair{names[pair->first], names[pair->second], pair->distance};
}
