#include "cntr/inside_count.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/turn.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/vector_ops.h"

#include <algorithm>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kOnVertex = 1e-6;  // vertex units
constexpr double kFirstGaps = 8.0;  // of pi / n: some four vertices where they are evenly spread
constexpr double kGapGrowth = 16.0; // so that few spans are looked through before all directions are
constexpr double kMostTurn = 4.0;   // radians; looking at all directions costs no more than at most of them

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
        const double left = box.x0 - point_.x();
        const double right = box.x1 - point_.x();
        const double down = box.y0 - point_.y();
        const double up = box.y1 - point_.y();
        if (right >= -slack_ && down <= slack_ && up >= -slack_) return 0.0;
        return std::min({gk_QuarterTurns(left, down), gk_QuarterTurns(left, up), gk_QuarterTurns(right, down),
                         gk_QuarterTurns(right, up)}) -
               kRoom;
    }

    double turn(const gkVector<2>& vertex) const { return leastTurn(gk_Box::of(vertex, vertex)); }

    // Not below the turn of a direction that is computed as `angle` or less.
    static double greatestTurn(double angle) {
        constexpr double kAlmostFull = 6.28;
        if (angle > kAlmostFull) return 4.0;
        const gk_Trig::SinCos side = gk_Trig::sinCos(angle);
        return gk_QuarterTurns(side.cos, side.sin) + kRoom;
    }

private:
    static constexpr double kRoom = 1e-12; // thousands of the roundings that a turn or an angle has

    gkVector<2> point_;
    double slack_;
};

bool isOnVertex(const gk_Segments& outline, const gk_SegmentTree& tree, const gkVector<2>& point,
                double slack) {
    const gk_Box around = gk_Box::of(point, point).grownBy(2.0 * kOnVertex + slack);
    return tree.any([&](const gk_Box& box) { return box.overlaps(around); },
                    [&](std::size_t run) {
                        const gk_SegmentTree::Range range = tree.verticesOf(run);
                        for (std::size_t i = range.begin; i < range.end; ++i)
                            if (isOn(outline.vertex(i) - point)) return true;
                        return false;
                    });
}

// The direction of one of the first vertices, counted from the x direction.
double aFirstDirection(const gk_Segments& outline, const gk_SegmentTree& tree, const gkVector<2>& point,
                       const View& view) {
    double least = 5.0;
    std::size_t first = 0;
    tree.nearestFirst([&](const gk_Box& box) { return view.leastTurn(box); }, [&] { return least; },
                      [&](std::size_t run) {
                          const gk_SegmentTree::Range range = tree.verticesOf(run);
                          for (std::size_t i = range.begin; i < range.end; ++i) {
                              const double turn = view.turn(outline.vertex(i));
                              if (turn >= least) continue;
                              least = turn;
                              first = i;
                          }
                      });
    return directionOf(outline.vertex(first) - point);
}

// All vertex directions up to `widest`, ascending.
std::vector<double> firstDirections(const gk_Segments& outline, const gk_SegmentTree& tree,
                                    const gkVector<2>& point, const View& view, double widest) {
    const double greatest = View::greatestTurn(widest);
    std::vector<double> angles;
    tree.any([&](const gk_Box& box) { return view.leastTurn(box) <= greatest; },
             [&](std::size_t run) {
                 const gk_SegmentTree::Range range = tree.verticesOf(run);
                 for (std::size_t i = range.begin; i < range.end; ++i) {
                     const gkVector<2>& vertex = outline.vertex(i);
                     if (view.turn(vertex) > greatest) continue;
                     const double angle = directionOf(vertex - point);
                     if (angle <= widest) angles.push_back(angle);
                 }
                 return false;
             });
    std::sort(angles.begin(), angles.end());
    return angles;
}

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
// are: those from the first on over some gaps, and over more while no wide one is among them.
std::optional<gkVector<2>> gk_RayDirection(const gk_Segments& outline, const gk_SegmentTree& tree,
                                           const gkVector<2>& point) {
    const double slack = gk_DistanceSlack(std::max(tree.reach(), gk_Reach(point)));
    if (isOnVertex(outline, tree, point, slack)) return std::nullopt;
    const View view(point, slack);
    const double step = kPi / static_cast<double>(outline.vertexCount());
    const double first = aFirstDirection(outline, tree, point, view);
    for (double gaps = kFirstGaps; gaps * step < kMostTurn; gaps *= kGapGrowth) {
        const std::vector<double> angles = firstDirections(outline, tree, point, view, first + gaps * step);
        for (std::size_t i = 0; i + 1 < angles.size(); ++i) {
            const double gap = gapBetween(angles[i], angles[i + 1]);
            if (gap > step) return middleOf(angles[i], gap);
        }
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
