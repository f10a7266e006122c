#include "cntr/search/vertex_company.h"

#include "cntr/search/outline_search.h"

#include <array>
#include <cmath>
#include <cstring>

namespace {

using Index = gk_VertexCompany::Index;

// Vertices in the cells of a grid, many tolerances wide so that few vertices are near a cell's border; such
// ones are in the next cell too.
class Cells {
public:
    Cells(const std::vector<gkVector<2>>& points, double tolerance)
        : points_(points), reach_(1.001 * tolerance), size_(64.0 * tolerance) {
        std::size_t buckets = 16;
        while (buckets < 2 * points.size()) buckets *= 2;
        heads_.assign(buckets, kEnd);
        entries_.reserve(points.size() + points.size() / 8);
    }

    // Calls meet(other) for every earlier vertex within the reach, some more than once.
    template <class Meet> void add(Index vertex, Meet meet) {
        const gkVector<2>& p = points_[vertex];
        const std::array<double, 2> columns = {cell(p.x() - reach_), cell(p.x() + reach_)};
        const std::array<double, 2> rows = {cell(p.y() - reach_), cell(p.y() + reach_)};
        for (std::size_t i = 0; i < (columns[0] == columns[1] ? 1 : 2); ++i)
            for (std::size_t k = 0; k < (rows[0] == rows[1] ? 1 : 2); ++k)
                addTo(bucket(columns[i], rows[k]), vertex, meet);
    }

private:
    static constexpr Index kEnd = UINT32_MAX;
    struct Entry {
        Index vertex;
        Index next;
    };

    double cell(double value) const { return std::floor(value / size_) + 0.0; } // no -0, whose bits differ

    std::size_t bucket(double column, double row) const {
        std::uint64_t bits[2];
        std::memcpy(&bits[0], &column, sizeof column);
        std::memcpy(&bits[1], &row, sizeof row);
        const std::uint64_t mixed = (bits[0] * 0x9E3779B97F4A7C15u ^ bits[1]) * 0xD1B54A32D192ED03u;
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
    double size_;
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
    std::vector<bool> mayHave(points.size(), hasNan(points));
    Cells cells(points, tolerance);
    for (Index i = 0; i < points.size(); ++i) {
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
