#include "platform/core/shapes/convex_hull.h"

#include "platform/core/shapes/column_sieve.h"
#include "platform/core/shapes/orientation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

namespace {

using Points = std::vector<gkVector<2>>;

// Below this many points sorting all of them costs less than looking for the extreme ones.
constexpr std::size_t kFewestToEliminate = 32;
// From this many on columns, which drop more, cost no more than the octagon of extremes: 15 us for a noisy
// circle with either, 4 against 9 us for points in a square.
constexpr std::size_t kFewestToSieve = 400;
// One column for so many points: a narrow one drops more, but each costs some 30 ns.
constexpr std::size_t kPointsPerColumn = 16;
// So many columns, 448 KiB, stay in the second cache.
constexpr std::size_t kMostColumns = 4096;

bool isFinite(const gkVector<2>& p) { return std::isfinite(p.x()) && std::isfinite(p.y()); }

// A closed polygon of input points that lie far out in eight directions; points inside cannot be hull vertices.
//
// Inside means: certainly left of every edge. The edges then all turn counter-clockwise about the point, so
// that the polygon winds around it at least once, and a polygon winds only around points strictly inside the
// hull of its corners. Thus nothing depends on the corners being truly extreme or the polygon convex, and the
// sums below may round. An edge between equal corners turns by nothing and is left out.
class Eliminator {
public:
    explicit Eliminator(const Points& points) {
        const gkVector<2>* corners[8];
        for (const gkVector<2>*& corner : corners) corner = nullptr;
        double best[8];
        for (const gkVector<2>& p : points) {
            if (!isFinite(p)) continue;
            const double sum = p.x() + p.y();
            const double difference = p.x() - p.y();
            const double reach[8] = {-p.y(), difference, p.x(), sum, p.y(), -difference, -p.x(), -sum};
            for (std::size_t i = 0; i < 8; ++i) {
                if (corners[i] != nullptr && !(reach[i] > best[i])) continue;
                best[i] = reach[i];
                corners[i] = &p;
            }
        }
        if (corners[0] == nullptr) return;
        for (std::size_t i = 0; i < 8; ++i) addEdge(*corners[i], *corners[(i + 1) % 8]);
    }

    bool discards(const gkVector<2>& p) const {
        for (std::size_t i = 0; i < count_; ++i)
            if (gk_OrientationSteps::filtered(edges_[i].from, edges_[i].to, p) <= 0) return false;
        return count_ > 0;
    }

private:
    struct Edge {
        gkVector<2> from;
        gkVector<2> to;
    };

    void addEdge(const gkVector<2>& from, const gkVector<2>& to) {
        if (from != to) edges_[count_++] = {from, to};
    }

    std::array<Edge, 8> edges_;
    std::size_t count_ = 0;
};

struct Candidate {
    gkVector<2> point;
    std::size_t index;
};

// The index makes the order total, so every standard library sorts alike and the lowest index comes first. An
// outline is a few runs up and down: merging takes half the time of other sorting.
bool isBefore(const Candidate& a, const Candidate& b) {
    if (a.point.x() != b.point.x()) return a.point.x() < b.point.x();
    if (a.point.y() != b.point.y()) return a.point.y() < b.point.y();
    return a.index < b.index;
}

bool haveEqualPoints(const Candidate& a, const Candidate& b) { return a.point == b.point; }

template <class Drops> std::vector<Candidate> candidatesBut(const Points& points, Drops drops) {
    std::vector<Candidate> candidates;
    if (points.size() < kFewestToEliminate) candidates.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        if (isFinite(points[i]) && !drops(points[i])) candidates.push_back({points[i], i});
    return candidates;
}

// The columns of what `placed` makes of the items, points with finite coordinates apart.
template <class Items, class Placed>
std::optional<gk_ColumnSieve> columnsOf(const Items& items, Placed placed) {
    if (items.size() < kFewestToSieve) return std::nullopt;
    double left = std::numeric_limits<double>::infinity();
    double right = -left;
    for (const auto& item : items) {
        const gkVector<2> p = placed(item);
        if (!isFinite(p)) continue;
        left = std::min(left, p.x());
        right = std::max(right, p.x());
    }
    gk_ColumnSieve columns(left, right, std::min(items.size() / kPointsPerColumn, kMostColumns));
    if (!columns.isUsable()) return std::nullopt;
    for (const auto& item : items) {
        const gkVector<2> p = placed(item);
        if (isFinite(p)) columns.add(p);
    }
    columns.spanChords();
    return columns;
}

// A column at the left or right end is steep and drops little; rows are narrow there.
void dropByRows(std::vector<Candidate>& candidates) {
    const auto lying = [](const Candidate& c) { return gkVector<2>(c.point.y(), c.point.x()); };
    const std::optional<gk_ColumnSieve> rows = columnsOf(candidates, lying);
    if (!rows) return;
    const auto drops = [&](const Candidate& c) { return rows->drops(lying(c)); };
    candidates.erase(std::remove_if(candidates.begin(), candidates.end(), drops), candidates.end());
}

// All points that may be vertices of the hull, and some more.
std::vector<Candidate> candidatesOf(const Points& points) {
    if (points.size() < kFewestToEliminate) return candidatesBut(points, [](const auto&) { return false; });
    if (points.size() < kFewestToSieve) {
        const Eliminator eliminator(points);
        return candidatesBut(points, [&](const gkVector<2>& p) { return eliminator.discards(p); });
    }
    const std::optional<gk_ColumnSieve> columns = columnsOf(points, [](const gkVector<2>& p) { return p; });
    std::vector<Candidate> candidates =
        candidatesBut(points, [&](const gkVector<2>& p) { return columns && columns->drops(p); });
    dropByRows(candidates);
    return candidates;
}

std::vector<Candidate> sortedCandidates(const Points& points) {
    std::vector<Candidate> candidates = candidatesOf(points);
    if (!std::is_sorted(candidates.begin(), candidates.end(), isBefore))
        std::stable_sort(candidates.begin(), candidates.end(), isBefore);
    candidates.erase(std::unique(candidates.begin(), candidates.end(), haveEqualPoints), candidates.end());
    return candidates;
}

// Appends `p` to a chain that starts at position `start` of the hull, after taking back what does not turn
// left.
void extend(Points& hull, std::size_t start, const gkVector<2>& p) {
    while (hull.size() >= start + 2 && gk_Orientation(hull[hull.size() - 2], hull.back(), p) <= 0)
        hull.pop_back();
    hull.push_back(p);
}

} // namespace

Points gfConvexHull(const Points& points) {
    const std::vector<Candidate> sorted = sortedCandidates(points);
    Points hull;
    for (const Candidate& candidate : sorted) extend(hull, 0, candidate.point);
    if (sorted.size() < 2) return hull;
    const std::size_t upperStart = hull.size() - 1;
    for (std::size_t i = sorted.size() - 1; i-- > 0;) extend(hull, upperStart, sorted[i].point);
    hull.pop_back(); // the upper chain ends where the lower one began
    return hull;
}
