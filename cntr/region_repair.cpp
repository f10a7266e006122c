// Repair of regions whose outline crosses itself, and the splice of two regions.
#include "cntr/boundary_walk.h"
#include "cntr/loops.h"
#include "cntr/measures.h"
#include "cntr/one_thread.h"
#include "cntr/region.h"
#include "cntr/splice.h"
#include "platform/system/assert.h"

#include <utility>

void gkRegion::regularize(gkRegion& result) const { repairOnce(&Rare::regularized, false, result); }

void gkRegion::outerHull(gkRegion& result) const { repairOnce(&Rare::outerHull, true, result); }

void gkRegion::repairOnce(Repaired Rare::*slot, bool outerHull, gkRegion& result) const {
    const gk_OneThread here(*this);
    if (!isSelfIntersecting()) {
        result = *this;
        return;
    }
    Repaired& kept = caches_.rare.made().*slot;
    if (!kept.valid) {
        const gkPtrHandle<gkRegion> repaired(new gkRegion);
        outerHullRegularize(*repaired, outerHull);
        kept.value = repaired;
        kept.valid = true;
        mutating();
    }
    // A second handle: when `result` is this very region, the assignment replaces the kept one.
    const gkPtrHandle<gkRegion> repaired = kept.value;
    result = *repaired;
}

void gkRegion::outerHullRegularize(gkRegion& result, bool outerHull) const {
    checkEmptyContour();
    gk_Outline outline(points(), encloseRect(gkXform<2>()), search());
    const long start = gk_StartEdge(outline, medianFeatureSize() / 100.0);
    gk_Loop walked = gk_WalkBoundary(outline, start);
    if (!outerHull) {
        result = gkRegion(walked);
        return;
    }
    const std::vector<gk_Loop> loops = gk_JoinLoops(gk_DropInnerLoops(gk_CutLoops(walked)));
    if (loops.size() != 1) gstd_assert_("one loop remains", "cntr/region", 618);
    result = gkRegion(loops.front());
}

void gkRegion::splice(const gkRegion& other, gkRegion& result) const {
    const std::vector<gkLineSeg>& edges = lineSegs();
    for (std::size_t k = 0; k < edges.size(); ++k) {
        if (!validLine()[k]) continue;
        std::vector<int> segments;
        const std::vector<gkVector<2>> found = other.intersections(edges[k], segments, true);
        if (found.empty()) continue;
        result = gkRegion(
            gk_Spliced(found.front(), points(), k, other.points(), static_cast<std::size_t>(segments.front())));
        return;
    }
    throw gkContourDefs::BadParams(L"spliced regions do not intersect");
}
