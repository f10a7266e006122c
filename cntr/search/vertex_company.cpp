#include "cntr/search/vertex_company.h"

#include "cntr/search/outline_search.h"

#include <algorithm>
#include <cmath>

namespace {

using Index = gk_VertexCompany::Index;

// The cells of a grid, many tolerances wide so that few vertices are near a cell's border; such ones are in the
// next cell too. A bucket stands for many cells.
class Buckets {
public:
    Buckets(double tolerance, std::size_t least)
        : reach_(1.001 * tolerance), cellsPerUnit_(1.0 / (64.0 * tolerance)) {
        while (count_ < least) count_ *= 2;
    }

    std::size_t count() const { return count_; }
    bool areNear(const gkVector<2>& a, const gkVector<2>& b) const {
        return std::fabs(a.x() - b.x()) <= reach_ && std::fabs(a.y() - b.y()) <= reach_;
    }

    // Calls visit(bucket) for all that the place is in. Places that are near each other have one in common.
    template <class Visit> void each(const gkVector<2>& p, Visit visit) const {
        const std::int64_t left = cell(p.x() - reach_);
        const std::int64_t right = cell(p.x() + reach_);
        const std::int64_t low = cell(p.y() - reach_);
        const std::int64_t high = cell(p.y() + reach_);
        visit(bucket(left, low));
        if (left == right && low == high) return;
        if (left != right) visit(bucket(right, low));
        if (low != high) visit(bucket(left, high));
        if (left != right && low != high) visit(bucket(right, high));
    }

private:
    // Beyond the greatest number all are in one; the two cells about 0 are one.
    std::int64_t cell(double value) const {
        constexpr double kOutermost = 4611686018427387904.0; // 2^62
        return static_cast<std::int64_t>(std::min(std::max(value * cellsPerUnit_, -kOutermost), kOutermost));
    }

    std::size_t bucket(std::int64_t column, std::int64_t row) const {
        const std::uint64_t mixed =
            (static_cast<std::uint64_t>(column) * 0x9E3779B97F4A7C15u + static_cast<std::uint64_t>(row)) *
            0xD1B54A32D192ED03u;
        return static_cast<std::size_t>(mixed >> 32) & (count_ - 1);
    }

    double reach_;
    double cellsPerUnit_;
    std::size_t count_ = 16;
};

// Those that share a bucket with another vertex, all that have company among them. Two bits for each of so many
// buckets stay in the cache, and few vertices share one by chance.
std::vector<Index> suspects(const std::vector<gkVector<2>>& points, double tolerance) {
    constexpr std::size_t kInWord = 32;
    const Buckets buckets(tolerance, 8 * points.size());
    std::vector<std::uint64_t> marks(buckets.count() / kInWord + 1, 0);
    const auto shiftOf = [](std::size_t bucket) { return 2 * (bucket % kInWord); };
    for (const gkVector<2>& p : points) {
        buckets.each(p, [&](std::size_t bucket) {
            std::uint64_t& word = marks[bucket / kInWord];
            const std::uint64_t isTaken = word >> shiftOf(bucket) & 1u;
            word |= (1u + isTaken) << shiftOf(bucket);
        });
    }
    std::vector<Index> found;
    for (Index i = 0; i < points.size(); ++i) {
        bool isShared = false;
        buckets.each(points[i], [&](std::size_t bucket) {
            isShared = isShared || (marks[bucket / kInWord] >> shiftOf(bucket) & 2u) != 0;
        });
        if (isShared) found.push_back(i);
    }
    return found;
}

// Vertices in their buckets.
class Cells {
public:
    Cells(const std::vector<gkVector<2>>& points, double tolerance, std::size_t count)
        : points_(points), buckets_(tolerance, 2 * count), heads_(buckets_.count(), kEnd) {
        entries_.reserve(count + count / 8);
    }

    // Calls meet(other) for every earlier vertex within the reach, some more than once.
    template <class Meet> void add(Index vertex, Meet meet) {
        buckets_.each(points_[vertex], [&](std::size_t bucket) {
            for (Index i = heads_[bucket]; i != kEnd; i = entries_[i].next) {
                const Index other = entries_[i].vertex;
                if (other != vertex && buckets_.areNear(points_[other], points_[vertex])) meet(other);
            }
            entries_.push_back({vertex, heads_[bucket]});
            heads_[bucket] = static_cast<Index>(entries_.size() - 1);
        });
    }

private:
    static constexpr Index kEnd = UINT32_MAX;
    struct Entry {
        Index vertex;
        Index next;
    };

    const std::vector<gkVector<2>>& points_;
    Buckets buckets_;
    std::vector<Index> heads_;
    std::vector<Entry> entries_;
};

bool hasNan(const std::vector<gkVector<2>>& points) {
    bool found = false;
    for (const gkVector<2>& p : points) found = found || std::isnan(p.x()) || std::isnan(p.y());
    return found;
}

} // namespace

// The order of those near follows from their coordinates and from the order of their indices, so the few that
// may have company are asked for as a list of their own.
gk_VertexCompany::gk_VertexCompany(const std::vector<gkVector<2>>& points, double tolerance)
    : place_(points.size(), kAlone) {
    const bool askAll = hasNan(points);
    std::vector<bool> mayHave(points.size(), askAll);
    if (!askAll) {
        const std::vector<Index> sharing = suspects(points, tolerance);
        Cells cells(points, tolerance, sharing.size());
        for (const Index i : sharing) {
            cells.add(i, [&](Index other) {
                mayHave[i] = true;
                mayHave[other] = true;
            });
        }
    }
    std::vector<Index> candidates;
    std::vector<gkVector<2>> places;
    for (Index i = 0; i < points.size(); ++i) {
        if (!mayHave[i]) continue;
        candidates.push_back(i);
        places.push_back(points[i]);
    }
    gk_OutlineSearch among;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const std::vector<int> found = among.verticesWithin(places, places[i], tolerance);
        if (found.size() < 2) continue;
        place_[candidates[i]] = static_cast<Index>(vertices_.size());
        vertices_.push_back(candidates[i]);
        near_.emplace_back();
        near_.back().reserve(found.size());
        for (const int k : found) near_.back().push_back(candidates[static_cast<std::size_t>(k)]);
    }
}
