#include "cntr/search/ray_direction.h"

#include "cntr/search/direction_columns.h"
#include "cntr/search/magnitude.h"
#include "cntr/search/turn.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/vector_ops.h"

#include <algorithm>
#include <utility>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kOnVertex = 1e-6; // vertex units
constexpr double kFirstGaps = 8.0; // of pi / n: some four vertices where they are evenly spread
constexpr double kGapGrowth = 3.0;
constexpr double kMostTurn = 2.5;   // quarters; looking at all directions costs no more than at most of them
constexpr std::size_t kFew = 64;    // vertices: looked through again rather than found again
constexpr double kSineRoom = 4e-11; // ten times the room of a turn

bool isOn(const gkVector<2>& offset) { return !(gk_VectorOps::length(offset) > kOnVertex); }

double directionOf(const gkVector<2>& offset) { return offset.angle().norm().toDouble(); }

double squared(double number) { return number * number; }

double gapBetween(double from, double to) { return gkRadian(to - from).norm().toDouble(); }

gkVector<2> middleOf(double angle, double gap) { return gkVector<2>(1.0, gkRadian(angle + gap / 2.0)); }

// The angles are all of them.
gkVector<2> throughFirstWideGap(std::vector<double>& angles) {
    const double step = kPi / static_cast<double>(angles.size());
    std::sort(angles.begin(), angles.end());
    for (std::size_t i = 0; i < angles.size(); ++i) {
        const double gap = gapBetween(angles[i], angles[i + 1 < angles.size() ? i + 1 : 0]);
        if (gap > step) return middleOf(angles[i], gap);
    }
    return gkVector<2>(1.0, 0.0);
}

// Of the direction as it is computed, within kRoundedTurn.
double turnOf(const gkVector<2>& offset) {
    const double turn = gk_QuarterTurns(offset.x(), offset.y());
    return turn == 4.0 && directionOf(offset) == 0.0 ? 0.0 : turn;
}

// Of two directions the one whose turn is less by more than this is the lesser as it is computed.
constexpr double kTurnRoom = 4e-12;

double turnOfAngle(double angle) {
    const gk_Trig::SinCos side = gk_Trig::sinCos(angle);
    return gk_QuarterTurns(side.cos, side.sin);
}

bool isOnVertex(const gk_Segments& outline, const gk_SegmentTree& tree, const gkVector<2>& point,
                double slack) {
    const gk_Box around = gk_Box::of(point, point).grownBy(2.0 * kOnVertex + slack);
    return tree.anyOverlapping(around, [&](std::size_t run) {
        const gk_SegmentTree::Range range = tree.verticesOf(run);
        for (std::size_t i = range.begin; i < range.end; ++i)
            if (isOn(outline.vertex(i) - point)) return true;
        return false;
    });
}

using Turns = gk_DirectionColumns::Range;

// Not above the turn of any vertex in the box.
double leastTurn(const gkVector<2>& point, const gk_Box& box) {
    return gk_LeastTurn({box.x0 - point.x(), box.y0 - point.y(), box.x1 - point.x(), box.y1 - point.y()});
}

// The vertices whose turn is between two. Under a narrow angle a slope tells, for offsets as they are computed
// have the exact signs.
class Sector {
public:
    Sector(const gkVector<2>& point, const Turns& turns, double slack)
        : point_(point), slack_(slack), isNarrow_(turns.end < kNarrow),
          least_(isNarrow_ ? std::max(slopeAt(turns.begin - kRoundedTurn), 0.0) : 0.0),
          greatest_(isNarrow_ ? slopeAt(turns.end + kRoundedTurn) : turns.end + kRoundedTurn) {}

