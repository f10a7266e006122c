#include "cntr/region_merge.h"
#include "cntr/regionst.h"

bool gkRegionSet::isSelfIntersecting() const {
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
    for (std::size_t i = 0; i + 1 < regions_.size(); ++i) {
        for (std::size_t j = i + 1; j < regions_.size(); ++j) {
            if (!regions_[i]->intersections(*regions_[j]).empty()) return kept.value = true;
        }
    }
    return kept.value;
}

void gkRegionSet::regularize(gkRegionSet& result) const { repairOnce(caches_.regularized, false, result); }

void gkRegionSet::outerHull(gkRegionSet& result) const { repairOnce(caches_.outerHull, true, result); }

void gkRegionSet::repairOnce(gk_Kept<gkPtrHandle<gkRegionSet>>& kept, bool outerHull,
                             gkRegionSet& result) const {
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

void gkRegionSet::outerHullRegularize(gkRegionSet& result, bool outerHull) const {
    using Handle = gkPtrHandle_const<gkRegion>;
    checkEmptyRegionSet();
    Regions list(regions_);
    gk_MergeInOnePass(
        list, [](const Handle& a, const Handle& b) { return !a->intersections(*b, false).empty(); },
        [](const Handle& a, const Handle& b) {
            const gkPtrHandle<gkRegion> spliced(new gkRegion);
            a->splice(*b, *spliced);
            return Handle(spliced);
        });
    for (Handle& region : list) {
        const gkPtrHandle<gkRegion> repaired(new gkRegion);
        if (outerHull) {
            region->outerHull(*repaired);
        } else {
            region->regularize(*repaired);
        }
        region = repaired;
    }
    result = gkRegionSet(list, gkContourDefs::eKeepIntersections);
}
