#include "cntr/measures.h"

#include "cntr/index.h"
#include "cntr/segment_walk.h"
#include "platform/core/math/trig.h"
#include "platform/core/shapes/line_ops.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Index of the first vertex with the greatest score above the most negative double; -1 when there is none.
template <class Score> long firstGreatest(const std::vector<gkVector<2>>& points, Score score) {
    double best = std::numeric_limits<double>::lowest();
    long index = -1;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double candidate = score(points[i]);
        if (candidate > best) {
            best = candidate;
            index = gk_IndexAs<long>(i);
        }
    }
    return index;
}

gkRect pointBox(const gkVector<2>& point) { return gkRect(point, gkVector<2>()); }

} // namespace

double gk_Length(const std::vector<gkVector<2>>& points, bool closed) {
    double length = 0.0;
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        length += gk_VectorOps::distance(previous, current);
    });
    return length;
}

gkVector<2> gk_MeanPosition(const std::vector<gkVector<2>>& points, bool closed) {
    gkVector<2> sum;
    double total = 0.0;
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        const double length = gk_VectorOps::distance(previous, current);
        total += length;
        sum += (previous + current) / 2.0 * length;
    });
    return sum / total;
}

void gk_CircleOverFarthestPair(const std::vector<gkVector<2>>& points, gkCircle& circle) {
    double best = 0.0;
    for (const gkVector<2>& a : points) {
        for (const gkVector<2>& b : points) {
            const double distance = gk_VectorOps::distance(b, a);
            if (distance > best) {
                best = distance;
                circle = gkCircle((a + b) / 2.0, distance / 2.0);
            }
        }
    }
}

gkCircle gk_CircleAroundFirst(const std::vector<gkVector<2>>& points) {
    double radius = 0.0;
    for (const gkVector<2>& point : points) {
        const double distance = gk_VectorOps::distance(points.front(), point);
        if (distance > radius) radius = distance;
    }
    return gkCircle(points.front(), radius);
}

long gk_ExtremalVertex(const std::vector<gkVector<2>>& points, const gkRadian& angle) {
    const gk_Trig::SinCos unit = gk_Trig::sinCos(angle.toDouble());
    const gkVector<2> direction(unit.cos, unit.sin);
    const auto isAxis = [&](double x, double y) { return gfRealEq(direction, gkVector<2>(x, y), 1e-15); };
    // Axis directions compare the coordinate itself, free of the rounding of sine and cosine.
    if (isAxis(1.0, 0.0)) return firstGreatest(points, [](const gkVector<2>& v) { return v.x(); });
    if (isAxis(-1.0, 0.0)) return firstGreatest(points, [](const gkVector<2>& v) { return -v.x(); });
    if (isAxis(0.0, 1.0)) return firstGreatest(points, [](const gkVector<2>& v) { return v.y(); });
    if (isAxis(0.0, -1.0)) return firstGreatest(points, [](const gkVector<2>& v) { return -v.y(); });
    return firstGreatest(points, [&](const gkVector<2>& v) { return gk_VectorOps::dot(direction, v); });
}

gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const gkXform<2>& xform) {
    // The identity takes the vertices as they are, and so does a transform within 1e-15 of it.
    const bool identity = gfRealEq(xform, gkXform<2>(), 1e-15);
    const auto mapped = [&](const gkVector<2>& point) { return identity ? point : xform * point; };
    gkRect rect = pointBox(mapped(points.front()));
    for (const gkVector<2>& point : points) rect = rect.enclose(pointBox(mapped(point)));
    return rect;
}

double gk_MedianSegmentLength(const std::vector<gkVector<2>>& points, bool closed) {
    std::vector<double> lengths;
    lengths.reserve(gk_SegmentCount(points, closed));
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        lengths.push_back(gk_VectorOps::distance(previous, current));
    });
    const auto middle = lengths.begin() + static_cast<std::ptrdiff_t>(lengths.size() / 2);
    // NaN lengths go last: a plain comparison would be no ordering at all with them.
    std::nth_element(lengths.begin(), middle, lengths.end(),
                     [](double a, double b) { return a < b || (!std::isnan(a) && std::isnan(b)); });
    return *middle;
}

std::size_t gk_ClosestVertex(const std::vector<gkVector<2>>& points, const gkVector<2>& p) {
    double best = kInfinity;
    std::size_t index = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double distance = gk_VectorOps::distance(points[i], p);
        if (distance < best) {
            best = distance;
            index = i;
        }
    }
    return index;
}

gkVector<2> gk_ClosestPoint(const std::vector<gkVector<2>>& points, bool closed, const gkVector<2>& p) {
    gkVector<2> best;
    double bestDistance = kInfinity;
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        const gkLineSeg segment(previous, current);
        const double distance = gk_LineOps::distToPoint(segment, p);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = gk_LineOps::closestPoint(segment, p);
        }
    });
    return best;
}
