// Measures of whole outlines.
#include "cntr/moments.h"
#include "tests/instructions/shapes.h"

namespace instructions {
namespace {

template <class Ask> std::function<void()> ofContours(int count, int copies, Ask ask) {
    auto list = std::make_shared<Fresh<gkContour>>(contours(simpleOutlines(count), copies));
    return [=] {
        for (const auto& contour : *list) ask(*contour);
    };
}

std::function<void()> measures() {
    return ofContours(1000, 20, [](const gkContour& contour) {
        contour.length();
        contour.meanPosition();
        contour.diameter(gkContourDefs::eApproximate);
        contour.encloseRect(gkXform<2>());
    });
}

std::function<void()> areasAndCentres() {
    auto outlines = std::make_shared<std::vector<Points>>(simpleOutlines(50000));
    return [=] {
        for (const Points& points : *outlines) {
            gf_Area(points);
            gf_CenterOfMass(points);
        }
    };
}

std::function<void()> secondMoments() {
    auto outlines = std::make_shared<std::vector<Points>>(simpleOutlines(20000));
    return [=] {
        for (const Points& points : *outlines) gf_InertiaDataPolygon(points);
    };
}

std::function<void()> hullAndDiameter() {
    return ofContours(10000, 2, [](const gkContour& contour) {
        gkRegion hull;
        contour.convexHull(hull);
        contour.diameter(gkContourDefs::eExact);
    });
}

std::function<void()> ellipse() {
    return ofContours(20000, 1, [](const gkContour& contour) {
        gkEllipse fitted;
        double error = 0.0;
        contour.fitEllipse(fitted, error);
    });
}

std::function<void()> directions() {
    return ofContours(10000, 1, [](const gkContour& contour) {
        for (int i = 0; i < 500; ++i) {
            const gkRadian angle(0.0125 * i);
            contour.extremalVertexIndex(angle);
            contour.encloseRect(gkXform<2>(gkMatrix<2>(angle, angle, 1.0, 1.0), {1.0, 2.0}));
        }
    });
}

} // namespace

Workloads measureWorkloads() {
    return {{"measures", &measures},
            {"area and centre of mass", &areasAndCentres},
            {"second moments", &secondMoments},
            {"hull and diameter", &hullAndDiameter},
            {"ellipse fit", &ellipse},
            {"directions", &directions}};
}

} // namespace instructions
