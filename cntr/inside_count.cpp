#include "cntr/inside_count.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/turn.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/vector_ops.h"

#include <algorithm>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kOnVertex = 1e-6; // vertex units
constexpr double kFirstGaps = 8.0; // of pi / n: some four vertices where they are evenly spread
constexpr double kGapGrowth = 4.0;
constexpr double kMostTurn = 4.0;    // radians; looking at all directions costs no more than at most of them
constexpr double kAngleRoom = 1e-12; // radians: thousands of the roundings of an angle

bool isOn(const gkVector<2>& offset) { return !(gk_VectorOps::length(offset) > kOnVertex); }

double directionOf(const gkVector<2>& offset) { return offset.angle().norm().toDouble(); }

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

// Compares directions of boxes and vertices seen from a point; only to leave some out, so roundings are given
// room.
class View {
public:
    View(const gkVector<2>& point, double slack) : point_(point), slack_(slack) {}

    // Not above the turn of any vertex in the box.
    double leastTurn(const gk_Box& box) const {
        return gk_LeastTurn(
            {box.x0 - point_.x(), box.y0 - point_.y(), box.x1 - point_.x(), box.y1 - point_.y()}, slack_);
    }

    // Not below the turn of a direction that is computed as `angle` or less, which is below a full turn.
    static double greatestTurn(double angle) {
        const gk_Trig::SinCos side = gk_Trig::sinCos(angle);
        return gk_QuarterTurns(side.cos, side.sin) + kRoundedTurn;
    }

    // Of two directions the one whose turn is less by more than this is the lesser as it is computed.
    static constexpr double kTurnRoom = 4e-12;

private:
    gkVector<2> point_;
    double slack_;
};

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

// The least of all vertex directions above `after`, counted from the x direction; none when there is none.
std::optional<double> nextDirection(const gk_Segments& outline, const gk_SegmentTree& tree,
                                    const gkVector<2>& point, const View& view, double after) {
    std::optional<double> least;
    double leastTurn = 5.0;
    tree.nearestFirst([&](const gk_Box& box) { return view.leastTurn(box); },
                      [&] { return leastTurn + View::kTurnRoom; },
                      [&](std::size_t run) {
                          const gk_SegmentTree::Range range = tree.verticesOf(run);
                          for (std::size_t i = range.begin; i < range.end; ++i) {
                              const gkVector<2> offset = outline.vertex(i) - point;
                              const double turn = gk_QuarterTurns(offset.x(), offset.y());
                              if (turn > leastTurn + View::kTurnRoom) continue;
                              const double angle = directionOf(offset);
                              if (!(angle > after)) continue;
                              leastTurn = std::min(leastTurn, turn);
                              if (!least || angle < *least) least = angle;
                          }
                      });
    return least;
}

// The directions from the x direction on up to `widest`. Under a narrow angle a slope tells, for offsets as
// they are computed have the exact signs.
class Sector {
public:
    Sector(const View& view, const gkVector<2>& point, double begin, double end, double slack)
        : view_(view), point_(point), slack_(slack), isNarrow_(end < kNarrow),
          least_(isNarrow_ ? std::max(slopeOf(begin - kAngleRoom), 0.0) : 0.0),
          greatest_(isNarrow_ ? slopeOf(end + kAngleRoom) : View::greatestTurn(end)) {}

    // False only when no direction to a vertex in the box is one of these.
    bool mayHold(const gk_Box& box) const {
        if (!isNarrow_) return view_.leastTurn(box) <= greatest_;
        const double left = box.x0 - point_.x();
        const double right = box.x1 - point_.x();
        return right >= -slack_ && box.y1 - point_.y() >= least_ * std::max(left, 0.0) - slack_ &&
               box.y0 - point_.y() <= greatest_ * std::max(right, 0.0) + slack_;
    }
    bool mayHold(const gkVector<2>& vertex) const {
        if (!isNarrow_) return view_.leastTurn(gk_Box::of(vertex, vertex)) <= greatest_;
        const gkVector<2> offset = vertex - point_;
        const double across = std::max(offset.x(), 0.0);
        return offset.y() <= greatest_ * across + slack_ && offset.y() >= least_ * across - slack_ &&
               offset.x() >= -slack_;
    }

private:
    static constexpr double kNarrow = 1.5; // radians, below a right angle

    static double slopeOf(double angle) {
        const gk_Trig::SinCos side = gk_Trig::sinCos(angle);
        return side.sin / side.cos;
    }

    const View& view_;
    gkVector<2> point_;
    double slack_;
    bool isNarrow_;
    double least_;
    double greatest_; // a slope or a turn
};

// directionOf() within kAngleRoom, quicker where it can be. The series leaves out s^7 / 7.
double nearlyDirectionOf(const gkVector<2>& offset) {
    constexpr double kFlat = 0.02;
    if (offset.y() > 0.0 && offset.y() < kFlat * offset.x()) {
        const double s = offset.y() / offset.x();
        return s * (1.0 - s * s * (1.0 / 3.0 - s * s * (1.0 / 5.0)));
    }
    return directionOf(offset);
}

