#include "platform/core/shapes/hull_sieve.h"

#include "platform/core/math/two_doubles.h"

#include <algorithm>
#include <limits>

namespace {

using Points = gk_HullSieve::Points;
using Indices = gk_HullSieve::Indices;
constexpr std::size_t kRun = gk_HullSieve::kRun;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A list of so few is not split any more.
constexpr std::size_t kFew = 8;
// So few runs that were not worth splitting do not make a search among them slow.
constexpr std::size_t kMany = 64;
// No edge gives way more often: lists that hardly get shorter are left as they are.
constexpr int kDeepest = 16;

// The least and greatest coordinates of some points, and a sum that is zero unless one is NaN or infinite.
struct Extremes {
    gk_TwoDoubles least;
    gk_TwoDoubles greatest;
    gk_TwoDoubles strays;

    static Extremes of(const gkVector<2>& point) {
        const gk_TwoDoubles p = gk_TwoOf(point);
        return {p, p, p - p};
    }
    Extremes with(const Extremes& other) const {
        return {least.orLess(other.least), greatest.orGreater(other.greatest), strays + other.strays};
    }
    gk_HullBox box() const { return {least.first(), least.second(), greatest.first(), greatest.second()}; }
    bool areFinite() const { return strays.first() == 0.0 && strays.second() == 0.0; }
};

Extremes extremesOf(const gkVector<2>* begin, const gkVector<2>* end) {
    Extremes extremes = Extremes::of(*begin);
    for (const gkVector<2>* p = begin + 1; p != end; ++p) extremes = extremes.with(Extremes::of(*p));
    return extremes;
}

// Pairs of pairs, for a comparison has to wait for the one before.
Extremes extremesOfRun(const gkVector<2>* p) {
    const auto ofTwo = [](const gkVector<2>* q) { return Extremes::of(q[0]).with(Extremes::of(q[1])); };
    return ofTwo(p).with(ofTwo(p + 2)).with(ofTwo(p + 4).with(ofTwo(p + 6)));
}

// What a list is made of: single points, or runs by their boxes.
class ByPoint {
public:
    explicit ByPoint(const Points& points) : points_(points) {}
    double leastInward(const gk_HullEdge& edge, std::size_t i) const { return edge.inwardOf(points_[i]); }
    double inward(const gk_HullEdge& edge, std::size_t i) const { return edge.inwardOf(points_[i]); }
    const gkVector<2>& corner(const gk_HullEdge&, std::size_t i) const { return points_[i]; }
    // Where most stay they are on the hull, or nearly.
    static bool isWorthwhile(std::size_t count, std::size_t left) { return left * 16 <= count * 15; }

private:
    const Points& points_;
};

class ByRun {
public:
    ByRun(const Points& points, const std::vector<gk_HullBox>& runs) : points_(points), runs_(runs) {}
    double leastInward(const gk_HullEdge& edge, std::size_t run) const { return edge.inwardOf(runs_[run]); }
    // Of the middle: a corner may be far from all points of the run.
    double inward(const gk_HullEdge& edge, std::size_t run) const {
        const gk_HullBox& box = runs_[run];
        return edge.inwardOf(gkVector<2>(0.5 * (box[0] + box[2]), 0.5 * (box[1] + box[3])));
    }
    const gkVector<2>& corner(const gk_HullEdge& edge, std::size_t run) const {
        std::size_t found = run * kRun;
        for (std::size_t i = found + 1; i < std::min((run + 1) * kRun, points_.size()); ++i)
            if (edge.inwardOf(points_[i]) < edge.inwardOf(points_[found])) found = i;
        return points_[found];
    }
    // Boxes that tell little are outside of both edges.
    static bool isWorthwhile(std::size_t count, std::size_t left) { return left * 4 <= count * 5; }

private:
    const Points& points_;
    const std::vector<gk_HullBox>& runs_;
};

// Lets a polygon grow, edge by edge.
class Growth {
public:
    // For points in this box.
    Growth(const gk_HullBox& box, double slack) : box_(box), slack_(slack) {}

