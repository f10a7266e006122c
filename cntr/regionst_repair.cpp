#include "cntr/one_thread.h"
#include "cntr/region_merge.h"
#include "cntr/regionst.h"
#include "cntr/search/set_search.h"

bool gkRegionSet::isSelfIntersecting() const {
    const gk_OneThread here(*this);
    if (regions_.empty()) return false;
    gk_Kept<bool>& kept = caches_.selfIntersecting;
    if (kept.valid) return kept.value;
    // Flag before value: after an exception the value reached by then is what later calls return. Meant.
    kept.valid = true;
    kept.value = false;
    mutating();
    for (const auto& region : regions_) {
        if (region->isSelfIntersecting()) kept.value = true;
    }
    if (caches_.search.made().anyTwoMeet(regions_)) kept.value = true;
    return kept.value;
}

void gkRegionSet::regularize(gkRegionSet& result) const { repairOnce(caches_.regularized, false, result); }

void gkRegionSet::outerHull(gkRegionSet& result) const { repairOnce(caches_.outerHull, true, result); }

void gkRegionSet::repairOnce(gk_Kept<gkPtrHandle<gkRegionSet>>& kept, bool outerHull,
                             gkRegionSet& result) const {
    const gk_OneThread here(*this);
    if (!isSelfIntersecting()) {
        result = *this;
        return;
    }
    if (!kept.valid) {
        const gkPtrHandle<gkRegionSet> repaired(new gkRegionSet);
        outerHullRegularize(*repaired, outerHull);
        kept.value = repaired;
        kept.valid = true;
        mutating();
    }
    // A second handle: when `result` is this very set, the assignment replaces the kept one.
    const gkPtrHandle<gkRegionSet> repaired = kept.value;
    result = *repaired;
}

namespace {

// A region and the box of its vertices, if they are measurable.
struct Merging {
    explicit Merging(const gkPtrHandle_const<gkRegion>& handle)
        : region(handle), box(handle.isNull() ? std::nullopt : gk_OwnBox(*handle)) {}

    gkPtrHandle_const<gkRegion> region;
    std::optional<gk_Box> box;
};

// Segments outside the box that the first keeps are not looked at; it keeps the box either way.
bool cross(const Merging& a, const Merging& b) {
    if (b.box && !gk_Box::of(a.region->encloseRect(gkXform<2>())).overlaps(*b.box)) return false;
    return !a.region->intersections(*b.region, false).empty();
}

} // namespace

void gkRegionSet::outerHullRegularize(gkRegionSet& result, bool outerHull) const {
    checkEmptyRegionSet();
    std::vector<Merging> merging(regions_.begin(), regions_.end());
    gk_MergeInOnePass(merging, cross, [](const Merging& a, const Merging& b) {
        const gkPtrHandle<gkRegion> spliced(new gkRegion);
        a.region->splice(*b.region, *spliced);
        return Merging(spliced);
    });
    Regions list;
    list.reserve(merging.size());
    for (const Merging& merged : merging) {
        const gkPtrHandle<gkRegion> repaired(new gkRegion);
        if (outerHull) {
            merged.region->outerHull(*repaired);
        } else {
            merged.region->regularize(*repaired);
        }
        list.push_back(repaired);
    }
    result = gkRegionSet(list, gkContourDefs::eKeepIntersections);
}
