// Pictures of nearest points and vertices, distances, and what is inside.
#include "cntr/regionst.h"
#include "groups.h"
#include "shapes.h"

namespace {

constexpr Figure::Role kGiven = Figure::eGiven;
constexpr Figure::Role kAnswer = Figure::eAnswer;

const gkVector<2> kPlace(118, 146);

gkRegion given(Figure& figure) {
    const gkRegion region(bean());
    figure.hatch(region, kGiven);
    figure.draw(region, kGiven);
    return region;
}

void closestPoint(Figure& figure) {
    const gkRegion region = given(figure);
    figure.dot(kPlace, kGiven);
    figure.dot(region.closestPoint(kPlace, false), kAnswer);
    figure.say("closestPoint(p, false)");
}

void closestVertex(Figure& figure) {
    const gkRegion region = given(figure);
    figure.dot(kPlace, kGiven);
    figure.dot(region.closestPoint(kPlace, true), kAnswer);
    figure.say("closestVertexIndex(p) = " + std::to_string(region.closestVertexIndex(kPlace)));
}

void distance(Figure& figure) {
    const gkRegion region = given(figure);
    figure.dot(kPlace, kGiven);
    figure.draw(gkLineSeg(kPlace, region.closestPoint(kPlace, false)), kAnswer);
    figure.say("distToPoint(p, false) = " + oneDigit(region.distToPoint(kPlace, false)));
}

void vertexIndex(Figure& figure) {
    const gkRegion region = given(figure);
    const gkVector<2> place(110, 100);
    const double tolerance = 44.0;
    figure.dot(place, kGiven);
    figure.draw(gkCircle(place, tolerance), kGiven);
    std::string indices;
    for (const int index : region.vertexIndex(place, tolerance)) {
        figure.dot(region.points()[static_cast<std::size_t>(index)], kAnswer);
        indices += (indices.empty() ? "" : ", ") + std::to_string(index);
    }
    figure.say("vertexIndex(p, 44) = " + indices);
}

void inside(Figure& figure) {
    const gkRegion region = holed();
    figure.draw(region, kGiven);
    figure.draw(*region.holes()[0], kGiven);
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 11; ++column) {
            const gkVector<2> place(22.0 + 20.0 * column, 20.0 + 20.0 * row);
            figure.dot(place, region.inside(place, true) ? kAnswer : kGiven);
        }
    }
    figure.say("inside(p, true)");
}

void setDistance(Figure& figure) {
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const gkVector<2>& corner : Points{{20, 20}, {150, 16}, {60, 96}, {170, 92}})
        regions.emplace_back(new gkRegion(
            {corner, corner + gkVector<2>(46, 6), corner + gkVector<2>(40, 48), corner + gkVector<2>(4, 40)}));
    const gkRegionSet set(regions);
    for (const auto& region : regions) {
        figure.hatch(*region, kGiven);
        figure.draw(*region, kGiven);
    }
    const gkVector<2> place(112, 76);
    gkVector<2> nearest;
    for (const auto& region : regions) {
        const gkVector<2> point = region->closestPoint(place, false);
        if (region == regions.front() || point.distance(place) < nearest.distance(place)) nearest = point;
    }
    figure.dot(place, kGiven);
    figure.draw(gkLineSeg(place, nearest), kAnswer);
    figure.draw(set.encloseRect(gkXform<2>()), gkXform<2>(), kAnswer);
    figure.dot(set.centerOfMass(false), kAnswer);
    figure.say("distance " + oneDigit(set.distToPoint(place, false, false, true)) + ", box, centre of mass");
}

} // namespace

Pictures proximity() {
    return {{"closest_point", closestPoint},
            {"closest_vertex", closestVertex},
            {"distance", distance},
            {"vertex_index", vertexIndex},
            {"inside", inside},
            {"set_distance", setDistance}};
}
