#include "cntr/region.h"
#include "platform/display/recording_tablet.h"
#include "tests/degenerate/rows.h"
#include "tests/degenerate/said.h"

namespace {

gkRegion region(const Kind& kind) { return gkRegion(kind.points); }

gkRegion withHole(const Kind& kind) {
    gkRegion holed = region(kind);
    const Points triangle = {kind.at(1, 1), kind.at(2, 1), kind.at(2, 2)};
    holed.holes({gkPtrHandle_const<gkRegion>(new gkRegion(triangle))});
    return holed;
}

gkContour other(const Kind& kind) { return gkContour({kind.segment().p1(), kind.segment().p2()}, false, 1); }

std::string built(const Kind& kind, gkContourDefs::IntersectionMode mode) {
    return said(gkRegion(kind.points, mode).points().size());
}

std::string regularized(const Kind& kind) {
    gkRegion out;
    region(kind).regularize(out);
    return said(out.points().size());
}

std::string outerHull(const Kind& kind) {
    gkRegion out;
    region(kind).outerHull(out);
    return said(out.points().size());
}

std::string closestVertex(const Kind& kind) {
    long hole = 0;
    return said(region(kind).closestVertexIndex(kind.place(), true, hole));
}

std::string map(const Kind& kind) {
    gkRegion out;
    region(kind).map(gkXform<2>(gkMatrix<2>::identity(), {10, 20}), out);
    return saidLast(out.points(), kind);
}

std::string draw(const Kind& kind) {
    gkRecordingTablet tablet;
    region(kind).draw(tablet, gkColor::black(), gkUITablet::eOverlayLayer);
    return said(tablet.records().size());
}

// The field that is never written is (0, 0), wherever the region is.
std::string centerAgain(const Kind& kind) {
    const gkRegion holed = withHole(kind);
    holed.centerOfMass(true);
    return said(holed.centerOfMass(true), Kind());
}

} // namespace

Rows regionRows() {
    return {
        {"vertices left by gkRegion(vertices, eRegularize)",
         [](const Kind& k) { return built(k, gkContourDefs::eRegularize); }},
        {"vertices left by gkRegion(vertices, eOuterHull)",
         [](const Kind& k) { return built(k, gkContourDefs::eOuterHull); }},
        {"vertices of regularize(out)", regularized},
        {"vertices of outerHull(out)", outerHull},
        {"area(false)", [](const Kind& k) { return said(region(k).area(false)); }},
        {"area(true)", [](const Kind& k) { return said(region(k).area(true)); }},
        {"centerOfMass(false)", [](const Kind& k) { return said(region(k).centerOfMass(false), k); }},
        {"centerOfMass(true)", [](const Kind& k) { return said(region(k).centerOfMass(true), k); }},
        {"inertiaMatrix(false)", [](const Kind& k) { return said(region(k).inertiaMatrix(false)); }},
        {"inertiaMatrix(true)", [](const Kind& k) { return said(region(k).inertiaMatrix(true)); }},
        {"inside(p, false)", [](const Kind& k) { return said(region(k).inside(k.place(), false)); }},
        {"inside(p, true)", [](const Kind& k) { return said(region(k).inside(k.place(), true)); }},
        {"closestVertexIndex(p)", [](const Kind& k) { return said(region(k).closestVertexIndex(k.place())); }},
        {"closestVertexIndex(p, true, hole)", closestVertex},
        {"closestPoint(p, true, true)",
         [](const Kind& k) { return said(region(k).closestPoint(k.place(), true, true), k); }},
        {"closestPoint(p, false, true)",
         [](const Kind& k) { return said(region(k).closestPoint(k.place(), false, true), k); }},
        {"distToPoint(p, false, true, false)",
         [](const Kind& k) { return said(region(k).distToPoint(k.place(), false, true, false)); }},
        {"distToPoint(p, false, true, true)",
         [](const Kind& k) { return said(region(k).distToPoint(k.place(), false, true, true)); }},
        {"intersections(s, true)",
         [](const Kind& k) { return said(region(k).intersections(k.segment(), true), k); }},
        {"intersections(s, true, true)",
         [](const Kind& k) { return said(region(k).intersections(k.segment(), true, true), k); }},
        {"intersections(other)", [](const Kind& k) { return said(region(k).intersections(other(k)), k); }},
        {"intersections(other, true)",
         [](const Kind& k) { return said(region(k).intersections(other(k), true), k); }},
        {"last vertex of map(shift, out)", map},
        {"segments that draw draws", draw},
    };
}

Rows holeRows() {
    return {
        {"number of holes after holes({hole})", [](const Kind& k) { return said(withHole(k).holes().size()); }},
        {"area(true) with the hole", [](const Kind& k) { return said(withHole(k).area(true)); }},
        {"centerOfMass(true) with the hole, asked first",
         [](const Kind& k) { return said(withHole(k).centerOfMass(true), k); }},
        {"centerOfMass(true) with the hole, asked again", centerAgain},
        {"inertiaMatrix(true) with the hole",
         [](const Kind& k) { return said(withHole(k).inertiaMatrix(true)); }},
    };
}
