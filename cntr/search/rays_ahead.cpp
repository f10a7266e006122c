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
constexpr std::size_t kMostVisited = 4 * kMostRuns;
constexpr double kMostTurn = 1.75; // quarters: two directions are less than half a turn apart
// Only from here may a vertex be so near the x direction as kTinyOffset.
constexpr double kTinyPlace = 1e-280;
constexpr std::size_t kNeighbours = 8;

// Not above the turn of anything in the box, seen from any of the places.
double leastTurn(const gk_Box& box, const gk_Box& places) {
    return gk_LeastTurn({box.x0 - places.x1, box.y0 - places.y1, box.x1 - places.x0, box.y1 - places.y0});
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

double squared(double number) { return number * number; }

double sineOfStep(std::size_t vertexCount) { return std::sin(kPi / static_cast<double>(vertexCount)); }

gkVector<2> middleOf(const gkVector<2>& from, const gkVector<2>& to) {
    const gkVector<2> sum = from / gk_VectorOps::length(from) + to / gk_VectorOps::length(to);
    return sum / gk_VectorOps::length(sum);
}

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
      wideSine2_(squared(sineOfStep(vertexCount) + kSineRoom)),
      narrowSine2_(squared(sineOfStep(vertexCount) - kSineRoom)),
      room_(1.1 * certificate.margins().segment + 8.0 * kAngleRoom * rayLength), runsAhead_(kFewestAhead) {}

// The runs with the least turns: all that reach the x direction, and some more.
bool gk_RaysAhead::gatherRuns(const gk_Segments& outline, const gk_Box& places) {
    std::vector<double> least;
    lastTurn_ = kMostTurn;
    runs_.clear();
    std::size_t visited = 0;
    const auto isTooMuch = [&] { return runs_.size() > kMostRuns || visited > kMostVisited; };
    tree_->nearestFirst([&](const gk_Box& box) { return leastTurn(box, places); },
                        [&] { return isTooMuch() ? -1.0 : lastTurn_; },
                        [&](std::size_t run) {
                            ++visited;
                            const double turn = leastTurn(gk_RunBox(outline, tree_->segmentsOf(run)), places);
                            if (turn > lastTurn_) return;
                            runs_.emplace_back(turn, run);
                            if (turn <= 0.0) return;
                            least.insert(std::upper_bound(least.begin(), least.end(), turn), turn);
                            if (least.size() > runsAhead_) least.pop_back();
                            if (least.size() == runsAhead_) lastTurn_ = least.back();
                            if (runs_.size() > kMostRuns) forgetRunsBehind();
                        });
    forgetRunsBehind();
    return !isTooMuch();
}

void gk_RaysAhead::forgetRunsBehind() {
    runs_.erase(
        std::remove_if(runs_.begin(), runs_.end(), [&](const auto& run) { return run.first > lastTurn_; }),
        runs_.end());
}

void gk_RaysAhead::gather(const gk_Segments& outline, const gk_Box& places) {
    if (unknown_ > 1)
        runsAhead_ = std::min(2 * runsAhead_, kMostAhead);
    else if (unknown_ == 0)
        runsAhead_ = std::max(runsAhead_ - 1, kFewestAhead);
    unknown_ = 0;
    places_.reset();
    if (!gatherRuns(outline, places)) return;
    places_ = places;
    vertices_.clear();
    for (const auto& [turn, run] : runs_) {
        const gk_SegmentTree::Range range = tree_->verticesOf(run);
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const gkVector<2>& vertex = outline.vertex(i);
            if (leastTurn(gk_Box::of(vertex, vertex), places) <= lastTurn_) vertices_.push_back(vertex);
        }
    }
    ahead_.resize(vertices_.size() + 1);
}

// None where it is not certain which gap that is. Most often it is the one between the first two, which need no
// order of all.
std::optional<gkVector<2>> gk_RaysAhead::throughFirstWideGap(const gkVector<2>& place) {
    const gkVector<2> last = gk_DirectionAt(lastTurn_);
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
    if (gk_IsWider(least, next, wideSine2_)) return middleOf(least, next);
    for (auto i = begin; i != end; ++i) i->turn = gk_QuarterTurns(i->offset.x(), i->offset.y());
    std::make_heap(begin, end);
    while (end - begin > 1) {
        std::pop_heap(begin, end--);
        const gkVector<2>& from = end->offset;
        const gkVector<2>& to = begin->offset;
        if (gk_IsWider(from, to, wideSine2_)) return middleOf(from, to);
        if (gk_IsWider(from, to, narrowSine2_)) break;
    }
    return std::nullopt;
}

bool gk_RaysAhead::bothMeet(const gk_Segments& outline, const gkVector<2>& place, gk_RaysMet& met) {
    if (!places_ || !places_->holds(place) || !certificate_.allowsRaysFrom(place)) return false;
    if (std::fabs(place.y()) < kTinyPlace) return false;
    const std::optional<gkVector<2>> direction = throughFirstWideGap(place);
    if (!direction) {
        ++unknown_;
        return false;
    }
    return NearRay(place, *direction, room_).meetsAny(outline, *tree_, rayLength_, met.forward) &&
           NearRay(place, -*direction, room_).meetsAny(outline, *tree_, rayLength_, met.backward);
}
