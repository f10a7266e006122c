#include "cntr/measures.h"

#include "cntr/extremes.h"
#include "cntr/index.h"
#include "cntr/search/magnitude.h"
#include "cntr/search/vertex_runs.h"
#include "cntr/segment_walk.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/math/xform_ops.h"
#include "platform/core/shapes/line_ops.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The coordinate itself along one of the axes, or against it.
class AlongAxis {
public:
    AlongAxis(bool isX, double sign) : isX_(isX), sign_(sign) {}
    double operator()(const gkVector<2>& v) const { return sign_ * (isX_ ? v.x() : v.y()); }
    gkVector<2> corner(const gk_Box& box) const {
        return sign_ > 0.0 ? gkVector<2>(box.x1, box.y1) : gkVector<2>(box.x0, box.y0);
    }

private:
    bool isX_;
    double sign_;
};

gkVector<2> cornerTowards(const gk_Box& box, double x, double y) {
    return gkVector<2>(x < 0.0 ? box.x0 : box.x1, y < 0.0 ? box.y0 : box.y1);
}

class AlongDirection {
public:
    explicit AlongDirection(const gkVector<2>& direction) : direction_(direction) {}
    double operator()(const gkVector<2>& v) const { return gk_VectorOps::dot(direction_, v); }
    gkVector<2> corner(const gk_Box& box) const { return cornerTowards(box, direction_.x(), direction_.y()); }

private:
    gkVector<2> direction_;
};

// A coordinate of the image, or what it lacks. Adding the translation is monotone also as it rounds.
class OfImage {
public:
    OfImage(const gkXform<2>& xform, int row, double sign)
        : x_(xform.matrix().element(row, 0)), y_(xform.matrix().element(row, 1)),
          shift_(row == 0 ? xform.translation().x() : xform.translation().y()), sign_(sign) {}
    double operator()(const gkVector<2>& v) const { return sign_ * (x_ * v.x() + y_ * v.y() + shift_); }
    gkVector<2> corner(const gk_Box& box) const { return cornerTowards(box, sign_ * x_, sign_ * y_); }

private:
    double x_;
    double y_;
    double shift_;
    double sign_;
};

// firstGreatest(score) is the index of the first vertex with the greatest score above the most negative double,
// -1 when there is none.
template <class FirstGreatest> long extremalVertex(const gkRadian& angle, FirstGreatest firstGreatest) {
    const gk_Trig::SinCos unit = gk_Trig::sinCos(angle.toDouble());
    const gkVector<2> direction(unit.cos, unit.sin);
    const auto isAxis = [&](double x, double y) { return gfRealEq(direction, gkVector<2>(x, y), 1e-15); };
    // Axis directions compare the coordinate itself, free of the rounding of sine and cosine.
    for (const double sign : {1.0, -1.0}) {
        if (isAxis(sign, 0.0)) return firstGreatest(AlongAxis(true, sign));
        if (isAxis(0.0, sign)) return firstGreatest(AlongAxis(false, sign));
    }
    return firstGreatest(AlongDirection(direction));
}

// A side moves only strictly further out, as gkRect::enclose says.
template <class Mapped> gkRect boxOf(const std::vector<gkVector<2>>& points, Mapped mapped) {
    const gk_Extremes extremes(points.size(), [&](std::size_t i) { return mapped(gk_TwoOf(points[i])); });
    return gkRect::fromCorners(extremes.low(), extremes.high());
}

gk_TwoDoubles distances(const gk_TwoVectors& a, const gk_TwoVectors& b) {
    const gk_TwoVectors offsets = b - a;
    return offsets.dot(offsets).root();
}

} // namespace

bool gk_IsIdentity(const gkXform<2>& xform) {
    return xform == gkXform<2>() || gfRealEq(xform, gkXform<2>(), 1e-15);
}

double gk_Length(const std::vector<gkVector<2>>& points, bool closed) {
    double length = 0.0;
    gk_WalkTwoByTwo(points, closed,
                    [&](const gk_TwoVectors& previous, const gk_TwoVectors& current, bool areTwo) {
                        const gk_TwoDoubles lengths = distances(previous, current);
                        length += lengths.first();
                        if (areTwo) length += lengths.second();
                    });
    return length;
}

gkVector<2> gk_MeanPosition(const std::vector<gkVector<2>>& points, bool closed) {
    gk_TwoDoubles sum;
    double total = 0.0;
    gk_WalkTwoByTwo(points, closed,
                    [&](const gk_TwoVectors& previous, const gk_TwoVectors& current, bool areTwo) {
                        const gk_TwoDoubles lengths = distances(previous, current);
                        const gk_TwoVectors moments = (previous + current) * gk_TwoDoubles(0.5) * lengths;
                        total += lengths.first();
                        sum = sum + gk_TwoDoubles::firsts(moments.x, moments.y);
                        if (!areTwo) return;
                        total += lengths.second();
                        sum = sum + gk_TwoDoubles::seconds(moments.x, moments.y);
                    });
    return gk_VectorOf(sum) / total;
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
    return extremalVertex(angle, [&](const auto& score) {
        double best = std::numeric_limits<double>::lowest();
        long index = -1;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const double candidate = score(points[i]);
            if (!(candidate > best)) continue;
            best = candidate;
            index = gk_IndexAs<long>(i);
        }
        return index;
    });
}

long gk_ExtremalVertex(const std::vector<gkVector<2>>& points, const gk_VertexRuns& runs,
                       const gkRadian& angle) {
    gk_IndexAs<long>(points.size() - 1);
    return extremalVertex(angle, [&](const auto& score) { return runs.firstGreatest(points, score); });
}

gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const gkXform<2>& xform) {
    if (gk_IsIdentity(xform)) return boxOf(points, [](gk_TwoDoubles p) { return p; });
    const gkMatrix<2>& m = xform.matrix();
    const gk_TwoDoubles column0(m.element(0, 0), m.element(1, 0));
    const gk_TwoDoubles column1(m.element(0, 1), m.element(1, 1));
    const gk_TwoDoubles shift = gk_TwoOf(xform.translation());
    return boxOf(points, [&](gk_TwoDoubles p) {
        return column0 * gk_TwoDoubles::firsts(p, p) + column1 * gk_TwoDoubles::seconds(p, p) + shift;
    });
}

gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const gk_VertexRuns& runs,
                      const gkXform<2>& xform) {
    if (gk_IsIdentity(xform)) return gk_EncloseRect(points, xform);
    const gk_XformOps map(xform);
    const gkVector<2> first = map.image(points[0]);
    const auto farthest = [&](int row, double sign) {
        const long index = runs.firstGreatest(points, OfImage(xform, row, sign));
        return index < 0 ? gkVector<2>(std::numeric_limits<double>::quiet_NaN(), 0.0)
                         : map.image(points[static_cast<std::size_t>(index)]);
    };
    const gkVector<2> left = farthest(0, -1.0);
    const gkVector<2> right = farthest(0, 1.0);
    const gkVector<2> top = farthest(1, -1.0);
    const gkVector<2> bottom = farthest(1, 1.0);
    // A NaN of the first vertex stays, and infinite sides need not be the first ones: both are left to the
    // scan.
    const bool isOrdinary = gk_IsModerate(first) && gk_IsModerate(left) && gk_IsModerate(right) &&
                            gk_IsModerate(top) && gk_IsModerate(bottom);
    if (!isOrdinary) return gk_EncloseRect(points, xform);
    return gkRect::fromCorners({left.x(), top.y()}, {right.x(), bottom.y()});
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
