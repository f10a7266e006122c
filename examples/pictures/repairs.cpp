// Pictures of mapping, repair and merging, and of edge points.
#include "ch_core/cntrtmpl.h"
#include "groups.h"
#include "platform/display/recording_tablet.h"
#include "shapes.h"

namespace {

constexpr Figure::Role kGiven = Figure::eGiven;
constexpr Figure::Role kAnswer = Figure::eAnswer;

void map(Figure& figure) {
    const gkRegion given(bean());
    gkRegion mapped;
    given.map(gkXform<2>(gkMatrix<2>(gkRadian(0.6), gkRadian(0.6), 0.4, 0.4), {94, 16}), mapped);
    figure.draw(given, kGiven);
    figure.hatch(mapped, kAnswer);
    figure.draw(mapped, kAnswer);
    figure.say("map(xform, result)");
}

// The result over the given outline, with each vertex it visits.
void repaired(Figure& figure, const gkRegion& given, const gkRegion& result, const std::string& name) {
    figure.hatch(result, kAnswer);
    figure.draw(given, kGiven);
    figure.draw(result, kAnswer);
    figure.dots(result.points(), kAnswer);
    figure.say(name + ": " + std::to_string(result.points().size()) + " vertices");
}

void regularize(Figure& figure) {
    const gkRegion given(twice());
    gkRegion result;
    given.regularize(result);
    repaired(figure, given, result, "regularize");
}

void outerHull(Figure& figure) {
    const gkRegion given(twice());
    gkRegion result;
    given.outerHull(result);
    repaired(figure, given, result, "outerHull");
}

void merge(Figure& figure) {
    const gkPtrHandle_const<gkRegion> first(new gkRegion({{120, 20}, {120, 110}, {30, 110}, {30, 20}}));
    const gkPtrHandle_const<gkRegion> second(new gkRegion({{80, 140}, {210, 140}, {210, 60}, {80, 60}}));
    gkRegionSet merged;
    gkRegionSet({first, second}).outerHull(merged);
    for (const auto& region : merged.regions()) figure.hatch(*region, kAnswer);
    figure.draw(*first, kGiven);
    figure.draw(*second, kGiven);
    for (const auto& region : merged.regions()) figure.draw(*region, kAnswer);
    figure.say("outerHull of a set: 2 regions, then " + std::to_string(merged.regions().size()));
}

void edgelets(Figure& figure) {
    std::vector<gkEdgelet> data;
    for (int i = 0; i < 30; ++i) {
        const gkRadian direction(6.283185307179586 * i / 30);
        const gkVector<2> around(1.0, direction);
        data.emplace_back(gkVector<2>(12, 8.4) + gkVector<2>(8 * around.x(), 6 * around.y()), 9, direction);
    }
    const gkRegionT<gkEdgelet> given(data, 1);
    gkRecordingTablet strokes;
    given.draw(strokes, gkColor::black(), gkUITablet::eOverlayLayer);
    const double scale = 10.0; // so that strokes of length 1 are seen
    for (const auto& stroke : strokes.records()) {
        const std::vector<double>& at = stroke.numbers;
        figure.draw(gkLineSeg(gkVector<2>(at[0], at[1]) * scale, gkVector<2>(at[2], at[3]) * scale), kAnswer);
    }
    figure.say("gkRegionT: strokes along the edge");
}

} // namespace

Pictures repairs() {
    return {{"map", map},
            {"regularize", regularize},
            {"outer_hull", outerHull},
            {"set_merge", merge},
            {"edgelets", edgelets}};
}
