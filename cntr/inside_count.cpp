#include "cntr/inside_count.h"

#include "platform/core/math/vector_ops.h"

#include <algorithm>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kOnVertex = 1e-6; // vertex units

// Fills the normalised directions of the vertices seen from the point; false when one of them is too near.
bool directionsFrom(const gkVector<2>& point, const std::vector<gkVector<2>>& vertices,
                    std::vector<double>& angles) {
    angles.reserve(vertices.size());
    for (const gkVector<2>& vertex : vertices) {
        const gkVector<2> offset = vertex - point;
        if (!(gk_VectorOps::length(offset) > kOnVertex)) return false;
        angles.push_back(offset.angle().norm().toDouble());
    }
    return true;
}

gkVector<2> directionThroughFirstWideGap(std::vector<double>& angles) {
    const double step = kPi / static_cast<double>(angles.size());
    std::sort(angles.begin(), angles.end());
    for (std::size_t i = 0; i < angles.size(); ++i) {
        const double next = angles[i + 1 < angles.size() ? i + 1 : 0];
        const double gap = gkRadian(next - angles[i]).norm().toDouble();
        if (gap > step) return gkVector<2>(1.0, gkRadian(angles[i] + gap / 2.0));
    }
    return gkVector<2>(1.0, 0.0);
}

} // namespace

long gk_InsideCount(const std::vector<gkVector<2>>& points, const gkVector<2>& point, double rayLength,
                    bool bothWays, const gk_CountTowards& countTowards) {
    std::vector<double> angles;
    if (!directionsFrom(point, points, angles)) return 1;
    const gkVector<2> ray = directionThroughFirstWideGap(angles) * rayLength;
    const long count = countTowards(point + ray);
    return bothWays ? std::min(count, countTowards(point - ray)) : count;
}
