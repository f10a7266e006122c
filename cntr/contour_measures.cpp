#include "cntr/bounded_map.h"
#include "cntr/contour.h"
#include "cntr/index.h"
#include "cntr/measures.h"
#include "cntr/moments.h"
#include "cntr/region.h"
#include "cntr/search/outline_search.h"
#include "platform/core/shapes/convex_hull.h"

double gkContour::length() const {
    if (value_.points.empty()) return 0.0;
    if (!caches_.length.valid) {
        caches_.length.value = gk_Length(value_.points, isClosed());
        caches_.length.valid = true;
        mutating();
    }
    return caches_.length.value;
}

gkVector<2> gkContour::meanPosition() const {
    checkEmptyContour();
    if (!caches_.meanPosition.valid) {
        caches_.meanPosition.value = gk_MeanPosition(value_.points, isClosed());
        caches_.meanPosition.valid = true;
        mutating();
    }
    return caches_.meanPosition.value;
}

gkCircle gkContour::encloseCircle(gkContourDefs::DiameterMode mode) const {
    if (mode != gkContourDefs::eExact && mode != gkContourDefs::eApproximate) {
        throw gkContourDefs::BadParams(L"diameterMode is not one of the valid enums");
    }
    const auto slot = static_cast<std::size_t>(mode);
    if (caches_.circleValid[slot]) return caches_.circles[slot];
    if (mode == gkContourDefs::eExact) {
        search().circleOverFarthestPair(value_.points, caches_.circles[slot]);
    } else {
        if (value_.points.empty()) throw gkContourDefs::EmptyContour(L"");
        caches_.circles[slot] = gk_CircleAroundFirst(value_.points);
    }
    caches_.circleValid[slot] = true;
    mutating();
    return caches_.circles[slot];
}

double gkContour::diameter(gkContourDefs::DiameterMode mode) const {
    return 2.0 * encloseCircle(mode).radius();
}

long gkContour::extremalVertexIndex(const gkRadian& angle) const {
    checkEmptyContour();
    ExtremalMap& known = caches_.extremalVertices.made();
    const auto entry = known.find(angle);
    if (entry != known.end()) return entry->second;
    const long index = search().extremalVertex(value_.points, angle);
    gk_InsertBounded(known, angle, static_cast<std::int32_t>(index),
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
    checkEmptyContour();
    RectMap& known = caches_.encloseRects.made();
    const auto entry = known.find(xform);
    if (entry != known.end()) return entry->second;
    const gkRect rect = search().encloseRect(value_.points, xform);
    noteNewBox(xform, known);
    gk_InsertBounded(known, xform, rect, static_cast<std::size_t>(cachedVectorSize()));
    mutating();
    return rect;
}

const gkRect* gkContour::keptBox() const {
    if (!caches_.encloseRects.get()) return nullptr;
    const auto entry = caches_.encloseRects.get()->find(gkXform<2>());
    return entry == caches_.encloseRects.get()->end() ? nullptr : &entry->second;
}

// The identity's own box is what an index expects. Another transform may bring a box of its own under the
// identity's key, or push the identity's box out, after which it would have to be asked for again.
void gkContour::noteNewBox(const gkXform<2>& xform, const RectMap& known) const {
    if (!caches_.mark.isSet()) return;
    const gsSTLLessPredicate isLess;
    const gkXform<2> identity;
    const bool hasItsKey = !isLess(xform, identity) && !isLess(identity, xform);
    const bool pushesOut = known.size() > static_cast<std::size_t>(cachedVectorSize());
    if (hasItsKey ? xform.matrix().element(1, 1) != 1.0 : pushesOut) caches_.mark.noteChange();
}

void gkContour::convexHull(gkRegion& out) const {
    checkEmptyContour();
    if (!caches_.convexHull.valid) {
        caches_.convexHull.value = gkPtrHandle<gkRegion>(new gkRegion(gfConvexHull(value_.points)));
        caches_.convexHull.valid = true;
        mutating();
    }
    // A second handle: when `out` is this very contour, the assignment replaces the kept one.
    const gkPtrHandle<gkRegion> hull = caches_.convexHull.value;
    out = *hull;
}

void gkContour::fitEllipse(gkEllipse& ellipse, double& error) const {
    checkEmptyContour();
    if (!caches_.ellipseFit.valid) {
        gf_FitEllipse(value_.points, caches_.ellipseFit.value.ellipse, caches_.ellipseFit.value.error);
        caches_.ellipseFit.valid = true;
        mutating();
    }
    ellipse = caches_.ellipseFit.value.ellipse;
    error = caches_.ellipseFit.value.error;
}
