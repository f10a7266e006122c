#include "cntr/search/outer_vertices.h"

#include "cntr/search/box.h"
#include "cntr/search/magnitude.h"
#include "cntr/search/turn.h"
#include "platform/core/math/vector_ops.h"
#include "platform/core/shapes/convex_hull.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Points = std::vector<gkVector<2>>;

// Knows in many directions from a place inside a hull how far it certainly reaches.
//
// Directions come in sectors, each at least 4 / count radians wide. A vertex nearer to that place by the slack
// than all of the hull's outline that is seen in its sector and the two beside it is deeper than the slack
// below that part. The rest of the outline is a sector aside: from a vertex at half the least distance of an
// edge or farther it is 2 / count of that distance away, and from one nearer than that a half.
class Depth {
public:
    Depth(const Points& hull, std::size_t vertexCount, double slack)
        : middle_(middleOf(hull)), count_(sectorCount(vertexCount)),
          within2_(count_, std::numeric_limits<double>::infinity()) {
        for (std::size_t i = 0; i < hull.size(); ++i)
            addEdge(hull[i] - middle_, hull[(i + 1) % hull.size()] - middle_, slack);
    }

    // False for a hull so flat that the middle's own depth could be doubted.
    bool isSound(double slack) const { return least_ > static_cast<double>(count_) * slack; }
    // False when the vertex is certainly deeper than the slack.
    bool mayBeOuter(const gkVector<2>& vertex) const {
        const gkVector<2> offset = vertex - middle_;
        return !(gk_VectorOps::dot(offset, offset) < within2_[sectorOf(offset)]);
    }

private:
    // A sector for four vertices: where the outline slopes against the hull, wider ones hold more that may be
    // outer.
    static std::size_t sectorCount(std::size_t vertexCount) {
        constexpr std::size_t kFewest = 256;
        constexpr std::size_t kMost = std::size_t{1} << 16;
        return std::min(std::max(vertexCount / 4, kFewest), kMost);
    }

    static gkVector<2> middleOf(const Points& hull) {
        gkVector<2> sum;
        for (const gkVector<2>& corner : hull) sum += corner / static_cast<double>(hull.size());
        return sum;
    }

    // A number that grows with the direction, from 0 to below the count of sectors; any for the zero offset.
    double turnOf(const gkVector<2>& offset) const {
        return gk_QuarterTurns(offset.x(), offset.y()) * (static_cast<double>(count_) / 4.0);
    }
    std::size_t sectorOf(const gkVector<2>& offset) const {
        const double turn = turnOf(offset);
        return turn < static_cast<double>(count_) ? static_cast<std::size_t>(turn) : count_ - 1;
    }
    // The direction in which a sector begins; of no particular length.
    gkVector<2> beginOf(std::size_t sector) const {
        const double quarters = static_cast<double>(sector) * 4.0 / static_cast<double>(count_);
        const double share = quarters - std::floor(quarters);
        switch (static_cast<int>(quarters)) {
        case 0:
            return gkVector<2>(1.0 - share, share);
        case 1:
            return gkVector<2>(-share, 1.0 - share);
        case 2:
            return gkVector<2>(share - 1.0, -share);
        default:
            return gkVector<2>(share, share - 1.0);
        }
    }

    // The edge's part in each sector bounds that sector and, for the rounding of turns, the two beside it.
    void addEdge(const gkVector<2>& from, const gkVector<2>& to, double slack) {
        const gkVector<2> along = to - from;
        const double foot = -gk_VectorOps::dot(from, along) / gk_VectorOps::dot(along, along);
        const auto positionIn = [&](std::size_t sector) {
            const gkVector<2> direction = beginOf(sector % count_);
            return -gk_VectorOps::cross(from, direction) / gk_VectorOps::cross(along, direction);
        };
        const std::size_t first = sectorOf(from);
        const std::size_t last = sectorOf(to);
        for (std::size_t sector = first;; sector = (sector + 1) % count_) {
            const double begin = sector == first ? 0.0 : positionIn(sector);
            const double end = sector == last ? 1.0 : positionIn(sector + 1);
            const bool isPart = begin >= 0.0 && begin <= end && end <= 1.0;
            const double nearest =
                isPart ? std::min(std::max(foot, begin), end) : std::min(std::max(foot, 0.0), 1.0);
            bound(sector, gk_VectorOps::length(from + along * nearest), slack);
            if (sector == last) break;
        }
    }

    void bound(std::size_t sector, double distance, double slack) {
        least_ = std::min(least_, distance);
        const double reach = distance - slack;
        const double reach2 = reach > 0.0 ? reach * reach * (1.0 - 0x1p-49) : 0.0;
        for (const std::size_t beside : {sector + count_ - 1, sector, sector + 1})
            within2_[beside % count_] = std::min(within2_[beside % count_], reach2);
    }

    gkVector<2> middle_;
    std::size_t count_;
    double least_ = std::numeric_limits<double>::infinity();
    std::vector<double> within2_;
};

} // namespace

std::optional<std::vector<std::uint32_t>> gk_OuterVertices(const Points& points) {
    if (points.size() > UINT32_MAX) return std::nullopt;
    double reach = 0.0;
    for (const gkVector<2>& point : points) {
        if (!gk_IsModerate(point)) return std::nullopt;
        reach = std::max(reach, gk_Reach(point));
    }
    const Points hull = gfConvexHull(points);
    if (hull.size() < 3) return std::nullopt;
    // The depth itself is computed within one slack of the true one.
    const double slack = 2.0 * gk_DistanceSlack(reach);
    const Depth depth(hull, points.size(), slack);
    if (!depth.isSound(slack)) return std::nullopt;
    std::vector<std::uint32_t> outer;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (depth.mayBeOuter(points[i])) outer.push_back(static_cast<std::uint32_t>(i));
    return outer;
}
