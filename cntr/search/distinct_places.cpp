#include "cntr/search/distinct_places.h"

#include <algorithm>
#include <cmath>

std::vector<std::size_t> gk_DistinctPlaces(const std::vector<gkVector<2>>& points) {
    std::vector<std::size_t> indices;
    indices.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        if (!std::isnan(points[i].x()) && !std::isnan(points[i].y())) indices.push_back(i);
    std::sort(indices.begin(), indices.end(), [&](std::size_t a, std::size_t b) {
        if (points[a].x() != points[b].x()) return points[a].x() < points[b].x();
        if (points[a].y() != points[b].y()) return points[a].y() < points[b].y();
        return a < b;
    });
    const auto isSamePlace = [&](std::size_t a, std::size_t b) { return points[a] == points[b]; };
    indices.erase(std::unique(indices.begin(), indices.end(), isSamePlace), indices.end());
    std::sort(indices.begin(), indices.end());
    return indices;
}

std::vector<gkVector<2>> gk_VerticesAt(const std::vector<gkVector<2>>& points,
                                       const std::vector<std::size_t>& indices) {
    std::vector<gkVector<2>> vertices;
    vertices.reserve(indices.size());
    for (const std::size_t index : indices) vertices.push_back(points[index]);
    return vertices;
}