// Looks for the first wide gap among the directions of some vertices. They are first compared as they are
// nearly known, in columns half a gap wide, since no gap within a column or between two next to each other is
// wide; what is computed as directionOf() decides.
class Gaps {
public:
    Gaps(const gk_Segments& outline, const gkVector<2>& point, double step, double begin, double gaps)
        : outline_(outline), point_(point), step_(step), begin_(begin), end_(begin + gaps * step),
          columns_(static_cast<std::size_t>(2.0 * gaps) + 1, Column{kNone, -kNone}) {}

    void add(std::size_t vertex) {
        const double angle = nearlyDirectionOf(outline_.vertex(vertex) - point_);
        if (!(angle >= begin_ && angle <= end_)) return;
        const auto place = static_cast<std::size_t>((angle - begin_) / step_ * 2.0);
        Column& column = columns_[std::min(place, columns_.size() - 1)];
        column.least = std::min(column.least, angle);
        column.greatest = std::max(column.greatest, angle);
        seen_.push_back({angle, vertex});
    }

    std::optional<gkVector<2>> firstWide() const {
        double from = kNone;
        for (const Column& column : columns_) {
            if (column.least == kNone) continue;
            if (from != kNone && column.least - from > step_ - 2.0 * kAngleRoom) {
                const double lower = exactly(from).greatest;
                const double gap = gapBetween(lower, exactly(column.least).least);
                if (gap > step_) return middleOf(lower, gap);
            }
            from = column.greatest;
        }
        return std::nullopt;
    }

    bool isEmpty() const { return seen_.empty(); }
    // The last direction, and whether there is none in the second half, so that the gap behind it is wide,
    // whatever comes next.
    double last() const { return exactly(greatest()).greatest; }
    bool endsInEmptyHalf() const { return greatest() < begin_ + (end_ - begin_) / 2.0; }
    // Where to look on when no gap was wide: before the last direction.
    double resume() const { return isEmpty() ? begin_ : std::max(0.0, greatest() - 4.0 * kAngleRoom); }

private:
    static constexpr double kNone = 1e300;
    struct Column {
        double least;
        double greatest;
    };
    struct Seen {
        double angle;
        std::size_t vertex;
    };

    // Of directions of which there is one.
    double greatest() const {
        const auto isUsed = [](const Column& column) { return column.least != kNone; };
        return std::find_if(columns_.rbegin(), columns_.rend(), isUsed)->greatest;
    }

    // The directions of those that are nearly known as `angle`.
    Column exactly(double angle) const {
        Column directions{kNone, -kNone};
        for (const Seen& seen : seen_) {
            if (std::fabs(seen.angle - angle) > 2.0 * kAngleRoom) continue;
            const double direction = directionOf(outline_.vertex(seen.vertex) - point_);
            directions.least = std::min(directions.least, direction);
            directions.greatest = std::max(directions.greatest, direction);
        }
        return directions;
    }

    const gk_Segments& outline_;
    gkVector<2> point_;
    double step_;
    double begin_;
    double end_;
    std::vector<Column> columns_;
    std::vector<Seen> seen_;
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

// The gaps are walked from angle 0 upwards, so the first wide one is known as soon as all directions up to it
// are: those up to some gaps, then those of more gaps from the last one on. Where none comes for long the next
// one is looked for by itself.
std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gk_SegmentTree& tree,
                                           const gkVector<2>& point) {
    const double slack = gk_DistanceSlack(std::max(tree.reach(), gk_Reach(point)));
    if (isOnVertex(outline, tree, point, slack)) return std::nullopt;
    const View view(point, slack);
    const double step = kPi / static_cast<double>(outline.vertexCount());
    double begin = 0.0;
    for (double gaps = kFirstGaps; begin + gaps * step < kMostTurn; gaps *= kGapGrowth) {
        Gaps found(outline, point, step, begin, gaps);
        const Sector sector(view, point, begin, begin + gaps * step, slack);
        tree.any([&](const gk_Box& box) { return sector.mayHold(box); },
                 [&](std::size_t run) {
                     const gk_SegmentTree::Range range = tree.verticesOf(run);
                     for (std::size_t i = range.begin; i < range.end; ++i)
                         if (sector.mayHold(outline.vertex(i))) found.add(i);
                     return false;
                 });
        if (const std::optional<gkVector<2>> direction = found.firstWide()) return direction;
        begin = found.resume();
        if (!found.isEmpty() && !found.endsInEmptyHalf()) continue;
        const double last = found.isEmpty() ? -1.0 : found.last();
        const std::optional<double> next = nextDirection(outline, tree, point, view, last);
        if (!next) break;
        if (!found.isEmpty()) return middleOf(last, gapBetween(last, *next));
        begin = std::max(0.0, *next - 4.0 * kAngleRoom);
        gaps = kFirstGaps / kGapGrowth;
    }
    return gk_RayDirection(outline, point);
}

long gk_InsideCount(const std::optional<gkVector<2>>& direction, const gkVector<2>& point, double rayLength,
                    bool bothWays, const gk_CountTowards& countTowards) {
    if (!direction) return 1;
    const gkVector<2> ray = *direction * rayLength;
    const long count = countTowards(point + ray);
    return bothWays ? std::min(count, countTowards(point - ray)) : count;
}
