#include "cntr/moments.h"

#include "cntr/segment_walk.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/math/real.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/math/vector_ops.h"
#include "platform/core/object/errors.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

using Points = std::vector<gkVector<2>>;

// Doubled area of a triangle with the origin that does not count any more, in squared vertex units.
constexpr double kNoTriangle = 1e-15;

std::vector<gkVector<2>> positions(const std::vector<gkEdgelet>& edgelets) {
    Points points;
    points.reserve(edgelets.size());
    for (const gkEdgelet& edgelet : edgelets) points.push_back(edgelet.position());
    return points;
}

double shoelace(const Points& points) {
    double sum = 0.0;
    gk_WalkTwoByTwo(points, true,
                    [&](const gk_TwoVectors& previous, const gk_TwoVectors& current, bool areTwo) {
                        const gk_TwoDoubles crosses = previous.cross(current);
                        sum += crosses.first();
                        if (areTwo) sum += crosses.second();
                    });
    return std::fabs(sum / 2.0);
}

gk_TwoBools isFinite(gk_TwoDoubles value) {
    return value.magnitude() <= gk_TwoDoubles(std::numeric_limits<double>::max());
}

// What two edges add to the sums of the centroid.
//
// The centroid of the triangle with the origin is the crossing of two medians, not the mean of the corners: the
// definition the last bits come from. The median from the origin leads to the middle of the edge, the one from
// `previous` to half of `current`. Medians that cross at no finite place count as crossing at the origin;
// unless they are asked for, such a crossing spoils the sums instead. A sum from 0 on is never -0, so adding 0
// passes over an edge.
template <bool crossAnywhere> struct CentroidTerms {
    CentroidTerms(const gk_TwoVectors& previous, const gk_TwoVectors& current)
        : weight(previous.cross(current)) {
        const gk_TwoDoubles half(0.5);
        const gk_TwoVectors first = (previous + current) * half;
        const gk_TwoVectors second = current * half - previous;
        const gk_TwoDoubles t = previous.cross(second) / first.cross(second);
        gk_TwoVectors centroid = first * t;
        if (crossAnywhere) centroid = centroid.where(isFinite(t));
        moment = centroid * weight;
        const gk_TwoBools isSkipped = weight.magnitude() <= gk_TwoDoubles(kNoTriangle);
        if (!isSkipped.any()) return;
        weight = weight.where(!isSkipped);
        moment = moment.where(!isSkipped);
    }

    gk_TwoDoubles weight;
    gk_TwoVectors moment;
};

struct CentroidSums {
    double weight = 0.0;
    gk_TwoDoubles moment;
};

template <bool crossAnywhere> CentroidSums centroidSums(const Points& points) {
    CentroidSums sums;
    gk_WalkTwoByTwo(points, true,
                    [&](const gk_TwoVectors& previous, const gk_TwoVectors& current, bool areTwo) {
                        const CentroidTerms<crossAnywhere> terms(previous, current);
                        sums.weight += terms.weight.first();
                        sums.moment = sums.moment + gk_TwoDoubles::firsts(terms.moment.x, terms.moment.y);
                        if (!areTwo) return;
                        sums.weight += terms.weight.second();
                        sums.moment = sums.moment + gk_TwoDoubles::seconds(terms.moment.x, terms.moment.y);
                    });
    return sums;
}

} // namespace

double gf_Area(const std::vector<gkVector<2>>& points) {
    if (points.empty()) throw std::out_of_range("gf_Area: no points");
    return shoelace(points);
}

double gf_Area(const std::vector<gkEdgelet>& edgelets) {
    if (edgelets.size() < 3) return 0.0;
    return shoelace(positions(edgelets));
}

gkVector<2> gnContour::centerOfMass(const std::vector<gkVector<2>>& points) {
    if (points.size() <= 2) return gkVector<2>();
    CentroidSums sums = centroidSums<false>(points);
    if (!isFinite(sums.moment).all()) sums = centroidSums<true>(points);
    if (gfRealEq(sums.weight, 0.0, 1e-6)) return gkVector<2>();
    return gk_VectorOf(sums.moment) / sums.weight;
}

gkVector<2> gf_CenterOfMass(const std::vector<gkVector<2>>& points) { return gnContour::centerOfMass(points); }

gkVector<2> gf_CenterOfMass(const std::vector<gkEdgelet>& edgelets) {
    return gnContour::centerOfMass(positions(edgelets));
}

gkEllipse gf_EllipseFromInertiaData(const gk_InertiaData& data) {
    constexpr double kPiSquared = 9.869604401089358;
    const gkMatrix<2>& moments = data.inertiaMatrix();
    const gkRadian rotation(
        gk_Trig::atan2(2.0 * moments.element(0, 1), moments.element(0, 0) - moments.element(1, 1)) / 2.0);
    const gkMatrix<2> turned =
        gkMatrix<2>(-rotation, -rotation, 1.0, 1.0) * moments * gkMatrix<2>(rotation, rotation, 1.0, 1.0);
    const double along = std::fabs(turned.element(0, 0));
    const double across = std::fabs(turned.element(1, 1));
    if (gfRealEq(along, 0.0, 1e-12) || gfRealEq(across, 0.0, 1e-12)) throw gkMathError::Singular();
    const auto eighthRoot = [](double value) { return std::sqrt(std::sqrt(std::sqrt(value))); };
    const gkVector<2> radii(eighthRoot(16.0 * (along * along * along) / (kPiSquared * across)),
                            eighthRoot(16.0 * (across * across * across) / (kPiSquared * along)));
    return gkEllipse(gkEllipse::gkEllipseGeom(gkPoint(data.centerOfMass()), radii, rotation, false, false));
}

void gf_FitEllipse(const std::vector<gkVector<2>>& points, gkEllipse& ellipse, double& error) {
    const gkEllipseFitParams params(static_cast<gkEllipseFitDefs::fit_mode>(0), gkRadian(0.0), 0,
                                    std::numeric_limits<double>::infinity());
    gkEllipseFitResults results;
    gfEllipseFit(params, points, results);
    ellipse = results.ellipse();
    error = results.error();
}

void gf_FitEllipse(const std::vector<gkEdgelet>& edgelets, gkEllipse& ellipse, double& error) {
    gf_FitEllipse(positions(edgelets), ellipse, error);
}

double gf_StdDev(const std::vector<double>& values) {
    const double count = static_cast<double>(values.size());
    double sum = 0.0;
    for (const double value : values) sum += value;
    const double mean = sum / count;
    double squares = 0.0;
    for (const double value : values) squares += (value - mean) * (value - mean);
    return std::sqrt(squares / count);
}
