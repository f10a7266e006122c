#include "examples/demo/measure.h"

#include "platform/core/fit/ellipse_fit.h"

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

} // namespace

Measures measure(const gkContour& contour) {
    Measures measures;
    measures.number = contour.label();
    measures.vertices = contour.points().size();
    measures.closed = contour.isClosed();
    measures.length = contour.length();
    measures.meanPosition = contour.meanPosition();
    measures.diameter = contour.diameter(gkContourDefs::eExact);
    measures.hull = hullOf(contour);
    measures.farthestPair = farthestPair(measures.hull.points());
    measures.fit = fitOf(contour);
    measures.crossesItself = contour.isSelfIntersecting();
    return measures;
}
