// Length, mean position and median segment length of an outline.
#ifndef GK_TESTS_ORACLE_LENGTH_H
#define GK_TESTS_ORACLE_LENGTH_H

#include "tests/oracle/oracle.h"

#include <algorithm>
#include <cmath>

namespace oracle {

inline double length(const Points& points, bool closed) {
    double sum = 0.0;
    for (const gkLineSeg& seg : segments(points, closed)) sum += seg.p1().distance(seg.p2());
    return sum;
}

inline gkVector<2> meanPosition(const Points& points, bool closed) {
    needsTwo(points);
    gkVector<2> sum(0.0, 0.0);
    double total = 0.0;
    for (const gkLineSeg& seg : segments(points, closed)) {
        const double weight = seg.p1().distance(seg.p2());
        total += weight;
        sum += ((seg.p1() + seg.p2()) / 2.0) * weight;
    }
    return sum / total;
}

// Element m / 2 of the m sorted lengths; lengths that are not numbers count as the longest.
inline double medianFeatureSize(const Points& points, bool closed) {
    needsTwo(points);
    std::vector<double> lengths;
    for (const gkLineSeg& seg : segments(points, closed)) lengths.push_back(seg.p1().distance(seg.p2()));
    const auto nan = std::partition(lengths.begin(), lengths.end(), [](double v) { return v == v; });
    std::sort(lengths.begin(), nan);
    return lengths[lengths.size() / 2];
}

} // namespace oracle

#endif
