#include "bench/ours.h"

namespace bench {

std::unique_ptr<gkRegion> regionOf(const Points& points) {
    return std::make_unique<gkRegion>(vectorsOf(points), gkContourDefs::eKeepIntersections);
}

// The holes are given to a small triangle first, since a check against the true outline takes its time;
// changing the vertices afterwards keeps the holes and forgets every result.
std::unique_ptr<gkRegion> regionOf(const Polygon& polygon) {
    std::vector<gkPtrHandle<gkRegion>> holes;
    for (const Points& hole : polygon.holes) holes.emplace_back(regionOf(hole).release());
    const double away = 2.0 * boxOf(polygon.outline).high.x + 1000.0;
    auto region = regionOf(Points{{away, 0.0}, {away + 1.0, 0.0}, {away, 1.0}});
    region->holes(holes);
    region->points(vectorsOf(polygon.outline));
    for (std::size_t i = 0; i < holes.size(); ++i) holes[i]->points(vectorsOf(polygon.holes[i]));
    return region;
}

} // namespace bench
