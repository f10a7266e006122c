#include "examples/accuracy/axes.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr gkColor kInk(40, 40, 40);
constexpr gkColor kGrid(225, 225, 225);
constexpr double kText = 14;

double share(double value, const Range& range) {
    return std::log(value / range.from) / std::log(range.to / range.from);
}

// Hundredths of a pixel, so that the last bits of logarithms do not show in the file.
double rounded(double value) { return std::floor(100.0 * value + 0.5) / 100.0; }

std::string shortest(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

// A guess, since the viewer chooses the typeface.
double widthOf(const std::string& text) { return 0.54 * kText * static_cast<double>(text.size()); }

} // namespace

Axes::Axes(gkSvgTablet& tablet, const gkVector<2>& corner, const Range& x, const Range& y)
    : tablet_(tablet), corner_(corner), x_(x), y_(y) {}

void Axes::frame(const std::string& title, const std::string& nameOfX, const std::vector<double>& ticksOfX,
                 const std::vector<double>& ticksOfY) {
    for (double tick : ticksOfX) {
        line({tick, y_.from}, {tick, y_.to}, kGrid, 1.0);
        const gkPair<double> foot = place({tick, y_.from});
        const std::string text = shortest(tick);
        tablet_.drawText({foot.x() - 0.5 * widthOf(text), foot.y() + 1.4 * kText}, text, kText, kInk,
                         gkUITablet::eLabelLayer);
    }
    for (double tick : ticksOfY) {
        line({x_.from, tick}, {x_.to, tick}, kGrid, 1.0);
        const gkPair<double> foot = place({x_.from, tick});
        const std::string text = shortest(tick);
        tablet_.drawText({foot.x() - widthOf(text) - 0.6 * kText, foot.y() + 0.35 * kText}, text, kText, kInk,
                         gkUITablet::eLabelLayer);
    }
    line({x_.from, y_.from}, {x_.to, y_.from}, kInk, 1.5);
    line({x_.from, y_.from}, {x_.from, y_.to}, kInk, 1.5);
    tablet_.drawText({corner_.x(), corner_.y() - kHeight - 1.2 * kText}, title, 1.1 * kText, kInk,
                     gkUITablet::eLabelLayer);
    tablet_.drawText({corner_.x() + 0.5 * (kWidth - widthOf(nameOfX)), corner_.y() + 3.0 * kText}, nameOfX,
                     kText, kInk, gkUITablet::eLabelLayer);
}

void Axes::curve(const std::vector<gkVector<2>>& values, const gkColor& color) {
    for (std::size_t i = 1; i < values.size(); ++i) line(values[i - 1], values[i], color, 1.5);
}

void Axes::dots(const std::vector<gkVector<2>>& values, const gkColor& color) {
    tablet_.strokeWidth(3.0); // a point is three of them across
    for (const gkVector<2>& value : values) tablet_.drawPoint(place(value), color, gkUITablet::eOverlayLayer);
}

void Axes::name(const std::string& text, double value, const gkColor& color) {
    const gkPair<double> end = place({x_.to, value});
    tablet_.drawText({end.x() + 0.6 * kText, end.y() + 0.35 * kText}, text, kText, color,
                     gkUITablet::eLabelLayer);
}

// What is below the frame lies on its lower edge.
gkPair<double> Axes::place(const gkVector<2>& value) const {
    return {rounded(corner_.x() + kWidth * share(value.x(), x_)),
            rounded(corner_.y() - kHeight * std::max(0.0, share(std::max(value.y(), y_.from), y_)))};
}

void Axes::line(const gkVector<2>& from, const gkVector<2>& to, const gkColor& color, double width) {
    tablet_.strokeWidth(width);
    tablet_.drawLineSeg(place(from), place(to), color, gkUITablet::eOverlayLayer);
}
