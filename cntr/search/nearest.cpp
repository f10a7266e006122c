#include "cntr/search/nearest.h"

#include "cntr/search/cell_block.h"
#include "cntr/search/magnitude.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/shapes/line_ops.h"

#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The least distance so far, the lowest index among equals.
class Best {
public:
    explicit Best(std::size_t none) : index_(none) {}

    // False when the distance is not the best.
    bool offer(double distance, std::size_t index) {
        const bool isTie = distance == distance_ && index < index_ && distance < kInfinity;
        if (!(distance < distance_ || isTie)) return false;
        distance_ = distance;
        index_ = index;
        return true;
    }

    std::size_t index() const { return index_; }
    double distance() const { return distance_; }
    // No box whose squared distance exceeds this can hold a better one.
    double farther2(double slack) const { return gk_FartherSquare(distance_, slack); }

private:
    double distance_ = kInfinity;
    std::size_t index_;
};

// gk_Box::distance2 of a segment's box. What is NaN widens the box, so the segment is not passed over for it.
double boxDistance2(const gkVector<2>& a, const gkVector<2>& b, const gkVector<2>& p) {
    const gk_TwoDoubles one = gk_TwoOf(a);
    const gk_TwoDoubles other = gk_TwoOf(b);
    const gk_TwoDoubles place = gk_TwoOf(p);
    const gk_TwoDoubles gap = (one.orLess(other) - place).orGreater(place - one.orGreater(other));
    const gk_TwoDoubles outside = gap.orGreater(gk_TwoDoubles());
    const gk_TwoDoubles squares = outside * outside;
    return squares.first() + squares.second();
}

double slackOf(double reach, const gkVector<2>& p) { return gk_DistanceSlack(std::max(reach, gk_Reach(p))); }

constexpr std::size_t kRun = 8; // segments that share a box in a scan
// Of 32, 64 and 128 the quickest for 1 000 and for 100 000 segments.
constexpr std::size_t kBetweenSamples = 64;

// Whether the square of a segment's length keeps too few bits for bounds on the distances computed from it.
bool isTooShort(const gkVector<2>& a, const gkVector<2>& b) {
    const gk_TwoDoubles along = (gk_TwoOf(b) - gk_TwoOf(a)).magnitude();
    const double length = along.first() + along.second();
    return length > 0.0 && length < 10.0 * std::sqrt(kShortestSquare);
}

// Whether a segment of the run in the box is too short: neighbouring doubles are closer than that only beside
// 0.
bool holdsTooShort(const gk_Segments& segments, std::size_t begin, std::size_t end, const gk_Box& box) {
    const auto isNearZero = [](double low, double high) { return low < 1e-120 && high > -1e-120; };
    if (!isNearZero(box.x0, box.x1) && !isNearZero(box.y0, box.y1)) return false;
    for (std::size_t k = begin; k < end; ++k)
        if (isTooShort(segments.first(k), segments.second(k))) return true;
    return false;
}

// Offers what is listed in the cells around p until all the rest is certainly farther than the best; false when
// that takes more than a walk down a tree does.
template <class Offer>
bool isFoundInCells(const gk_SegmentCells& cells, const gkVector<2>& p, const Best& best, Offer offer) {
    constexpr std::size_t kMostListed = 64;
    constexpr int kMostSteps = 6;
    const gk_CellGrid& grid = cells.grid();
    if (!grid.box().holds(p)) return false;
    const double slack = slackOf(grid.reach(), p);
    gk_CellBlock block(grid, p);
    std::size_t listed = 0;
    const auto offerCell = [&](std::size_t column, std::size_t row) {
        const gk_SegmentCells::List segments = cells.segmentsIn(column, row);
        listed += segments.size();
        if (listed > kMostListed) return;
        for (const std::uint32_t k : segments) offer(k);
    };
    block.eachCell(offerCell);
    for (int step = 0; !(best.distance() + slack < block.clearance()); ++step) {
        if (step == kMostSteps || listed > kMostListed) return false;
        block.grow(offerCell);
    }
    return listed <= kMostListed;
}

} // namespace

