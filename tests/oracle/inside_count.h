// How often a ray from a point crosses a closed outline, and with it whether the point lies inside.
#ifndef GK_TESTS_ORACLE_INSIDE_COUNT_H
#define GK_TESTS_ORACLE_INSIDE_COUNT_H

#include "tests/oracle/circle.h"
#include "tests/oracle/crossings.h"

#include <algorithm>

namespace oracle {

// The middle of the first gap between neighbouring angles wider than pi / n; 0 degrees when there is none.
inline gkVector<2> rayDirection(std::vector<double> angles) {
    const double step = 3.141592653589793 / static_cast<double>(angles.size());
    std::sort(angles.begin(), angles.end());
    for (std::size_t i = 0; i < angles.size(); ++i) {
        const std::size_t j = i + 1 == angles.size() ? 0 : i + 1;
        const double gap = gkRadian(angles[j] - angles[i]).norm().toDouble();
        if (gap > step) return gkVector<2>(1.0, gkRadian(angles[i] + gap / 2.0));
    }
    return gkVector<2>(1.0, 0.0);
}

inline long insideCount(const Points& points, const gkVector<2>& point, bool bothWays) {
    if (!encloseRect(points, gkXform<2>()).within(point)) return 0;
    std::vector<double> angles;
    for (const gkVector<2>& vertex : points) {
        const gkVector<2> offset = vertex - point;
        if (!(offset.length() > 1e-6)) return 1;
        angles.push_back(offset.angle().norm().toDouble());
    }
    const double reach = 2.0 * circleAroundFirst(points).radius();
    const gkVector<2> ray = rayDirection(angles) * reach;
    const auto count = [&](const gkVector<2>& end) {
        return static_cast<long>(crossings(points, true, gkLineSeg(point, end), false).size());
    };
    const long ahead = count(point + ray);
    if (!bothWays) return ahead;
    const long behind = count(point - ray);
    return behind < ahead ? behind : ahead;
}

inline bool inside(const Points& points, const gkVector<2>& point) {
    return insideCount(points, point, false) % 2 == 1;
}

} // namespace oracle

#endif
