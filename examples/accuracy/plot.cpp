#include "examples/accuracy/plot.h"

#include "examples/accuracy/axes.h"
#include "examples/accuracy/expected.h"

#include <string>

namespace {

constexpr gkColor kFitted(200, 30, 120);
constexpr gkColor kFromArea(20, 110, 200);
constexpr gkColor kNoiseColors[] = {gkColor(60, 60, 60), gkColor(20, 140, 70), gkColor(220, 120, 0),
                                    gkColor(200, 30, 40)};
constexpr Range kRadii = {2.5, 120};

using Points = std::vector<gkVector<2>>;

std::vector<double> radiiOfCurve() {
    std::vector<double> radii;
    for (double radius = 3.0; radius <= 100.0; radius *= 1.15) radii.push_back(radius);
    radii.push_back(100.0);
    return radii;
}

void plotBias(gkSvgTablet& tablet, const std::vector<Cell>& cells) {
    Points fitted, fromArea, expectedFitted, expectedFromArea;
    double chordSquare = 0.0;
    for (const Cell& cell : cells) {
        if (cell.noise > 0.0) continue;
        fitted.emplace_back(cell.radius, -cell.fitted.bias);
        fromArea.emplace_back(cell.radius, -cell.fromArea.bias);
        chordSquare = cell.chordSquare; // the largest disc's; it hardly depends on the radius
    }
    for (double radius : radiiOfCurve()) {
        expectedFitted.emplace_back(radius, -2.0 * curvatureBias(radius));
        expectedFromArea.emplace_back(radius, -2.0 * curvatureBias(radius) - chordBias(radius, chordSquare));
    }
    Axes axes(tablet, {70, 375}, kRadii, {0.01, 1.0});
    axes.frame("Diameter too small by (pixels), without noise", "radius (pixels)", {3, 5, 10, 20, 50, 100},
               {0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1.0});
    axes.curve(expectedFitted, kFitted.withAlpha(150));
    axes.curve(expectedFromArea, kFromArea.withAlpha(150));
    axes.dots(fitted, kFitted);
    axes.dots(fromArea, kFromArea);
    axes.name("fitted ellipse", expectedFitted.back().y() * 0.93, kFitted);
    axes.name("from area", expectedFromArea.back().y() * 1.07, kFromArea);
}

void plotSpread(gkSvgTablet& tablet, const std::vector<Cell>& cells) {
    Axes axes(tablet, {640, 375}, kRadii, {0.0002, 0.2});
    axes.frame("Spread of the fitted diameter (pixels, one standard deviation)", "radius (pixels)",
               {3, 5, 10, 20, 50, 100}, {0.0002, 0.0005, 0.001, 0.002, 0.005, 0.01, 0.02, 0.05, 0.1, 0.2});
    std::size_t series = 0;
    for (std::size_t i = 0; i < cells.size() && cells[i].radius == cells[0].radius; ++i, ++series) {
        const double noise = cells[i].noise;
        const gkColor& color = kNoiseColors[series % 4];
        Points measured, expected;
        for (const Cell& cell : cells)
            if (cell.noise == noise) measured.emplace_back(cell.radius, cell.fitted.spread);
        for (double radius : radiiOfCurve()) expected.emplace_back(radius, diameterSpread(radius, noise));
        axes.curve(expected, color.withAlpha(150));
        axes.dots(measured, color);
        axes.name("noise " + std::to_string(static_cast<int>(noise)), expected.back().y(), color);
    }
}

} // namespace

void savePlot(const std::filesystem::path& file, const std::vector<Cell>& cells) {
    gkSvgTablet tablet(1140, 435);
    tablet.background(gkColor::white());
    plotBias(tablet, cells);
    plotSpread(tablet, cells);
    tablet.save(file);
}
