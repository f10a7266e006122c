#include "cntr/search/farthest_pair.h"

#include "cntr/search/box_hierarchy.h"
#include "platform/core/math/vector_ops.h"

#include <cmath>

namespace {

constexpr std::size_t kRun = 16; // vertices to a box

double square(const gkVector<2>& a, const gkVector<2>& b) {
    const gkVector<2> offset = b - a;
    return gk_VectorOps::dot(offset, offset);
}

// The farthest pair so far. Squares are compared first: the root is monotone also as it rounds, so a lesser
// root has a lesser square, and squares a few roundings apart may share a root.
class Farthest {
public:
    Farthest(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& outer)
        : points_(points), outer_(outer) {}

    bool mayBeat(double greatestSquare) const { return greatestSquare >= nearly2_; }

    void offer(std::size_t i, std::size_t j) {
        const double distance2 = square(points_[outer_[i]], points_[outer_[j]]);
        if (distance2 < nearly2_) return;
        const double distance = std::sqrt(distance2);
        const bool isFirst = outer_[i] < pair_.first || (outer_[i] == pair_.first && outer_[j] < pair_.second);
        if (!(distance > pair_.distance || (distance == pair_.distance && isFirst))) return;
        pair_ = {outer_[i], outer_[j], distance};
        nearly2_ = distance2 * (1.0 - 0x1p-49);
    }

    const gk_VertexPair& pair() const { return pair_; }

private:
    const std::vector<gkVector<2>>& points_;
    const std::vector<std::uint32_t>& outer_;
    gk_VertexPair pair_{0, 0, 0.0};
    double nearly2_ = 0x1p-1074; // pairs of equal vertices do not count
};

double greatestSquare(const gk_Box& a, const gk_Box& b) {
    const double dx = std::max(a.x1 - b.x0, b.x1 - a.x0);
    const double dy = std::max(a.y1 - b.y0, b.y1 - a.y0);
    return (dx * dx + dy * dy) * (1.0 + 0x1p-49);
}

std::size_t farthestFrom(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& outer,
                         std::size_t from) {
    std::size_t farthest = from;
    double greatest = 0.0;
    for (std::size_t i = 0; i < outer.size(); ++i) {
        const double distance2 = square(points[outer[from]], points[outer[i]]);
        if (distance2 <= greatest) continue;
        greatest = distance2;
        farthest = i;
    }
    return farthest;
}

} // namespace

// Runs of outer vertices lie along the hull, so that boxes of them tell most pairs of runs apart once a far
// pair is known; going from vertex to farthest vertex finds one.
gk_VertexPair gk_FarthestPair(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& outer) {
    Farthest farthest(points, outer);
    std::size_t from = 0;
    for (int step = 0; step < 3; ++step) {
        const std::size_t to = farthestFrom(points, outer, from);
        if (from != to) farthest.offer(std::min(from, to), std::max(from, to));
        from = to;
    }
    std::vector<gk_Box> boxes;
    for (std::size_t begin = 0; begin < outer.size(); begin += kRun) {
        gk_Box box = gk_Box::of(points[outer[begin]], points[outer[begin]]);
        for (std::size_t i = begin; i < std::min(begin + kRun, outer.size()); ++i)
            box = box.enclosing(gk_Box::of(points[outer[i]], points[outer[i]]));
        boxes.push_back(box);
    }
    const auto offerAll = [&](std::size_t a, std::size_t b) {
        for (std::size_t i = a * kRun; i < std::min((a + 1) * kRun, outer.size()); ++i)
            for (std::size_t j = std::max(i + 1, b * kRun); j < std::min((b + 1) * kRun, outer.size()); ++j)
                farthest.offer(i, j);
        return false;
    };
    gk_BoxHierarchy(boxes).anyPair(
        [&](const gk_Box& a, const gk_Box& b) { return farthest.mayBeat(greatestSquare(a, b)); }, offerAll);
    return farthest.pair();
}
