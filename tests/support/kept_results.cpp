#include "tests/support/kept_results.h"

namespace {

// Opens the protected side of any contour through pointers to its members; no object of this class is ever
// made.
struct Reach : gkContour {
    static constexpr auto lineSegsOf = &Reach::lineSegs;
    static constexpr auto validLineOf = &Reach::validLine;
    static constexpr auto medianFeatureSizeOf = &Reach::medianFeatureSize;
};

gkXform<2> shear() { return gkXform<2>(gkMatrix<2>(1.0, 0.5, -0.25, 2.0), {3.0, -1.0}); }

Points hullOf(const gkContour& contour) {
    gkRegion hull;
    contour.convexHull(hull);
    return hull.points();
}

} // namespace

Answer repaired(const gkRegion& region, void (gkRegion::*repair)(gkRegion&) const) {
    gkRegion result;
    (region.*repair)(result);
    Answer described;
    described.add(result.points());
    described.add(static_cast<long>(result.holes().size()));
    described.add(static_cast<long>(result.label()));
    return described;
}

Answer repaired(const gkRegionSet& set, void (gkRegionSet::*repair)(gkRegionSet&) const) {
    gkRegionSet result;
    (set.*repair)(result);
    Answer outlines;
    for (const auto& region : result.regions()) outlines.add(region->points());
    return outlines;
}

const std::vector<Kept<gkContour>>& keptOfContours() {
    static const std::vector<Kept<gkContour>> list = {
        {"length", [](const gkContour& c) { return answer([&] { return c.length(); }); }},
        {"meanPosition", [](const gkContour& c) { return answer([&] { return c.meanPosition(); }); }},
        {"encloseCircle(eExact)",
         [](const gkContour& c) { return answer([&] { return c.encloseCircle(gkContourDefs::eExact); }); }},
        {"encloseCircle(eApproximate)",
         [](const gkContour& c) {
             return answer([&] { return c.encloseCircle(gkContourDefs::eApproximate); });
         }},
        {"extremalVertexIndex",
         [](const gkContour& c) { return answer([&] { return c.extremalVertexIndex(gkRadian(0.75)); }); }},
        {"encloseRect", [](const gkContour& c) { return answer([&] { return c.encloseRect(shear()); }); }},
        {"encloseRect of the identity",
         [](const gkContour& c) { return answer([&] { return c.encloseRect(gkXform<2>()); }); }},
        {"convexHull", [](const gkContour& c) { return answer([&] { return hullOf(c); }); }},
        {"fitEllipse",
         [](const gkContour& c) {
             gkEllipse ellipse;
             double error = 0.0;
             Answer result = answer([&] {
                 c.fitEllipse(ellipse, error);
                 return ellipse;
             });
             result.add(error);
             return result;
         }},
        {"lineSegs", [](const gkContour& c) { return answer([&] { return (c.*Reach::lineSegsOf)(); }); }},
        {"validLine", [](const gkContour& c) { return answer([&] { return (c.*Reach::validLineOf)(); }); }},
        {"isSelfIntersecting",
         [](const gkContour& c) { return answer([&] { return c.isSelfIntersecting(); }); }},
        {"medianFeatureSize",
         [](const gkContour& c) { return answer([&] { return (c.*Reach::medianFeatureSizeOf)(); }); }},
        {"vertexIndex",
         [](const gkContour& c) { return answer([&] {
                                      return c.vertexIndex({1.0, 1.0}, 2.5);
                                  }); }},
    };
    return list;
}

const std::vector<Kept<gkRegion>>& keptOfRegions() {
    static const std::vector<Kept<gkRegion>> list = {
        {"area(false)", [](const gkRegion& r) { return answer([&] { return r.area(false); }); }},
        {"area(true)", [](const gkRegion& r) { return answer([&] { return r.area(true); }); }},
        {"centerOfMass(false)",
         [](const gkRegion& r) { return answer([&] { return r.centerOfMass(false); }); }},
        {"centerOfMass(true)", [](const gkRegion& r) { return answer([&] { return r.centerOfMass(true); }); }},
        {"inertiaMatrix(false)",
         [](const gkRegion& r) { return answer([&] { return r.inertiaMatrix(false); }); }},
        {"inertiaMatrix(true)",
         [](const gkRegion& r) { return answer([&] { return r.inertiaMatrix(true); }); }},
        {"regularize", [](const gkRegion& r) { return repaired(r, &gkRegion::regularize); }},
        {"outerHull", [](const gkRegion& r) { return repaired(r, &gkRegion::outerHull); }},
        {"inside", [](const gkRegion& r) { return answer([&] {
                                               return r.inside({1, 4.5}, true);
                                           }); }},
        {"length", [](const gkRegion& r) { return answer([&] { return r.length(); }); }},
    };
    return list;
}

const std::vector<Kept<gkRegionSet>>& keptOfSets() {
    static const std::vector<Kept<gkRegionSet>> list = {
        {"area(false)", [](const gkRegionSet& s) { return answer([&] { return s.area(false); }); }},
        {"area(true)", [](const gkRegionSet& s) { return answer([&] { return s.area(true); }); }},
        {"centerOfMass(false)",
         [](const gkRegionSet& s) { return answer([&] { return s.centerOfMass(false); }); }},
        {"centerOfMass(true)",
         [](const gkRegionSet& s) { return answer([&] { return s.centerOfMass(true); }); }},
        {"inertiaMatrix(false)",
         [](const gkRegionSet& s) { return answer([&] { return s.inertiaMatrix(false); }); }},
        {"inertiaMatrix(true)",
         [](const gkRegionSet& s) { return answer([&] { return s.inertiaMatrix(true); }); }},
        {"encloseRect", [](const gkRegionSet& s) { return answer([&] { return s.encloseRect(shear()); }); }},
        {"isSelfIntersecting",
         [](const gkRegionSet& s) { return answer([&] { return s.isSelfIntersecting(); }); }},
        {"regularize", [](const gkRegionSet& s) { return repaired(s, &gkRegionSet::regularize); }},
        {"outerHull", [](const gkRegionSet& s) { return repaired(s, &gkRegionSet::outerHull); }},
    };
    return list;
}
