#include "examples/subpixel/edge_point.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kStep = 0.5; // pixels between samples
constexpr int kRounds = 3;    // the third moves a point by less than a thousandth of a pixel

// How steeply brightness rises along the unit vector `across`; negative where it falls.
double steepness(const SmoothGradient& gradient, const gkVector<2>& position, const gkVector<2>& across) {
    return gradient.at(position) * across;
}

gkVector<2> steepestSample(const SmoothGradient& gradient, const gkVector<2>& start, const gkVector<2>& across,
                           double reach) {
    const int steps = static_cast<int>(std::ceil(reach / kStep));
    gkVector<2> steepest = start;
    double most = -std::numeric_limits<double>::infinity();
    for (int i = -steps; i <= steps; ++i) {
        const gkVector<2> position = start + i * kStep * across;
        const double value = steepness(gradient, position, across);
        if (value <= most) continue;
        most = value;
        steepest = position;
    }
    return steepest;
}

// How far the top of the parabola through three samples is from the middle one; at most one step, since beyond
// its samples a parabola tells nothing.
std::optional<double> wayToTop(double before, double here, double after) {
    const double bend = before - 2.0 * here + after;
    if (!(bend < 0.0)) return std::nullopt;
    return std::clamp(0.5 * kStep * (before - after) / bend, -kStep, kStep);
}

} // namespace

std::optional<gkEdgelet> edgePointNear(const SmoothGradient& gradient, const gkVector<2>& start, double reach) {
    gkVector<2> slope = gradient.at(start);
    if (slope.length() == 0.0) return std::nullopt;
    gkVector<2> position = steepestSample(gradient, start, slope.unit(), reach);
    for (int round = 0; round < kRounds; ++round) {
        slope = gradient.at(position);
        const gkVector<2> across = slope.unit();
        const std::optional<double> way =
            wayToTop(steepness(gradient, position - kStep * across, across), slope.length(),
                     steepness(gradient, position + kStep * across, across));
        if (!way) return std::nullopt; // also where the slope is zero and the direction not a number
        position += *way * across;
    }
    if (!(position.distance(start) < reach)) return std::nullopt;
    slope = gradient.at(position);
    const double magnitude = std::min(std::round(slope.length() / kMagnitudeUnit), 65535.0);
    return gkEdgelet(position, static_cast<unsigned short>(magnitude), slope.angle());
}
