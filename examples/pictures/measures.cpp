// Pictures of lengths, areas, centres, ellipses, hulls, circles and boxes.
#include "cntr/moments.h"
#include "groups.h"
#include "shapes.h"

namespace {

constexpr Figure::Role kGiven = Figure::eGiven;
constexpr Figure::Role kAnswer = Figure::eAnswer;

void length(Figure& figure) {
    const gkContour given(path(), false, 1);
    figure.draw(given, kAnswer);
    figure.dots(given.points(), kGiven);
    figure.say("length() = " + oneDigit(given.length()));
}

void meanPosition(Figure& figure) {
    const gkContour given(path(), false, 1);
    figure.draw(given, kGiven);
    figure.dot(given.meanPosition(), kAnswer);
    figure.say("meanPosition(), of the line");
}

void area(Figure& figure) {
    const gkRegion given(bean());
    figure.hatch(given, kAnswer);
    figure.draw(given, kGiven);
    figure.say("area(false) = " + oneDigit(given.area(false)));
}

void areaWithHoles(Figure& figure) {
    const gkRegion given = holed();
    figure.hatch(given, kAnswer);
    figure.draw(given, kGiven);
    figure.draw(*given.holes()[0], kGiven);
    figure.say("area(true) = " + oneDigit(given.area(true)));
}

void centerOfMass(Figure& figure) {
    const gkRegion given = holed();
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(*given.holes()[0], kGiven);
    const gkVector<2> whole = given.centerOfMass(false);
    const gkVector<2> rest = given.centerOfMass(true);
    figure.dot(whole, kGiven);
    figure.say(whole + gkVector<2>(-6, 18), "false", kGiven);
    figure.dot(rest, kAnswer);
    figure.say(rest + gkVector<2>(-34, 4), "true", kAnswer);
    figure.say("centerOfMass(considerHoles)");
}

void momentsEllipse(Figure& figure) {
    const gkRegion given(bean());
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(gf_EllipseFromInertiaData(gf_InertiaDataPolygon(given.points())), kAnswer);
    figure.say("ellipse of equal moments");
}

void fitEllipse(Figure& figure) {
    // On an ellipse, moved off it by a few pixels this way and that.
    const double off[] = {3, -4, 1, 5, -2, -3, 4, 0, -5, 2, 3, -1};
    Points points;
    for (int i = 0; i < 12; ++i) {
        const gkVector<2> around(1.0, gkRadian(6.283185307179586 * i / 12));
        points.push_back(gkVector<2>(120, 82) + gkVector<2>(80 * around.x(), 50 * around.y()) +
                         off[i] * around);
    }
    const gkContour given(points, true, 1);
    gkEllipse ellipse;
    double error = 0.0;
    given.fitEllipse(ellipse, error);
    figure.dots(points, kGiven);
    figure.draw(ellipse, kAnswer);
    figure.say("fitEllipse: error " + oneDigit(error));
}

void convexHull(Figure& figure) {
    const gkRegion given(bean());
    gkRegion hull;
    given.convexHull(hull);
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(hull, kAnswer);
    figure.dots(hull.points(), kAnswer);
    figure.say("convexHull: " + std::to_string(hull.points().size()) + " of " +
               std::to_string(given.points().size()) + " vertices");
}

void exactDiameter(Figure& figure) {
    const gkRegion given(Points{{70, 66}, {170, 66}, {126, 146}});
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(given.encloseCircle(gkContourDefs::eExact), kAnswer);
    figure.draw(gkLineSeg(given.points()[0], given.points()[1]), kAnswer);
    figure.dots({given.points()[0], given.points()[1]}, kAnswer);
    figure.say("encloseCircle(eExact): one is outside");
}

void approximateDiameter(Figure& figure) {
    const gkRegion given(Points{{120, 84}, {180, 60}, {136, 142}});
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(given.encloseCircle(gkContourDefs::eApproximate), kAnswer);
    figure.dot(given.points()[0], kAnswer);
    figure.say("encloseCircle(eApproximate)");
}

void extremalVertex(Figure& figure) {
    const gkRegion given(bean());
    const gkRadian direction(0.7);
    const gkVector<2> middle = given.centerOfMass(false);
    const gkVector<2> tip = middle + gkVector<2>(50.0, direction);
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(gkLineSeg(middle, tip), kGiven);
    figure.draw(gkLineSeg(tip, tip + gkVector<2>(10.0, gkRadian(0.7 + 2.7))), kGiven);
    figure.draw(gkLineSeg(tip, tip + gkVector<2>(10.0, gkRadian(0.7 - 2.7))), kGiven);
    figure.dot(given.extremalVertexPosition(direction), kAnswer);
    figure.say("extremalVertexIndex(0.7) = " + std::to_string(given.extremalVertexIndex(direction)));
}

void encloseRect(Figure& figure) {
    const gkRegion given(bean());
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(given.encloseRect(gkXform<2>()), gkXform<2>(), kAnswer);
    figure.say("encloseRect(identity)");
}

void encloseRectTurned(Figure& figure) {
    gkRegion given;
    const gkVector<2> middle(120, 82);
    gkRegion(bean()).map(gkXform<2>(gkMatrix<2>(0.62, 0, 0, 0.8), middle - gkVector<2>(74, 64)), given);
    const gkXform<2> turn(gkMatrix<2>(gkRadian(0.4), gkRadian(0.4), 1, 1), {0, 0});
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(given.encloseRect(turn), turn, kAnswer);
    figure.say("encloseRect(turn), turned back");
}

} // namespace

Pictures measures() {
    return {{"length", length},
            {"mean_position", meanPosition},
            {"area", area},
            {"area_with_holes", areaWithHoles},
            {"center_of_mass", centerOfMass},
            {"moments_ellipse", momentsEllipse},
            {"fit_ellipse", fitEllipse},
            {"convex_hull", convexHull},
            {"diameter_exact", exactDiameter},
            {"diameter_approximate", approximateDiameter},
            {"extremal_vertex", extremalVertex},
            {"enclose_rect", encloseRect},
            {"enclose_rect_turned", encloseRectTurned}};
}
