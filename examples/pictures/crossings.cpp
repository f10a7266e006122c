// Pictures of crossings with a segment, with another outline and with itself.
#include "groups.h"
#include "shapes.h"

namespace {

constexpr Figure::Role kGiven = Figure::eGiven;
constexpr Figure::Role kAnswer = Figure::eAnswer;

void segmentNumbers(Figure& figure) {
    const gkContour given({{40, 130}, {60, 30}, {150, 24}, {204, 84}, {130, 138}}, true, 1);
    const Points& points = given.points();
    figure.draw(given, kGiven);
    for (std::size_t k = 0; k < points.size(); ++k) {
        const gkVector<2> from = points[(k + points.size() - 1) % points.size()];
        figure.say((from + points[k]) / 2.0 + gkVector<2>(4, -4), std::to_string(k), kAnswer);
        figure.dot(points[k], kGiven);
    }
    figure.draw(gkLineSeg(points.back(), points.front()), kAnswer);
    figure.say("segment k ends at vertex k, 0 closes");
}

void withSegment(Figure& figure) {
    const gkRegion given(bean());
    const gkLineSeg segment({16, 30}, {226, 28});
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(segment, kGiven);
    const Points crossings = given.intersections(segment, true);
    figure.dots(crossings, kAnswer);
    for (std::size_t i = 0; i < crossings.size(); ++i)
        figure.say(crossings[i] + gkVector<2>(-3, -8), std::to_string(i), kAnswer);
    figure.say("intersections(segment, true)");
}

void withContour(Figure& figure) {
    const gkRegion given(bean());
    const gkContour other({{20, 146}, {66, 10}, {112, 136}, {142, 12}, {186, 150}, {226, 60}}, false, 1);
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    figure.draw(other, kGiven);
    const Points crossings = given.intersections(other);
    figure.dots(crossings, kAnswer);
    figure.say("intersections(other): " + std::to_string(crossings.size()));
}

void withItself(Figure& figure) {
    const gkRegion given(eight());
    figure.hatch(given, kGiven);
    figure.draw(given, kGiven);
    for (std::size_t k = 0; k < 4; ++k) {
        const gkLineSeg edge(given.points()[(k + 3) % 4], given.points()[k]);
        figure.dots(given.intersections(edge, false), kAnswer);
    }
    figure.say(std::string("isSelfIntersecting() = ") + (given.isSelfIntersecting() ? "true" : "false"));
}

} // namespace

Pictures crossings() {
    return {{"segment_numbers", segmentNumbers},
            {"crossings_segment", withSegment},
            {"crossings_contour", withContour},
            {"crosses_itself", withItself}};
}
