#include "cntr/measures.h"

#include "cntr/extremes.h"
#include "cntr/index.h"
#include "cntr/segment_walk.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/xform_ops.h"
#include "platform/core/shapes/line_ops.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The vertices of a list, all of them or those of some ascending indices.
class All {
public:
    explicit All(const std::vector<gkVector<2>>& points) : points_(points) {}
    std::size_t size() const { return points_.size(); }
    std::size_t index(std::size_t i) const { return i; }
    const gkVector<2>& operator[](std::size_t i) const { return points_[i]; }

private:
    const std::vector<gkVector<2>>& points_;
};

class Some {
public:
    Some(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& indices)
        : points_(points), indices_(indices) {}
    std::size_t size() const { return indices_.size(); }
    std::size_t index(std::size_t i) const { return indices_[i]; }
    const gkVector<2>& operator[](std::size_t i) const { return points_[indices_[i]]; }

private:
    const std::vector<gkVector<2>>& points_;
    const std::vector<std::uint32_t>& indices_;
};

// Index of the first vertex with the greatest score above the most negative double; -1 when there is none.
template <class Vertices, class Score> long firstGreatest(const Vertices& vertices, Score score) {
    double best = std::numeric_limits<double>::lowest();
    long index = -1;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const double candidate = score(vertices[i]);
        if (candidate > best) {
            best = candidate;
            index = gk_IndexAs<long>(vertices.index(i));
        }
    }
    return index;
}

template <class Vertices> long extremalVertex(const Vertices& vertices, const gkRadian& angle) {
    const gk_Trig::SinCos unit = gk_Trig::sinCos(angle.toDouble());
    const gkVector<2> direction(unit.cos, unit.sin);
    const auto isAxis = [&](double x, double y) { return gfRealEq(direction, gkVector<2>(x, y), 1e-15); };
    // Axis directions compare the coordinate itself, free of the rounding of sine and cosine.
    if (isAxis(1.0, 0.0)) return firstGreatest(vertices, [](const gkVector<2>& v) { return v.x(); });
    if (isAxis(-1.0, 0.0)) return firstGreatest(vertices, [](const gkVector<2>& v) { return -v.x(); });
    if (isAxis(0.0, 1.0)) return firstGreatest(vertices, [](const gkVector<2>& v) { return v.y(); });
    if (isAxis(0.0, -1.0)) return firstGreatest(vertices, [](const gkVector<2>& v) { return -v.y(); });
    return firstGreatest(vertices, [&](const gkVector<2>& v) { return gk_VectorOps::dot(direction, v); });
}

// A side moves only strictly further out, as gkRect::enclose says.
template <class Vertices, class Mapped> gkRect boxOf(const Vertices& vertices, Mapped mapped) {
    const gk_Extremes extremes(vertices.size(), [&](std::size_t i) { return mapped(gk_TwoOf(vertices[i])); });
    return gkRect::fromCorners(extremes.low(), extremes.high());
}

template <class Vertices> gkRect encloseRect(const Vertices& vertices, const gkXform<2>& xform) {
    // The identity takes the vertices as they are, and so does a transform within 1e-15 of it.
    if (gfRealEq(xform, gkXform<2>(), 1e-15)) return boxOf(vertices, [](gk_TwoDoubles p) { return p; });
    const gk_XformOps map(xform);
    return boxOf(vertices, [&](gk_TwoDoubles p) { return map.image(p); });
}

// Products with coordinates neither overflow nor underflow, and the sum of two has a direction.
bool isModerateRow(const gkMatrix<2>& matrix, int row) {
    const double size = std::fabs(matrix.element(row, 0)) + std::fabs(matrix.element(row, 1));
    return size >= 1e-100 && size <= 1e100;
}

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

// The root is monotone also as it rounds, so the greatest square has the greatest root.
gkCircle gk_CircleAroundFirst(const std::vector<gkVector<2>>& points) {
    const gk_TwoDoubles center = gk_TwoOf(points.front());
    const auto squares = [&](std::size_t i) {
        const gk_TwoVectors offsets =
            gk_TwoVectors::of(gk_TwoOf(points[i]) - center, gk_TwoOf(points[i + 1]) - center);
        return offsets.dot(offsets);
    };
    gk_TwoDoubles even;
    gk_TwoDoubles odd;
    std::size_t i = 0;
    for (; i + 4 <= points.size(); i += 4) {
        even = squares(i).orGreater(even);
        odd = squares(i + 2).orGreater(odd);
    }
    even = even.orGreater(odd);
    double square = std::max(even.first(), even.second());
    for (; i < points.size(); ++i) {
        const gkVector<2> offset = points[i] - points.front();
        square = std::max(square, gk_VectorOps::dot(offset, offset));
    }
    return gkCircle(points.front(), std::sqrt(square));
}

long gk_ExtremalVertex(const std::vector<gkVector<2>>& points, const gkRadian& angle) {
    return extremalVertex(All(points), angle);
}

long gk_ExtremalVertex(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& outer,
                       const gkRadian& angle) {
    if (!std::isfinite(angle.toDouble())) return gk_ExtremalVertex(points, angle);
    return extremalVertex(Some(points, outer), angle);
}

gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const gkXform<2>& xform) {
    return encloseRect(All(points), xform);
}

// Adding the translation is monotone also as it rounds, so the vertices that are farthest out before stay so.
gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const std::vector<std::uint32_t>& outer,
                      const gkXform<2>& xform) {
    const bool isModerate = isModerateRow(xform.matrix(), 0) && isModerateRow(xform.matrix(), 1);
    return isModerate ? encloseRect(Some(points, outer), xform) : gk_EncloseRect(points, xform);
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
