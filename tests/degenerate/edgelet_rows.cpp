#include "ch_core/cntrtmpl.h"
#include "platform/display/recording_tablet.h"
#include "tests/degenerate/rows.h"
#include "tests/degenerate/said.h"

namespace {

using EdgeContour = gkContourT<gkEdgelet>;
using EdgeRegion = gkRegionT<gkEdgelet>;
using EdgeSet = gkRegionSetT<gkEdgelet>;

std::vector<gkEdgelet> edgelets(const Kind& kind) {
    std::vector<gkEdgelet> list;
    for (const gkVector<2>& point : kind.points) list.emplace_back(point, 7, gkAngle8(64));
    return list;
}

EdgeContour contour(const Kind& kind) { return EdgeContour(edgelets(kind)); }
EdgeRegion region(const Kind& kind) { return EdgeRegion(edgelets(kind), 1); }
EdgeSet set(const Kind& kind) {
    return EdgeSet(EdgeSet::Regions{gkPtrHandle_const<EdgeRegion>(new EdgeRegion(edgelets(kind), 1))});
}

std::string lastDatum(const EdgeContour& shape, const Kind& kind) {
    return shape.data().empty() ? "none" : said(shape.data().back().position(), kind);
}

std::string withoutTransform(const Kind& kind) {
    EdgeContour shape;
    shape.points(kind.points);
    return lastDatum(shape, kind);
}

std::string addPlain(const Kind& kind) {
    EdgeSet shape;
    shape.add(gkPtrHandle_const<gkRegion>(new gkRegion(kind.points)), gkContourDefs::eKeepIntersections);
    return said(shape.regionsT().size());
}

std::string draw(const Kind& kind) {
    gkRecordingTablet tablet;
    region(kind).draw(tablet, gkColor::black(), gkUITablet::eOverlayLayer);
    return said(tablet.records().size());
}

template <class Shape> std::string mapT(const Shape& shape) {
    Shape out;
    shape.mapT(gkXform<2>(), out);
    return "mapped";
}

template <class Shape> std::string regularizeT(const Shape& shape) {
    Shape out;
    shape.regularizeT(out);
    return "regularized";
}

std::string convexHullT(const Kind& kind) {
    EdgeRegion out;
    contour(kind).convexHullT(out);
    return saidLast(out.points(), kind);
}

} // namespace

Rows edgeletRows() {
    return {
        {"last point of gkContourT(data)", [](const Kind& k) { return saidLast(contour(k).points(), k); }},
        {"last datum of gkContourT(data)", [](const Kind& k) { return lastDatum(contour(k), k); }},
        {"data after gkContourT().points(vertices)", withoutTransform},
        {"datum(p)", [](const Kind& k) { return said(contour(k).datum(k.place()).position(), k); }},
        {"point(datum(p))",
         [](const Kind& k) { return said(contour(k).point(contour(k).datum(k.place())), k); }},
        {"length()", [](const Kind& k) { return said(contour(k).length()); }},
        {"== with its copy",
         [](const Kind& k) {
             const EdgeContour shape = contour(k);
             return said(EdgeContour(shape) == shape);
         }},
        {"gkContourT::mapT", [](const Kind& k) { return mapT(contour(k)); }},
        {"gkContourT::convexHullT", convexHullT},
        {"last point of gkRegionT(data, 1)", [](const Kind& k) { return saidLast(region(k).points(), k); }},
        {"last point of gkRegionT(contour, 1)",
         [](const Kind& k) { return saidLast(EdgeRegion(contour(k), 1).points(), k); }},
        {"gkRegionT::area(false)", [](const Kind& k) { return said(region(k).area(false)); }},
        {"strokes that gkRegionT::draw draws", draw},
        {"gkRegionT::mapT", [](const Kind& k) { return mapT(region(k)); }},
        {"gkRegionT::regularizeT", [](const Kind& k) { return regularizeT(region(k)); }},
        {"regions of gkRegionSetT({region})", [](const Kind& k) { return said(set(k).regionsT().size()); }},
        {"gkRegionSetT::area(false)", [](const Kind& k) { return said(set(k).area(false)); }},
        {"regions after gkRegionSetT().add(plain)", addPlain},
        {"gkRegionSetT::mapT", [](const Kind& k) { return mapT(set(k)); }},
        {"gkRegionSetT::regularizeT", [](const Kind& k) { return regularizeT(set(k)); }},
    };
}