    gk_HullEdge edge(const gkVector<2>& from, const gkVector<2>& to) const {
        return gk_HullEdge(from, to, box_, slack_);
    }

    // Calls finish(edge, begin, end) with the items that are left outside of each edge that `edge` gives way
    // to, and grown(corner). The items are at(0) to at(count - 1).
    template <class Kind, class At, class Finish, class Grown>
    void grow(const gk_HullEdge& edge, std::size_t count, const Kind& kind, At at, const Finish& finish,
              const Grown& grown) {
        const List list = select(edge, 0, count, kind, at);
        growEdge(edge, list, {count, 0}, kind, finish, grown);
    }

    // Whether a list of a great part of all was left as it was because it would not have become shorter.
    bool gaveUp() const { return gaveUp_; }

private:
    struct List {
        std::size_t begin;
        std::size_t end;
    };
    struct Place {
        std::size_t all; // items at first
        int depth;
    };

    // A list from position `begin` on of those of the items that the edge does not have inside.
    template <class Kind, class At>
    List select(const gk_HullEdge& edge, std::size_t begin, std::size_t count, const Kind& kind, At at) {
        if (items_.size() < begin + count) items_.resize(2 * (begin + count));
        std::size_t end = begin;
        for (std::size_t k = 0; k < count; ++k) {
            const std::size_t index = at(k);
            items_[end] = index;
            end += edge.isInside(kind.leastInward(edge, index)) ? 0 : 1;
        }
        return {begin, end};
    }

    template <class Kind, class Finish, class Grown>
    void growEdge(const gk_HullEdge& edge, const List& list, const Place& place, const Kind& kind,
                  const Finish& finish, const Grown& grown) {
        const std::size_t count = list.end - list.begin;
        const auto done = [&] { finish(edge, items_.data() + list.begin, items_.data() + list.end); };
        if (count <= kFew || place.depth == kDeepest) return done();
        const gkVector<2>& corner = kind.corner(edge, farthest(edge, list, kind));
        if (!edge.mayGiveWayTo(corner)) return done();
        const auto at = [&](std::size_t k) { return items_[list.begin + k]; };
        const gk_HullEdge first = edge.toCorner(corner, box_);
        const gk_HullEdge second = edge.fromCorner(corner, box_);
        const List ofSecond = select(second, list.end, count, kind, at);
        const List ofFirst = select(first, ofSecond.end, count, kind, at); // on top, for it comes first
        if (!Kind::isWorthwhile(count, ofFirst.end - ofSecond.begin)) {
            gaveUp_ = gaveUp_ || (count > kMany && 4 * count > place.all);
            return done();
        }
        grown(corner);
        const Place below{place.all, place.depth + 1};
        growEdge(first, ofFirst, below, kind, finish, grown);
        growEdge(second, ofSecond, below, kind, finish, grown);
    }

    // Least first and found again then: to remember the place with every lesser number would take longer.
    template <class Kind>
    std::size_t farthest(const gk_HullEdge& edge, const List& list, const Kind& kind) const {
        double least = kInfinity;
        for (std::size_t k = list.begin; k < list.end; ++k)
            least = std::min(least, kind.inward(edge, items_[k]));
        for (std::size_t k = list.begin; k < list.end; ++k)
            if (kind.inward(edge, items_[k]) == least) return items_[k];
        return items_[list.begin];
    }

