#include "cntr/search/set_search.h"

#include "cntr/search/magnitude.h"

#include <limits>

namespace {

// Lists of fewer regions are walked through: that takes less than to keep an index.
constexpr std::size_t kFewestForIndex = 32;
// The question from which on there is an index: it costs about as much as one walk.
constexpr std::uint32_t kIndexFrom = 2;
// Below this reach the squares of distances lose bits that gk_DistanceSlack does not cover.
constexpr double kLeastReach = 1e-100;

} // namespace

const gk_RegionBoxes* gk_SetSearch::boxesFrom(std::uint32_t question, Index& index, const gk_Regions& regions,
                                              bool holesToo) {
    if (regions.size() < kFewestForIndex) return nullptr;
    const std::uint64_t changes = gk_ChangeMark::changes();
    if (index.changes != changes) {
        index = Index();
        index.changes = changes;
    }
    if (index.tried || ++index.asked < question) return index.boxes.get();
    index.tried = true;
    if (std::optional<gk_RegionBoxes> built = gk_RegionBoxes::of(regions, holesToo))
        index.boxes = std::make_shared<const gk_RegionBoxes>(*std::move(built));
    return index.boxes.get();
}

// For members that an index has marked, so that the count moves on when one of them loses its box.
void gk_SetSearch::askBoxes(const gk_Regions& regions, std::size_t count) {
    if (boxesAskedAt_ != gk_ChangeMark::changes()) boxesAsked_ = 0;
    boxesAskedAt_ = gk_ChangeMark::changes();
    for (; boxesAsked_ < count; ++boxesAsked_) regions[boxesAsked_]->encloseRect(gkXform<2>());
}

// A region whose box does not hold the point answers false whatever else it is, so the first true answer and
// the first error come from the same member.
bool gk_SetSearch::inside(const gk_Regions& regions, const gkVector<2>& point, bool considerHoles) {
    const gk_RegionBoxes* const index = boxesFrom(kIndexFrom, outlines_, regions, false);
    if (!index) {
        for (const auto& region : regions)
            if (region->inside(point, considerHoles)) return true;
        return false;
    }
    for (const std::uint32_t i : index->overlapping(gk_Box::of(point, point))) {
        askBoxes(regions, i + std::size_t{1});
        if (regions[i]->inside(point, considerHoles)) return true;
    }
    askBoxes(regions, regions.size());
    return false;
}

// The point that is nearest on a region is computed within 9 u M (M is the reach, u = 2^-53) of a segment's
// box, however short the segment: a vertex, or one plus a part of a difference of two. Its distance adds 3 u of
// at most 2.9 M. So a box farther than the least distance so far by more than gk_DistanceSlack holds none that
// comes out less.
double gk_SetSearch::distToPoint(const gk_Regions& regions, const gkVector<2>& point, bool verticesOnly,
                                 bool considerHoles, bool zeroInside) {
    double least = std::numeric_limits<double>::infinity();
    const auto ask = [&](std::size_t i) {
        const double distance = regions[i]->distToPoint(point, verticesOnly, considerHoles, zeroInside);
        if (least > distance) least = distance;
    };
    const bool holesToo = !verticesOnly || considerHoles; // a region's nearest points are its holes' as well
    const gk_RegionBoxes* const index =
        boxesFrom(kIndexFrom, holesToo ? withHoles_ : outlines_, regions, holesToo);
    const double reach = index ? std::max(index->reach(), gk_Reach(point)) : 0.0;
    if (!index || !gk_IsModerate(point) || !(reach >= kLeastReach)) {
        for (std::size_t i = 0; i < regions.size(); ++i) ask(i);
        return least;
    }

    // Only holes of a region around the point can throw here, and do so in list order.
    std::vector<std::uint32_t> around;
    if (zeroInside) {
        around = index->overlapping(gk_Box::of(point, point));
        for (const std::uint32_t i : around) {
            askBoxes(regions, i + std::size_t{1});
            ask(i);
        }
        askBoxes(regions, regions.size());
    }
    const double slack = gk_DistanceSlack(reach);
    index->nearestFirst([&](const gk_Box& box) { return box.distance2(point); },
                        [&] { return gk_FartherSquare(least, slack); },
                        [&](std::uint32_t i) {
                            if (!std::binary_search(around.begin(), around.end(), i)) ask(i);
                        });
    return least;
}

// Segments meet only where their boxes do, and those lie in their regions' boxes. In the order of the plain
// pairs, in which the first of the two is asked for its box.
bool gk_SetSearch::anyTwoMeet(const gk_Regions& regions) {
    const gk_RegionBoxes* const index = boxesFrom(1, outlines_, regions, false);
    const auto meet = [&](std::size_t i, std::size_t j) {
        return !regions[i]->intersections(*regions[j]).empty();
    };
    for (std::size_t i = 0; i + 1 < regions.size(); ++i) {
        if (!index) {
            for (std::size_t j = i + 1; j < regions.size(); ++j)
                if (meet(i, j)) return true;
            continue;
        }
        const gk_Box box = gk_Box::of(regions[i]->encloseRect(gkXform<2>()));
        for (const std::uint32_t j : index->overlapping(box))
            if (j > i && meet(i, j)) return true;
    }
    return false;
}
