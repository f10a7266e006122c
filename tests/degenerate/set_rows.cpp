#include "cntr/regionst.h"
#include "platform/display/recording_tablet.h"
#include "tests/degenerate/rows.h"
#include "tests/degenerate/said.h"

namespace {

using List = std::vector<gkPtrHandle_const<gkRegion>>;

List list(const Kind& kind) {
    if (!kind.inSet) return {};
    return {gkPtrHandle_const<gkRegion>(new gkRegion(kind.points))};
}

gkRegionSet set(const Kind& kind) { return gkRegionSet(list(kind)); }

std::string crossesSquare(const Kind& kind) {
    List both = list(kind);
    const Points square = {kind.at(0.5, 0.5), kind.at(1.5, 0.5), kind.at(1.5, 1.5), kind.at(0.5, 1.5)};
    both.emplace_back(new gkRegion(square));
    return said(gkRegionSet(both).isSelfIntersecting());
}

std::string regularized(const Kind& kind) {
    gkRegionSet out;
    set(kind).regularize(out);
    return said(out.regions().size());
}

std::string outerHull(const Kind& kind) {
    gkRegionSet out;
    set(kind).outerHull(out);
    return said(out.regions().size());
}

std::string draw(const Kind& kind) {
    gkRecordingTablet tablet;
    set(kind).draw(tablet, gkColor::black(), gkUITablet::eOverlayLayer);
    return said(tablet.records().size());
}

} // namespace

Rows setRows() {
    return {
        {"area(false)", [](const Kind& k) { return said(set(k).area(false)); }},
        {"area(true)", [](const Kind& k) { return said(set(k).area(true)); }},
        {"centerOfMass(false)", [](const Kind& k) { return said(set(k).centerOfMass(false), k); }},
        {"centerOfMass(true)", [](const Kind& k) { return said(set(k).centerOfMass(true), k); }},
        {"inertiaMatrix(false)", [](const Kind& k) { return said(set(k).inertiaMatrix(false)); }},
        {"inertiaMatrix(true)", [](const Kind& k) { return said(set(k).inertiaMatrix(true)); }},
        {"inside(p, true)", [](const Kind& k) { return said(set(k).inside(k.place(), true)); }},
        {"distToPoint(p, false, true, false)",
         [](const Kind& k) { return said(set(k).distToPoint(k.place(), false, true, false)); }},
        {"distToPoint(p, false, true, true)",
         [](const Kind& k) { return said(set(k).distToPoint(k.place(), false, true, true)); }},
        {"encloseRect(identity)", [](const Kind& k) { return said(set(k).encloseRect(gkXform<2>()), k); }},
        {"isSelfIntersecting()", [](const Kind& k) { return said(set(k).isSelfIntersecting()); }},
        {"isSelfIntersecting() with a square about p behind it", crossesSquare},
        {"regions of regularize(out)", regularized},
        {"regions of outerHull(out)", outerHull},
        {"== with its copy", [](const Kind& k) { return said(set(k) == set(k)); }},
        {"segments that draw draws", draw},
    };
}