    // Around them all, where they are in a box.
    gk_Box around(const gk_Box& box) const {
        if (!isNarrow_) return box;
        const double across = std::max(box.x1 - point_.x(), 0.0);
        return {point_.x() - slack_, point_.y() - slack_, box.x1,
                point_.y() + greatest_ * across + 2.0 * slack_};
    }
    // False only when no vertex in the box is one of these.
    bool mayHold(const gk_Box& box) const {
        if (!isNarrow_) return leastTurn(point_, box) <= greatest_;
        const double left = box.x0 - point_.x();
        const double right = box.x1 - point_.x();
        return right >= -slack_ && box.y1 - point_.y() >= least_ * std::max(left, 0.0) - slack_ &&
               box.y0 - point_.y() <= greatest_ * std::max(right, 0.0) + slack_;
    }
    bool mayHold(const gkVector<2>& offset) const {
        if (!isNarrow_) return true;
        const double across = std::max(offset.x(), 0.0);
        return offset.y() <= greatest_ * across + slack_ && offset.y() >= least_ * across - slack_ &&
               offset.x() >= -slack_;
    }

private:
    static constexpr double kNarrow = 0.9; // quarter turns

    static double slopeAt(double turn) { return turn / (1.0 - turn); }

    gkVector<2> point_;
    double slack_;
    bool isNarrow_;
    double least_;
    double greatest_; // a slope or a turn
};

// The gaps are walked from angle 0 upwards, so the first wide one is known as soon as all directions up to it
// are: those up to some gaps, then those of more gaps from the last one on. Where none comes for long the next
// one is looked for by itself. Which gaps may be wide shows in columns; what is computed as directionOf()
// decides.
class GapSearch {
public:
    GapSearch(const gk_Segments& outline, const gk_SegmentTree& tree, const gkVector<2>& point, double slack)
        : outline_(outline), tree_(tree), point_(point), slack_(slack),
          step_(kPi / static_cast<double>(outline.vertexCount())),
          narrowSine2_(squared(gk_Trig::sinCos(step_).sin - kSineRoom)) {}

    // None where all directions had better be looked at.
    std::optional<gkVector<2>> throughFirstWideGap() {
        double begin = 0.0;
        for (double gaps = kFirstGaps; begin + gaps * step_ < kMostTurn; gaps *= kGapGrowth) {
            const gk_DirectionColumns found = columns({begin, begin + gaps * step_});
            if (const std::optional<gkVector<2>> middle = throughFirstWide(found)) return middle;
            if (found.isEmpty()) {
                const std::optional<double> next = directionAfter(-1.0, begin);
                if (!next) break;
                begin = std::max(0.0, turnOfAngle(*next) - kTurnRoom);
                gaps = kFirstGaps / kGapGrowth;
                continue;
            }
            const Turns turns = found.last();
            const bool endsInEmptyHalf = turns.end < begin + gaps * step_ / 2.0;
            begin = std::max(0.0, turns.begin - kTurnRoom);
            if (!endsInEmptyHalf) continue;
            const double last = directions(turns).back();
            const std::optional<double> next = directionAfter(last, begin);
            if (!next) break;
            return middleOf(last, gapBetween(last, *next));
        }
        return std::nullopt;
    }

private:
    // Calls visit(offset, turn) for all vertices whose turn is between two.
    template <class Visit> void visitBetween(const Turns& turns, Visit visit) const {
        const Sector sector(point_, turns, slack_);
        tree_.anyOverlapping(
            sector.around(tree_.box()), [&](const gk_Box& box) { return sector.mayHold(box); },
            [&](std::size_t run) {
                const gk_SegmentTree::Range range = tree_.verticesOf(run);
                for (std::size_t i = range.begin; i < range.end; ++i) {
                    const gkVector<2> offset = outline_.vertex(i) - point_;
                    if (!sector.mayHold(offset)) continue;
                    const double turn = turnOf(offset);
                    if (turn >= turns.begin && turn <= turns.end) visit(offset, turn);
                }
                return false;
            });
    }

    // So much that no direction beyond comes between those within.
    static Turns widened(const Turns& turns) { return {turns.begin - kTurnRoom, turns.end + kTurnRoom}; }

