#include "cntr/search/rays_ahead.h"

#include "cntr/search/line_side.h"
#include "cntr/search/turn.h"
#include "platform/core/shapes/line.h"

#include <algorithm>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kAngleRoom = 1e-12; // radians: thousands of the roundings of an angle
constexpr double kSineRoom = 8.0 * kAngleRoom;
// Runs gathered behind those that reach the x direction; more where these were too few.
constexpr std::size_t kFewestAhead = 4;
constexpr std::size_t kMostAhead = 32;
// More runs take as long as the ray's own way down the tree.
constexpr std::size_t kMostRuns = 64;
constexpr double kMostTurn = 1.75; // quarters: two directions are less than half a turn apart
constexpr std::size_t kNeighbours = 8;

// The direction after some quarter turns, at most 2.
gkVector<2> directionAt(double quarterTurns) {
    return quarterTurns <= 1.0 ? gkVector<2>(1.0 - quarterTurns, quarterTurns)
                               : gkVector<2>(1.0 - quarterTurns, 2.0 - quarterTurns);
}

// Of directions less than half a turn apart.
bool isBefore(const gkVector<2>& a, const gkVector<2>& b) { return gk_VectorOps::cross(a, b) > 0.0; }

// From the x direction up to before the last one. Without a jump: which it is cannot be foreseen.
bool isAhead(const gkVector<2>& offset, const gkVector<2>& last) {
    const double x = offset.x();
    const double y = offset.y();
    const double side = gk_VectorOps::cross(offset, last);
    return (y >= 0.0) & ((y > 0.0) | (x > 0.0)) & (side > 0.0);
}

class Gap {
public:
    Gap(const gkVector<2>& from, const gkVector<2>& to)
        : from_(from / gk_VectorOps::length(from)), to_(to / gk_VectorOps::length(to)) {}

    // 1 from a right angle on.
    double sine() const { return gk_VectorOps::dot(from_, to_) > 0.0 ? gk_VectorOps::cross(from_, to_) : 1.0; }
    gkVector<2> middle() const { return (from_ + to_) / gk_VectorOps::length(from_ + to_); }

private:
    gkVector<2> from_;
    gkVector<2> to_;
};

// A ray whose direction, of length 1, is nearly known.
class NearRay {
public:
    NearRay(const gkVector<2>& place, const gkVector<2>& direction, double room)
        : place_(place), direction_(direction), room_(room) {}

    bool meets(const gkVector<2>& from, const gkVector<2>& to) const {
        const gkVector<2> a = from - place_;
        const gkVector<2> b = to - place_;
        const double sideA = gk_VectorOps::cross(direction_, a);
        const double sideB = gk_VectorOps::cross(direction_, b);
        if (!((sideA > room_ && sideB < -room_) || (sideA < -room_ && sideB > room_))) return false;
        const double length = std::fabs(a.x() - b.x()) + std::fabs(a.y() - b.y()); // or more
        const double cross = gk_VectorOps::cross(a, b);
        const double ahead = sideB > 0.0 ? cross : -cross;
        return ahead > room_ * length && std::fabs(sideA - sideB) > kSteepEnough * length;
    }

    bool meetsAny(const gk_Segments& outline, std::size_t begin, std::size_t end, std::size_t& met) const {
        for (std::size_t k = begin; k < end; ++k) {
            if (!meets(outline.first(k), outline.second(k))) continue;
            met = k;
            return true;
        }
        return false;
    }

    bool meetsAny(const gk_Segments& outline, const gk_SegmentTree& tree, double length,
                  std::size_t& met) const {
        if (meetsAny(outline, met - std::min(met, kNeighbours), std::min(met + kNeighbours + 1, outline.size()),
                     met))
            return true;
        const gkVector<2> end = place_ + direction_ * length;
        const gk_Box around = gk_Box::of(place_, end);
        const gk_LineSide side(place_, end, std::max(tree.reach(), gk_Reach(end)));
        return tree.anyOverlapping(
            around, [&](const gk_Box& box) { return !side.rejects(box); },
            [&](std::size_t run) {
                const gk_SegmentTree::Range range = tree.segmentsOf(run);
                return meetsAny(outline, range.begin, range.end, met);
            });
    }

private:
    static constexpr double kSteepEnough = 4.0 * gkLine::kParallelSine;

    gkVector<2> place_;
    gkVector<2> direction_;
    double room_;
};

} // namespace

std::optional<gk_RaysAhead> gk_RaysAhead::of(const gk_Segments& outline,
                                             std::shared_ptr<const gk_SegmentTree> tree, double rayLength) {
    const gk_InsideCertificate certificate(outline.vertexCount(), outline.vertex(0), rayLength, tree->box());
    if (!certificate.isExact()) return std::nullopt;
    return gk_RaysAhead(std::move(tree), certificate, rayLength, outline.vertexCount());
}

