#include "cntr/moments.h"
#include "platform/core/shapes/convex_hull.h"
#include "tests/degenerate/rows.h"
#include "tests/degenerate/said.h"

namespace {

std::vector<gkEdgelet> edgelets(const Kind& kind) {
    std::vector<gkEdgelet> list;
    for (const gkVector<2>& point : kind.points) list.emplace_back(point, 7, gkAngle8(64));
    return list;
}

template <class List> std::string fit(const List& list, const Kind& kind) {
    gkEllipse ellipse;
    double error = 0.0;
    gf_FitEllipse(list, ellipse, error);
    return said(ellipse, kind);
}

std::string deviation(const Kind& kind) {
    std::vector<double> values;
    for (const gkVector<2>& point : kind.points) values.push_back(point.x());
    return said(gf_StdDev(values));
}

} // namespace

Rows functionRows() {
    return {
        {"gf_Area(points)", [](const Kind& k) { return said(gf_Area(k.points)); }},
        {"gf_Area(edgelets)", [](const Kind& k) { return said(gf_Area(edgelets(k))); }},
        {"gf_CenterOfMass(points)", [](const Kind& k) { return said(gf_CenterOfMass(k.points), k); }},
        {"gf_CenterOfMass(edgelets)", [](const Kind& k) { return said(gf_CenterOfMass(edgelets(k)), k); }},
        {"gnContour::centerOfMass(points)",
         [](const Kind& k) { return said(gnContour::centerOfMass(k.points), k); }},
        {"gf_InertiaDataPolygon(points).area()",
         [](const Kind& k) { return said(gf_InertiaDataPolygon(k.points).area()); }},
        {"gf_InertiaDataPolygon(points).centerOfMass()",
         [](const Kind& k) { return said(gf_InertiaDataPolygon(k.points).centerOfMass(), k); }},
        {"gf_InertiaDataPolygon(points).inertiaMatrix()",
         [](const Kind& k) { return said(gf_InertiaDataPolygon(k.points).inertiaMatrix()); }},
        {"gf_EllipseFromInertiaData(gf_InertiaDataPolygon(points))",
         [](const Kind& k) { return said(gf_EllipseFromInertiaData(gf_InertiaDataPolygon(k.points)), k); }},
        {"gf_FitEllipse(points, ellipse, error)", [](const Kind& k) { return fit(k.points, k); }},
        {"gf_FitEllipse(edgelets, ellipse, error)", [](const Kind& k) { return fit(edgelets(k), k); }},
        {"gf_StdDev(values)", deviation},
        {"gfConvexHull(points)", [](const Kind& k) { return said(gfConvexHull(k.points), k); }},
    };
}
