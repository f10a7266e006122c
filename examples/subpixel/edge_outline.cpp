#include "examples/subpixel/edge_outline.h"

#include "examples/subpixel/edge_point.h"

#include <algorithm>

namespace {

constexpr double kClearShare = 0.25;  // of the median magnitude
constexpr double kLeastAdvance = 0.3; // pixels

struct Found {
    gkEdgelet edge;
    gkVector<2> along; // unit vector in the outline's direction at its vertex
};

std::vector<Found> findEdges(const SmoothGradient& gradient, const std::vector<gkVector<2>>& outline,
                             double reach) {
    std::vector<Found> all;
    const std::size_t count = outline.size();
    for (std::size_t i = 0; i < count; ++i) {
        // Over four vertices the staircase of the pixels evens out.
        const gkVector<2> along = outline[(i + 2) % count] - outline[(i + count - 2) % count];
        const std::optional<gkEdgelet> edge = edgePointNear(gradient, outline[i], reach);
        if (edge && along.length() > 0.0) all.push_back({*edge, along.unit()});
    }
    return all;
}

template <class Unwanted> void leaveOut(std::vector<Found>& all, Unwanted unwanted) {
    all.erase(std::remove_if(all.begin(), all.end(), unwanted), all.end());
}

void leaveOutFaint(std::vector<Found>& all) {
    std::vector<unsigned short> magnitudes;
    for (const Found& found : all) magnitudes.push_back(found.edge.magnitude());
    const auto middle = magnitudes.begin() + static_cast<std::ptrdiff_t>(magnitudes.size() / 2);
    std::nth_element(magnitudes.begin(), middle, magnitudes.end());
    const double limit = kClearShare * *middle;
    leaveOut(all, [&](const Found& found) { return found.edge.magnitude() < limit; });
}

bool risesToTheLeft(const Found& found) {
    return found.along.cross(gkVector<2>(1.0, gkRadian(found.edge.angle()))) < 0.0;
}

void leaveOutReversed(std::vector<Found>& all) {
    const auto left = static_cast<std::size_t>(std::count_if(all.begin(), all.end(), risesToTheLeft));
    const bool mostly = 2 * left > all.size();
    leaveOut(all, [&](const Found& found) { return risesToTheLeft(found) != mostly; });
}

double advance(const gkEdgelet& from, const Found& to) {
    return (to.edge.position() - from.position()) * to.along;
}

std::vector<gkEdgelet> forwardOnly(const std::vector<Found>& all) {
    std::vector<gkEdgelet> edges;
    for (const Found& found : all)
        if (edges.empty() || advance(edges.back(), found) >= kLeastAdvance) edges.push_back(found.edge);
    while (edges.size() > 1 && advance(edges.back(), all.front()) < kLeastAdvance) edges.pop_back();
    return edges;
}

} // namespace

EdgeOutline edgeOutline(const SmoothGradient& gradient, const std::vector<gkVector<2>>& outline, double reach) {
    std::vector<Found> clear = findEdges(gradient, outline, reach);
    if (clear.empty()) return {{}, outline.size()};
    leaveOutFaint(clear);
    leaveOutReversed(clear);
    return {forwardOnly(clear), outline.size() - clear.size()};
}