gk_RaysAhead::gk_RaysAhead(std::shared_ptr<const gk_SegmentTree> tree, const gk_InsideCertificate& certificate,
                           double rayLength, std::size_t vertexCount)
    : tree_(std::move(tree)), certificate_(certificate), rayLength_(rayLength),
      wideSine_(std::sin(kPi / static_cast<double>(vertexCount))),
      room_(1.1 * certificate.margins().segment + 8.0 * kAngleRoom * rayLength), runsAhead_(kFewestAhead) {}

// The runs with the least turns: all that reach the x direction, and some more.
void gk_RaysAhead::gatherRuns(const gk_Segments& outline, const gk_Box& places) {
    const double slack = gk_DistanceSlack(
        std::max({tree_->reach(), gk_Reach({places.x0, places.y0}), gk_Reach({places.x1, places.y1})}));
    const auto leastTurn = [&](const gk_Box& box) {
        return gk_LeastTurn({box.x0 - places.x1, box.y0 - places.y1, box.x1 - places.x0, box.y1 - places.y0},
                            slack);
    };
    std::vector<double> least;
    lastTurn_ = kMostTurn;
    runs_.clear();
    tree_->nearestFirst(
        leastTurn, [&] { return runs_.size() > kMostRuns ? -1.0 : lastTurn_; },
        [&](std::size_t run) {
            const double turn = leastTurn(gk_RunBox(outline, tree_->segmentsOf(run)));
            if (turn > lastTurn_) return;
            runs_.emplace_back(turn, run);
            if (turn <= 0.0) return;
            least.insert(std::upper_bound(least.begin(), least.end(), turn), turn);
            if (least.size() > runsAhead_) least.pop_back();
            if (least.size() == runsAhead_) lastTurn_ = least.back();
        });
}

void gk_RaysAhead::gather(const gk_Segments& outline, const gk_Box& places) {
    if (unknown_ > 1)
        runsAhead_ = std::min(2 * runsAhead_, kMostAhead);
    else if (unknown_ == 0)
        runsAhead_ = std::max(runsAhead_ - 1, kFewestAhead);
    unknown_ = 0;
    places_.reset();
    gatherRuns(outline, places);
    if (runs_.size() > kMostRuns) return;
    places_ = places;
    vertices_.clear();
    for (const auto& [turn, run] : runs_) {
        if (turn > lastTurn_) continue;
        const gk_SegmentTree::Range range = tree_->verticesOf(run);
        for (std::size_t i = range.begin; i < range.end; ++i) vertices_.push_back(outline.vertex(i));
    }
    ahead_.resize(vertices_.size() + 1);
}

// None where it is not certain which gap that is. Most often it is the one between the first two, which need no
// order of all.
std::optional<gkVector<2>> gk_RaysAhead::throughFirstWideGap(const gkVector<2>& place) {
    const gkVector<2> last = directionAt(lastTurn_);
    const auto begin = ahead_.begin();
    auto end = begin;
    for (const gkVector<2>& vertex : vertices_) {
        end->offset = vertex - place;
        end += isAhead(end->offset, last) ? 1 : 0;
    }
    if (end - begin < 2) return std::nullopt;
    gkVector<2> least = begin->offset;
    gkVector<2> next = last;
    for (auto i = begin + 1; i != end; ++i) {
        if (!isBefore(i->offset, next)) continue;
        next = i->offset;
        if (isBefore(next, least)) std::swap(least, next);
    }
    const Gap first(least, next);
    if (first.sine() > wideSine_ + kSineRoom) return first.middle();
    for (auto i = begin; i != end; ++i) i->turn = gk_QuarterTurns(i->offset.x(), i->offset.y());
    std::make_heap(begin, end);
    while (end - begin > 1) {
        std::pop_heap(begin, end--);
        const Gap gap(end->offset, begin->offset);
        if (gap.sine() > wideSine_ + kSineRoom) return gap.middle();
        if (gap.sine() > wideSine_ - kSineRoom) break;
    }
    return std::nullopt;
}

bool gk_RaysAhead::bothMeet(const gk_Segments& outline, const gkVector<2>& place, gk_RaysMet& met) {
    if (!places_ || !places_->holds(place) || !certificate_.allowsRaysFrom(place)) return false;
    const std::optional<gkVector<2>> direction = throughFirstWideGap(place);
    if (!direction) {
        ++unknown_;
        return false;
    }
    return NearRay(place, *direction, room_).meetsAny(outline, *tree_, rayLength_, met.forward) &&
           NearRay(place, -*direction, room_).meetsAny(outline, *tree_, rayLength_, met.backward);
}