    const gk_HullBox& box_;
    double slack_;
    bool gaveUp_ = false;
    Indices items_; // behind each list those of the two edges that its edge gave way to
};

struct Ends {
    gkVector<2> least;
    gkVector<2> greatest;
};

// The least and the greatest point by x and then y.
Ends endsOf(const Points& points, const std::vector<gk_HullBox>& runs, const gk_HullBox& all) {
    Ends ends{gkVector<2>(all[0], kInfinity), gkVector<2>(all[2], -kInfinity)};
    const auto eachAt = [&](std::size_t side, auto visit) {
        for (std::size_t run = 0; run < runs.size(); ++run) {
            if (runs[run][side] != all[side]) continue;
            for (std::size_t i = run * kRun; i < std::min((run + 1) * kRun, points.size()); ++i)
                if (points[i].x() == all[side]) visit(points[i]);
        }
    };
    eachAt(0, [&](const gkVector<2>& p) {
        if (p.y() < ends.least.y()) ends.least = p;
    });
    eachAt(2, [&](const gkVector<2>& p) {
        if (p.y() > ends.greatest.y()) ends.greatest = p;
    });
    return ends;
}

} // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the box is set below
gk_HullSieve::gk_HullSieve(const Points& points) : points_(points), runs_((points.size() + kRun - 1) / kRun) {
    Extremes all{gk_TwoDoubles(kInfinity), gk_TwoDoubles(-kInfinity), gk_TwoDoubles()};
    const std::size_t full = points.size() / kRun;
    for (std::size_t run = 0; run < runs_.size(); ++run) {
        const gkVector<2>* const first = points.data() + run * kRun;
        const Extremes extremes =
            run < full ? extremesOfRun(first) : extremesOf(first, points.data() + points.size());
        runs_[run] = extremes.box();
        all = all.with(extremes);
    }
    box_ = all.box();
    areFinite_ = all.areFinite();
}

gk_HullSieve::OuterPoints gk_HullSieve::outerPoints(double slack) const {
    OuterPoints outer;
    const Ends ends = endsOf(points_, runs_, box_);
    Growth overRuns(box_, slack);
    Growth overPoints(box_, slack);
    const auto ignore = [](const gkVector<2>&) {};
    const auto growFrom = [&](const gkVector<2>& from, const gkVector<2>& to, Indices& side) {
        const auto keep = [&](const gk_HullEdge&, const std::size_t* begin, const std::size_t* end) {
            side.insert(side.end(), begin, end);
        };
        const auto split = [&](const gk_HullEdge& edge, const std::size_t* begin, const std::size_t* end) {
            if (begin == end) return;
            std::size_t points = static_cast<std::size_t>(end - begin) * kRun;
            if (end[-1] + 1 == runs_.size()) points -= runs_.size() * kRun - points_.size();
            overPoints.grow(
                edge, points, ByPoint(points_),
                [&](std::size_t k) { return begin[k / kRun] * kRun + k % kRun; }, keep, ignore);
        };
        side.reserve(runs_.size());
        overRuns.grow(
            overRuns.edge(from, to), runs_.size(), ByRun(points_, runs_), [](std::size_t k) { return k; },
            split, ignore);
    };
    growFrom(ends.least, ends.greatest, outer.lower);
    growFrom(ends.greatest, ends.least, outer.upper);
    return outer;
}

gk_HullSieve::OuterRuns gk_HullSieve::outerRuns(double slack) const {
    const Ends ends = endsOf(points_, runs_, box_);
    OuterRuns outer;
    outer.corners = {ends.least, ends.greatest};
    Growth growth(box_, slack);
    const auto keep = [&](const gk_HullEdge&, const std::size_t* begin, const std::size_t* end) {
        outer.runs.insert(outer.runs.end(), begin, end);
    };
    const auto note = [&](const gkVector<2>& corner) { outer.corners.push_back(corner); };
    const auto every = [](std::size_t k) { return k; };
    growth.grow(growth.edge(ends.least, ends.greatest), runs_.size(), ByRun(points_, runs_), every, keep, note);
    growth.grow(growth.edge(ends.greatest, ends.least), runs_.size(), ByRun(points_, runs_), every, keep, note);
    outer.areTelling = !growth.gaveUp();
    return outer;
}
