#include "cntr/bounded_map.h"
#include "cntr/moments.h"
#include "cntr/one_thread.h"
#include "cntr/regionst.h"
#include "cntr/search/set_search.h"
#include "platform/core/math/real.h"

double gkRegionSet::area(bool considerHoles) const {
    const gk_OneThread here(*this);
    gk_Kept<double>& kept = considerHoles ? caches_.areaWithHoles : caches_.area;
    if (!kept.valid) {
        double sum = 0.0;
        for (const auto& region : regions_) sum += region->area(considerHoles);
        kept.value = sum;
        kept.valid = true;
        mutating();
    }
    return kept.value;
}

gkVector<2> gkRegionSet::centerOfMass(bool considerHoles) const {
    const gk_OneThread here(*this);
    checkEmptyRegionSet();
    gk_Kept<gkVector<2>>& kept = considerHoles ? caches_.centerOfMassWithHoles : caches_.centerOfMass;
    if (!kept.valid) {
        gkVector<2> moment;
        double area = 0.0;
        for (const auto& region : regions_) {
            const gkVector<2> center = region->centerOfMass(considerHoles);
            moment = moment + center * region->area(considerHoles);
            area += region->area(considerHoles);
        }
        kept.value = gfRealEq(area, 0.0, 1e-15) ? gkVector<2>() : moment / area;
        kept.valid = true;
        mutating();
    }
    return kept.value;
}

gkMatrix<2> gkRegionSet::inertiaMatrix(bool considerHoles) const {
    const gk_OneThread here(*this);
    checkEmptyRegionSet();
    gk_Kept<gkMatrix<2>>& kept = considerHoles ? caches_.inertiaWithHoles : caches_.inertia;
    if (!kept.valid) {
        gk_InertiaData sum(0.0, gkVector<2>(), gkMatrix<2>());
        for (const auto& region : regions_) {
            // In this order: a region's centre with holes answers truly only on its first call.
            const gkMatrix<2> inertia = region->inertiaMatrix(considerHoles);
            const gkVector<2> center = region->centerOfMass(considerHoles);
            const double area = region->area(considerHoles);
            sum = sum + gk_InertiaData(area, center, inertia);
        }
        kept.value = sum.inertiaMatrix();
        kept.valid = true;
        mutating();
    }
    return kept.value;
}

bool gkRegionSet::inside(const gkVector<2>& point, bool considerHoles) const {
    const gk_OneThread here(*this);
    return caches_.search.made().inside(regions_, point, considerHoles);
}

double gkRegionSet::distToPoint(const gkVector<2>& point, bool verticesOnly, bool considerHoles,
                                bool zeroInside) const {
    const gk_OneThread here(*this);
    checkEmptyRegionSet();
    return caches_.search.made().distToPoint(regions_, point, verticesOnly, considerHoles, zeroInside);
}

gkRect gkRegionSet::encloseRect(const gkXform<2>& xform) const {
    const gk_OneThread here(*this);
    checkEmptyRegionSet();
    if (const gkRect* const kept = caches_.encloseRects.find(xform)) return *kept;
    gkRect rect = regions_.front()->encloseRect(xform);
    for (std::size_t i = 1; i < regions_.size(); ++i) rect = rect.enclose(regions_[i]->encloseRect(xform));
    gk_InsertBounded<gkContour::gsSTLLessPredicate>(caches_.encloseRects, xform, rect,
                                                    static_cast<std::size_t>(cachedVectorSize_));
    mutating();
    return rect;
}
