#include "cntr/region.h"
#include "platform/display/recording_tablet.h"
#include "tests/degenerate/rows.h"
#include "tests/degenerate/said.h"

namespace {

gkContour contour(const Kind& kind) { return gkContour(kind.points, true, 1); }

gkContour other(const Kind& kind) { return gkContour({kind.segment().p1(), kind.segment().p2()}, false, 1); }

gkXform<2> shift() { return gkXform<2>(gkMatrix<2>::identity(), {10, 20}); }

std::string hull(const Kind& kind) {
    gkRegion out;
    contour(kind).convexHull(out);
    return said(out.points(), kind);
}

std::string fit(const Kind& kind) {
    gkEllipse ellipse;
    double error = 0.0;
    contour(kind).fitEllipse(ellipse, error);
    return said(ellipse, kind);
}

std::string map(const Kind& kind) {
    gkContour out;
    contour(kind).map(shift(), out);
    return saidLast(out.points(), kind);
}

std::string draw(const Kind& kind) {
    gkRecordingTablet tablet;
    contour(kind).draw(tablet, gkContourDefs::eDrawOutline, gkColor::black(), gkUITablet::eOverlayLayer);
    return said(tablet.records().size());
}

// A circle of radius 0 about the origin is the answer of a search that found nothing, wherever the outline is.
std::string circle(const Kind& kind, gkContourDefs::DiameterMode mode) {
    return said(contour(kind).encloseCircle(mode), kind);
}

} // namespace

Rows contourRows() {
    return {
        {"length()", [](const Kind& k) { return said(contour(k).length()); }},
        {"meanPosition()", [](const Kind& k) { return said(contour(k).meanPosition(), k); }},
        {"encloseCircle(eExact)", [](const Kind& k) { return circle(k, gkContourDefs::eExact); }},
        {"encloseCircle(eApproximate)", [](const Kind& k) { return circle(k, gkContourDefs::eApproximate); }},
        {"diameter(eExact)", [](const Kind& k) { return said(contour(k).diameter(gkContourDefs::eExact)); }},
        {"diameter(eApproximate)",
         [](const Kind& k) { return said(contour(k).diameter(gkContourDefs::eApproximate)); }},
        {"extremalVertexIndex(0)",
         [](const Kind& k) { return said(contour(k).extremalVertexIndex(gkRadian(0.0))); }},
        {"extremalVertexPosition(0)",
         [](const Kind& k) { return said(contour(k).extremalVertexPosition(gkRadian(0.0)), k); }},
        {"encloseRect(identity)", [](const Kind& k) { return said(contour(k).encloseRect(gkXform<2>()), k); }},
        {"encloseRect(shift)", [](const Kind& k) { return said(contour(k).encloseRect(shift()), k); }},
        {"vertices of convexHull(out)", hull},
        {"fitEllipse(ellipse, error)", fit},
        {"closestPoint(p, false)",
         [](const Kind& k) { return said(contour(k).closestPoint(k.place(), false), k); }},
        {"closestPoint(p, true)",
         [](const Kind& k) { return said(contour(k).closestPoint(k.place(), true), k); }},
        {"closestVertexIndex(p)", [](const Kind& k) { return said(contour(k).closestVertexIndex(k.place())); }},
        {"distToPoint(p, false)", [](const Kind& k) { return said(contour(k).distToPoint(k.place(), false)); }},
        {"distToPoint(p, true)", [](const Kind& k) { return said(contour(k).distToPoint(k.place(), true)); }},
        {"vertexIndex(p, 2)", [](const Kind& k) { return said(contour(k).vertexIndex(k.place(), 2.0)); }},
        {"intersections(s, true)",
         [](const Kind& k) { return said(contour(k).intersections(k.segment(), true), k); }},
        {"intersections(other)", [](const Kind& k) { return said(contour(k).intersections(other(k)), k); }},
        {"isSelfIntersecting()", [](const Kind& k) { return said(contour(k).isSelfIntersecting()); }},
        {"number of vertices of polygon()", [](const Kind& k) { return said(contour(k).polygon().size()); }},
        {"last vertex of map(shift, out)", map},
        {"== with its copy", [](const Kind& k) { return said(contour(k) == contour(k)); }},
        {"segments that draw draws", draw},
    };
}