// A box spares the segments of a run where it is farther than the best, with the slack of its own coordinates.
// A vertex with NaN is passed over by the box, as it should be: its segments are at the distance of their other
// end, or at none.
std::size_t gk_NearestSegment(const gk_Segments& segments, const gkVector<2>& p) {
    const bool isModerate = gk_IsModerate(p);
    Best best(kNoSegment);
    // A few segments all around tell soon how near the nearest is at least.
    for (std::size_t k = 0; k < segments.size(); k += kBetweenSamples)
        best.offer(gk_LineOps::distToPoint(gkLineSeg(segments.first(k), segments.second(k)), p), k);
    for (std::size_t begin = 0; begin < segments.size(); begin += kRun) {
        const std::size_t end = std::min(begin + kRun, segments.size());
        const gk_Box run = gk_RunBox(segments, {begin, end});
        const double reach = std::max({gk_Reach(p), gk_Reach({run.x0, run.y0}), gk_Reach({run.x1, run.y1})});
        const bool isBox = run.x0 <= run.x1 && run.y0 <= run.y1; // not when it starts with a NaN
        const bool isBounded = isModerate && isBox && reach <= kGreatestCoordinate;
        const double farther2 = isBounded ? best.farther2(gk_DistanceSlack(reach)) : kInfinity;
        const bool hasTooShort = holdsTooShort(segments, begin, end, run);
        if (run.distance2(p) > farther2 && !hasTooShort) continue;
        for (std::size_t k = begin; k < end; ++k) {
            const gkLineSeg segment(segments.first(k), segments.second(k));
            const bool isFar = boxDistance2(segment.p1(), segment.p2(), p) > farther2;
            if (isFar && !(hasTooShort && isTooShort(segment.p1(), segment.p2()))) continue;
            best.offer(gk_LineOps::distToPoint(segment, p), k);
        }
    }
    return best.index();
}

std::size_t gk_NearestSegment(const gk_Segments& segments, const gk_SegmentTree& tree, const gkVector<2>& p) {
    const double slack = slackOf(tree.reach(), p);
    Best best(kNoSegment);
    double farther2 = kInfinity;
    tree.nearestTo(
        p, [&] { return farther2; },
        [&](std::size_t run) {
            const gk_SegmentTree::Range range = tree.segmentsOf(run);
            for (std::size_t k = range.begin; k < range.end; ++k) {
                const gkLineSeg segment(segments.first(k), segments.second(k));
                if (boxDistance2(segment.p1(), segment.p2(), p) > farther2) continue;
                if (best.offer(gk_LineOps::distToPoint(segment, p), k)) farther2 = best.farther2(slack);
            }
        });
    return best.index();
}

std::optional<std::size_t> gk_NearestSegment(const gk_Segments& segments, const gk_SegmentCells& cells,
                                             const gkVector<2>& p) {
    const double slack = slackOf(cells.grid().reach(), p);
    Best best(kNoSegment);
    double farther2 = kInfinity;
    const bool isFound = isFoundInCells(cells, p, best, [&](std::size_t k) {
        const gkLineSeg segment(segments.first(k), segments.second(k));
        if (boxDistance2(segment.p1(), segment.p2(), p) > farther2) return;
        if (best.offer(gk_LineOps::distToPoint(segment, p), k)) farther2 = best.farther2(slack);
    });
    return isFound ? std::optional<std::size_t>(best.index()) : std::nullopt;
}

std::size_t gk_NearestVertex(const std::vector<gkVector<2>>& points, const gkVector<2>& p) {
    double best = kInfinity;
    std::size_t nearest = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double distance = gk_VectorOps::distance(points[i], p);
        if (distance < best) {
            best = distance;
            nearest = i;
        }
    }
    return nearest;
}

std::size_t gk_NearestVertex(const std::vector<gkVector<2>>& points, const gk_VertexTree& tree,
                             const gkVector<2>& p) {
    const double slack = slackOf(tree.reach(), p);
    Best best(points.size());
    double farther2 = kInfinity;
    tree.nearestTo(
        p, [&] { return farther2; },
        [&](std::size_t i) {
            const gkVector<2> offset = p - points[i];
            if (gk_VectorOps::dot(offset, offset) > farther2) return;
            if (best.offer(gk_VectorOps::distance(points[i], p), i)) farther2 = best.farther2(slack);
        });
    return best.index();
}

// The segment that ends at a vertex, or for an open outline's first one begins there, is listed where it lies.
std::optional<std::size_t> gk_NearestVertex(const gk_Segments& outline, const gk_SegmentCells& cells,
                                            const gkVector<2>& p) {
    const double slack = slackOf(cells.grid().reach(), p);
    Best best(outline.vertexCount());
    double farther2 = kInfinity;
    const auto offer = [&](std::size_t i) {
        const gkVector<2> offset = p - outline.vertex(i);
        if (gk_VectorOps::dot(offset, offset) > farther2) return;
        if (best.offer(gk_VectorOps::distance(outline.vertex(i), p), i)) farther2 = best.farther2(slack);
    };
    const bool isFound = isFoundInCells(cells, p, best, [&](std::size_t k) {
        if (outline.closed()) {
            offer(k);
            return;
        }
        offer(k + 1);
        if (k == 0) offer(0);
    });
    return isFound ? std::optional<std::size_t>(best.index()) : std::nullopt;
}
