#include "examples/demo/page.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMostEnlarged = 24;

} // namespace

const Key Page::edgePoint = {"edge points", gkColor(215, 0, 50), 4.0, false};
const Key Page::outline = {"outline", gkColor(255, 225, 60), 1.2, false};
const Key Page::hole = {"hole", gkColor(120, 255, 220), 1.2, false};
const Key Page::hull = {"convex hull", gkColor(64, 224, 255), 2.0, false};
const Key Page::ellipse = {"fitted ellipse", gkColor(255, 70, 200), 2.0, false};
const Key Page::momentsEllipse = {"ellipse of the moments", gkColor(150, 150, 255), 2.0, false};
const Key Page::farthestPair = {"farthest pair", gkColor(120, 255, 120), 2.0, false};
const Key Page::meanPosition = {"mean position", gkColor(255, 120, 60), 3.5, true};
const Key Page::centerOfMass = {"centre of mass", gkColor(40, 130, 255), 2.2, true};

Page::Page(long width, long height, double wantedSide) : width_(width) {
    const double side = static_cast<double>(std::max(width, height));
    scale_ = std::clamp(std::floor(wantedSide / side), 1.0, kMostEnlarged);
    pen_ = std::max(1.0 / scale_, side / wantedSide);
    layOutLegend(static_cast<double>(height));
}

// From left to right, in as many lines as it takes.
void Page::layOutLegend(double top) {
    const double gap = textHeight();
    gkVector<2> next(gap, top + 1.3 * gap);
    for (Key key :
         {edgePoint, outline, hole, hull, ellipse, momentsEllipse, farthestPair, meanPosition, centerOfMass}) {
        const double length = sampleLength() + 0.5 * gap + textWidth(key.text, textHeight());
        if (next.x() > gap && next.x() + length > static_cast<double>(width_))
            next = gkVector<2>(gap, next.y() + 1.6 * gap);
        key.position = next;
        keys_.push_back(key);
        next += gkVector<2>(length + gap, 0.0);
    }
    heightWithLegend_ = static_cast<long>(std::ceil(next.y() + 1.3 * gap));
}
