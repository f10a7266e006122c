// The free functions over vertices: hull, moments, ellipses, deviation.
#include "cntr/moments.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/shapes/convex_hull.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

void add(Answer& answer, const gk_InertiaData& data) {
    answer.add(data.area());
    answer.add(data.centerOfMass());
    answer.add(data.inertiaMatrix());
}

void convexHull(const World& world, Record& record) {
    record.value([&] { return gfConvexHull(world.points); });
}

void area(const World& world, Record& record) {
    record.value([&] { return gf_Area(world.points); });
    record.value([&] { return gf_Area(world.data); });
}

void centerOfMass(const World& world, Record& record) {
    record.value([&] { return gf_CenterOfMass(world.points); });
    record.value([&] { return gf_CenterOfMass(world.data); });
    record.value([&] { return gnContour::centerOfMass(world.points); });
}

void inertia(const World& world, Record& record) {
    record.fill([&](Answer& answer) { add(answer, gf_InertiaDataPolygon(world.points)); });
}

void inertiaSum(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        add(answer, gf_InertiaDataPolygon(world.points) + gf_InertiaDataPolygon(world.other));
    });
}

void ellipseOfInertia(const World& world, Record& record) {
    record.value([&] { return gf_EllipseFromInertiaData(gf_InertiaDataPolygon(world.points)); });
}

void fitEllipse(const World& world, Record& record) {
    gkEllipse ellipse;
    double error = 0.0;
    record.fill([&](Answer& answer) {
        gf_FitEllipse(world.points, ellipse, error);
        answer.add(ellipse);
        answer.add(error);
    });
    record.fill([&](Answer& answer) {
        gf_FitEllipse(world.data, ellipse, error);
        answer.add(ellipse);
        answer.add(error);
    });
}

void ellipseFit(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkEllipseFitResults results;
        gfEllipseFit(gkEllipseFitParams(gkEllipseFitDefs::eDirectLeastSquares, gkRadian(0.0), 0, 1e9),
                     world.points, results);
        answer.add(results.ellipse());
        answer.add(results.error());
    });
}

void standardDeviation(const World& world, Record& record) {
    std::vector<double> values;
    for (const gkVector<2>& p : world.points) values.push_back(p.x());
    record.value([&] { return gf_StdDev(values); });
}

} // namespace

bits::Operations bits::momentOperations() {
    return {{"gfConvexHull", &convexHull},       {"gf_Area", &area},
            {"gf_CenterOfMass", &centerOfMass},  {"gf_InertiaDataPolygon", &inertia},
            {"gk_InertiaData.sum", &inertiaSum}, {"gf_EllipseFromInertiaData", &ellipseOfInertia},
            {"gf_FitEllipse", &fitEllipse},      {"gfEllipseFit", &ellipseFit},
            {"gf_StdDev", &standardDeviation}};
}
