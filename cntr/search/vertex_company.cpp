#include "cntr/search/vertex_company.h"

#include "cntr/search/outline_search.h"

#include <algorithm>
#include <cmath>

namespace {

using Index = gk_VertexCompany::Index;

// Vertices in the cells of a grid, many tolerances wide so that few vertices are near a cell's border; such
// ones are in the next cell too.
class Cells {
public:
    Cells(const std::vector<gkVector<2>>& points, double tolerance)
        : points_(points), reach_(1.001 * tolerance), cellsPerUnit_(1.0 / (64.0 * tolerance)) {
        std::size_t buckets = 16;
        while (buckets < 2 * points.size()) buckets *= 2;
        heads_.assign(buckets, kEnd);
        entries_.reserve(points.size() + points.size() / 8);
    }

    // Calls meet(other) for every earlier vertex within the reach, some more than once.
    template <class Meet> void add(Index vertex, Meet meet) {
        const gkVector<2>& p = points_[vertex];
        const std::int64_t left = cell(p.x() - reach_);
        const std::int64_t right = cell(p.x() + reach_);
        const std::int64_t low = cell(p.y() - reach_);
        const std::int64_t high = cell(p.y() + reach_);
        addTo(bucket(left, low), vertex, meet);
        if (left == right && low == high) return;
        if (left != right) addTo(bucket(right, low), vertex, meet);
        if (low != high) addTo(bucket(left, high), vertex, meet);
        if (left != right && low != high) addTo(bucket(right, high), vertex, meet);
    }

private:
    static constexpr Index kEnd = UINT32_MAX;
    struct Entry {
        Index vertex;
        Index next;
    };

    // Beyond the greatest number all are in one; the two cells about 0 are one.
    std::int64_t cell(double value) const {
        constexpr double kOutermost = 4611686018427387904.0; // 2^62
        return static_cast<std::int64_t>(std::min(std::max(value * cellsPerUnit_, -kOutermost), kOutermost));
    }

    std::size_t bucket(std::int64_t column, std::int64_t row) const {
        const std::uint64_t mixed =
            (static_cast<std::uint64_t>(column) * 0x9E3779B97F4A7C15u + static_cast<std::uint64_t>(row)) *
            0xD1B54A32D192ED03u;
        return static_cast<std::size_t>(mixed >> 32) & (heads_.size() - 1);
    }

    template <class Meet> void addTo(std::size_t bucket, Index vertex, Meet& meet) {
        for (Index i = heads_[bucket]; i != kEnd; i = entries_[i].next) {
            const gkVector<2> apart = points_[entries_[i].vertex] - points_[vertex];
            if (std::fabs(apart.x()) <= reach_ && std::fabs(apart.y()) <= reach_ &&
                entries_[i].vertex != vertex)
                meet(entries_[i].vertex);
        }
        entries_.push_back({vertex, heads_[bucket]});
        heads_[bucket] = static_cast<Index>(entries_.size() - 1);
    }

    const std::vector<gkVector<2>>& points_;
    double reach_;
    double cellsPerUnit_;
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
    Cells cells(points, tolerance);
    for (Index i = 0; i < points.size() && !askAll; ++i) {
        cells.add(i, [&](Index other) {
            mayHave[i] = true;
            mayHave[other] = true;
        });
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
