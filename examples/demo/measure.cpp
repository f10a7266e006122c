#include "examples/demo/measure.h"

#include "cntr/moments.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/object/errors.h"

namespace {

gkRegion hullOf(const gkContour& contour) {
    gkRegion hull;
    contour.convexHull(hull);
    return hull;
}

// Both ends of the diameter are corners of the hull, so only those are compared.
gkLineSeg farthestPair(const std::vector<gkVector<2>>& corners) {
    gkLineSeg farthest;
    double best = -1.0;
    for (const gkVector<2>& a : corners) {
        for (const gkVector<2>& b : corners) {
            if (a.distance(b) <= best) continue;
            best = a.distance(b);
            farthest = gkLineSeg(a, b);
        }
    }
    return farthest;
}

std::optional<FittedEllipse> fitOf(const gkContour& contour) {
    FittedEllipse fit;
    try {
        contour.fitEllipse(fit.ellipse, fit.error);
    } catch (const gkEllipseFitDefs::TooFewPoints&) {
        return std::nullopt;
    } catch (const gkEllipseFitDefs::Degenerate&) {
        return std::nullopt;
    }
    return fit;
}

// A piece of negative area is taken away from the sum, which gives what gkRegion::inertiaMatrix refuses: second
// moments with holes.
gk_InertiaData momentsOf(const gkRegion& region) {
    gk_InertiaData sum = gf_InertiaDataPolygon(region.points());
    for (const gkPtrHandle_const<gkRegion>& hole : region.holes()) {
        const gk_InertiaData piece = gf_InertiaDataPolygon(hole->points());
        sum = sum + gk_InertiaData(-piece.area(), piece.centerOfMass(), piece.inertiaMatrix());
    }
    return sum;
}

std::optional<gkEllipse> ellipseOf(const gk_InertiaData& moments) {
    try {
        return gf_EllipseFromInertiaData(moments);
    } catch (const gkMathError::Singular&) {
        return std::nullopt;
    }
}

} // namespace

Measures measure(const Object& object) {
    const gkRegion& region = *object.shape;
    Measures measures;
    measures.number = region.label();
    measures.vertices = region.points().size();
    measures.leftOut = object.leftOut;
    measures.length = region.length();
    measures.meanPosition = region.meanPosition();
    measures.diameter = region.diameter(gkContourDefs::eExact);
    measures.hull = hullOf(region);
    measures.hullArea = gf_Area(measures.hull.points());
    measures.farthestPair = farthestPair(measures.hull.points());
    measures.fit = fitOf(region);
    measures.crossesItself = region.isSelfIntersecting();

    const gk_InertiaData moments = momentsOf(region);
    measures.holes = region.holes().size();
    measures.filledArea = region.area(false);
    measures.area = region.area(true);
    measures.centerOfMass = moments.centerOfMass();
    measures.momentsEllipse = ellipseOf(moments);
    return measures;
}
