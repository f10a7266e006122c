#include "examples/demo/reading_order.h"

#include <algorithm>

namespace {

using Region = gkPtrHandle<gkRegion>;

} // namespace

void sortForReading(std::vector<Region>& regions) {
    const auto box = [](const Region& region) { return region->encloseRect(gkXform<2>()); };
    std::stable_sort(regions.begin(), regions.end(), [&](const Region& a, const Region& b) {
        return box(a).center().y() < box(b).center().y();
    });
    for (auto row = regions.begin(); row != regions.end();) {
        const double lowerEdge = box(*row).lr().y();
        const auto end = std::find_if(
            row, regions.end(), [&](const Region& region) { return box(region).center().y() >= lowerEdge; });
        // A shape without height is a row of its own.
        const auto next = end == row ? row + 1 : end;
        std::stable_sort(row, next, [&](const Region& a, const Region& b) {
            return box(a).center().x() < box(b).center().x();
        });
        row = next;
    }
}
