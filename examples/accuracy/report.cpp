#include "examples/accuracy/report.h"

#include "examples/accuracy/expected.h"

#include <cstdio>

namespace {

template <class... Values> std::string line(const char* format, Values... values) {
    char text[200];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

std::string lineOf(const Cell& cell) {
    const double curvature = 2.0 * curvatureBias(cell.radius);
    const double chords = chordBias(cell.radius, cell.chordSquare);
    const double spread = diameterSpread(cell.radius, cell.noise);
    return line("%6.0f %5.0f   %7.4f %7.4f %6.4f %6.4f   %7.4f %7.4f %6.4f   %7.4f %6.4f   %8.3f %7.3f\n",
                cell.radius, cell.noise, cell.fitted.bias, curvature, cell.fitted.spread, spread,
                cell.fromArea.bias, curvature + chords, cell.fromArea.spread, cell.farthest.bias,
                cell.farthest.spread, cell.area.bias, cell.area.spread);
}

} // namespace

std::string reportOf(const std::vector<Cell>& cells) {
    std::string text =
        "               diameter of fitted ellipse      diameter from area       farthest pair          area\n"
        "radius noise      bias expect spread expect      bias  expect spread      bias spread       bias "
        "spread\n"
        "    px grey         px     px     px     px        px      px     px        px     px       px^2   "
        "px^2\n";
    for (const Cell& cell : cells) text += lineOf(cell);
    return text;
}