    gk_DirectionColumns columns(const Turns& turns) {
        gk_DirectionColumns found(turns.begin, turns.end, step_);
        seen_.clear();
        visitBetween(widened(turns), [&](const gkVector<2>& offset, double turn) {
            found.add(turn);
            if (seen_.size() <= kFew) seen_.emplace_back(offset, turn);
        });
        return found;
    }

    // The least of all vertex directions above `after`, none of which has a turn below `least`; none when there
    // is none.
    std::optional<double> directionAfter(double after, double least) const {
        std::optional<double> next;
        double nextTurn = 5.0;
        const gkVector<2> before = gk_DirectionAt(least);
        const auto nearness = [&](const gk_Box& box) {
            // What is before the x direction may be wanted, nothing else of what is before `least`.
            const gkVector<2> corner(box.x0 - point_.x(), box.y1 - point_.y());
            const bool isBefore = least > 0.0 && corner.x() > 0.0 && gk_VectorOps::cross(before, corner) < 0.0;
            return isBefore ? 3.0 : leastTurn(point_, box);
        };
        tree_.nearestFirst(
            nearness, [&] { return nextTurn + kTurnRoom; },
            [&](std::size_t run) {
                const gk_SegmentTree::Range range = tree_.verticesOf(run);
                for (std::size_t i = range.begin; i < range.end; ++i) {
                    const gkVector<2> offset = outline_.vertex(i) - point_;
                    const double turn = turnOf(offset);
                    if (turn < least || turn > nextTurn + kTurnRoom) continue;
                    const double angle = directionOf(offset);
                    if (!(angle > after)) continue;
                    nextTurn = std::min(nextTurn, turn);
                    if (!next || angle < *next) next = angle;
                }
            });
        return next;
    }

    // Those in the columns found last, in order.
    std::vector<double> directions(const Turns& turns) const {
        const Turns around = widened(turns);
        std::vector<double> angles;
        if (seen_.size() > kFew) {
            visitBetween(around,
                         [&](const gkVector<2>& offset, double) { angles.push_back(directionOf(offset)); });
        } else {
            for (const auto& [offset, turn] : seen_)
                if (turn >= around.begin && turn <= around.end) angles.push_back(directionOf(offset));
        }
        std::sort(angles.begin(), angles.end());
        return angles;
    }

    std::optional<gkVector<2>> throughFirstWide(const gk_DirectionColumns& found) const {
        std::optional<gkVector<2>> middle;
        found.anyGap([&](const Turns& turns) {
            if (!gk_IsWider(gk_DirectionAt(turns.begin), gk_DirectionAt(turns.end), narrowSine2_)) return false;
            const std::vector<double> angles = directions(turns);
            const auto wide = std::adjacent_find(angles.begin(), angles.end(), [&](double from, double to) {
                return gapBetween(from, to) > step_;
            });
            if (wide != angles.end()) middle = middleOf(*wide, gapBetween(*wide, *std::next(wide)));
            return middle.has_value();
        });
        return middle;
    }

    const gk_Segments& outline_;
    const gk_SegmentTree& tree_;
    gkVector<2> point_;
    double slack_;
    double step_;
    double narrowSine2_;                               // the square of a sine
    std::vector<std::pair<gkVector<2>, double>> seen_; // offsets in the columns found last, where they are few
};

} // namespace

std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gkVector<2>& point) {
    std::vector<double> angles;
    angles.reserve(outline.vertexCount());
    for (std::size_t i = 0; i < outline.vertexCount(); ++i) {
        const gkVector<2> offset = outline.vertex(i) - point;
        if (isOn(offset)) return std::nullopt;
        angles.push_back(directionOf(offset));
    }
    return throughFirstWideGap(angles);
}

std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gk_SegmentTree& tree,
                                           const gkVector<2>& point) {
    const double slack = gk_DistanceSlack(std::max(tree.reach(), gk_Reach(point)));
    if (isOnVertex(outline, tree, point, slack)) return std::nullopt;
    const std::optional<gkVector<2>> direction = GapSearch(outline, tree, point, slack).throughFirstWideGap();
    return direction ? direction : gk_RayDirection(outline, point);
}
