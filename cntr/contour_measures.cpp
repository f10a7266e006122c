#include "cntr/bounded_map.h"
#include "cntr/contour.h"
#include "cntr/index.h"
#include "cntr/measures.h"
#include "cntr/moments.h"
#include "cntr/one_thread.h"
#include "cntr/region.h"
#include "cntr/search/outline_search.h"
#include "platform/core/shapes/convex_hull.h"

double gkContour::length() const {
    const gk_OneThread here(*this);
    if (value_.points.empty()) return 0.0;
    if (!caches_.length.valid) {
        caches_.length.value = gk_Length(value_.points, isClosed());
        caches_.length.valid = true;
        mutating();
    }
    return caches_.length.value;
}

gkVector<2> gkContour::meanPosition() const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    gk_Kept<gkVector<2>>& kept = caches_.rare.made().meanPosition;
    if (!kept.valid) {
        kept.value = gk_MeanPosition(value_.points, isClosed());
        kept.valid = true;
        mutating();
    }
    return kept.value;
}

gkCircle gkContour::encloseCircle(gkContourDefs::DiameterMode mode) const {
    const gk_OneThread here(*this);
    if (mode != gkContourDefs::eExact && mode != gkContourDefs::eApproximate) {
        throw gkContourDefs::BadParams(L"diameterMode is not one of the valid enums");
    }
    gk_Kept<gkCircle>& kept =
        mode == gkContourDefs::eExact ? caches_.rare.made().exactCircle : caches_.circleAroundFirst;
    if (kept.valid) return kept.value;
    if (mode == gkContourDefs::eExact) {
        gk_OutlineSearch::circleOverFarthestPair(value_.points, kept.value);
    } else {
        if (value_.points.empty()) throw gkContourDefs::EmptyContour(L"");
        kept.value = gk_CircleAroundFirst(value_.points);
    }
    kept.valid = true;
    mutating();
    return kept.value;
}

double gkContour::diameter(gkContourDefs::DiameterMode mode) const {
    return 2.0 * encloseCircle(mode).radius();
}

long gkContour::extremalVertexIndex(const gkRadian& angle) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    ExtremalMap& known = caches_.rare.made().extremalVertices;
    if (const std::int32_t* const kept = known.find(angle)) return *kept;
    const long index = search().extremalVertex(value_.points, angle);
    gk_InsertBounded<gsSTLLessPredicate>(known, angle, static_cast<std::int32_t>(index),
                                         static_cast<std::size_t>(cachedVectorSize()));
    mutating();
    return index;
}

gkVector<2> gkContour::extremalVertexPosition(const gkRadian& angle) const {
    const long index = extremalVertexIndex(angle);
    if (index < 0) throw gkContourDefs::BadParams(L"no vertex has a finite position in this direction");
    return value_.points[static_cast<std::size_t>(index)];
}

gkRect gkContour::encloseRect(const gkXform<2>& xform) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    if (const gkRect* const kept = caches_.encloseRects.find(xform)) return *kept;
    const gkRect rect = gk_OutlineSearch::isNeededFor(value_.points)
                            ? search().encloseRect(value_.points, xform)
                            : gk_EncloseRect(value_.points, xform);
    noteNewBox(xform);
    gk_InsertBounded<gsSTLLessPredicate>(caches_.encloseRects, xform, rect,
                                         static_cast<std::size_t>(cachedVectorSize()));
    mutating();
    return rect;
}

// The identity's own box is what an index expects. Another transform may bring a box of its own under the
// identity's key, or push the identity's box out, after which it would have to be asked for again.
void gkContour::noteNewBox(const gkXform<2>& xform) const {
    if (!caches_.mark.isSet()) return;
    const bool pushesOut = caches_.encloseRects.size() > static_cast<std::size_t>(cachedVectorSize());
    if (RectMap::isIdentitysKey(xform) ? xform.matrix().element(1, 1) != 1.0 : pushesOut)
        caches_.mark.noteChange();
}

void gkContour::convexHull(gkRegion& out) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    gk_Kept<gkPtrHandle<gkRegion>>& kept = caches_.rare.made().convexHull;
    if (!kept.valid) {
        kept.value = gkPtrHandle<gkRegion>(new gkRegion(gfConvexHull(value_.points)));
        kept.valid = true;
        mutating();
    }
    // A second handle: when `out` is this very contour, the assignment replaces the kept one.
    const gkPtrHandle<gkRegion> hull = kept.value;
    out = *hull;
}

void gkContour::fitEllipse(gkEllipse& ellipse, double& error) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    gk_Kept<EllipseFit>& kept = caches_.rare.made().ellipseFit;
    if (!kept.valid) {
        gf_FitEllipse(value_.points, kept.value.ellipse, kept.value.error);
        kept.valid = true;
        mutating();
    }
    ellipse = kept.value.ellipse;
    error = kept.value.error;
}
