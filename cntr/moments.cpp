#include "cntr/moments.h"

#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/math/real.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/vector_ops.h"
#include "platform/core/object/errors.h"
#include "platform/core/shapes/line_ops.h"

#include <cmath>
#include <limits>

namespace {

using Points = std::vector<gkVector<2>>;

std::vector<gkVector<2>> positions(const std::vector<gkEdgelet>& edgelets) {
    Points points;
    points.reserve(edgelets.size());
    for (const gkEdgelet& edgelet : edgelets) points.push_back(edgelet.position());
    return points;
}

double shoelace(const Points& points) {
    double sum = 0.0;
    gkVector<2> previous = points.at(points.size() - 1);
    for (const gkVector<2>& current : points) {
        sum += gk_VectorOps::cross(previous, current);
        previous = current;
    }
    return std::fabs(sum / 2.0);
}

// The crossing of two medians, not the mean of the corners: the definition the centroid's last bits come from.
gkVector<2> triangleCentroid(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& q3) {
    const gkLineSeg first(q1, (q2 + q3) / 2.0);
    const gkLineSeg second(q2, (q1 + q3) / 2.0);
    return gk_LineOps::intersect(first.line(), second.line());
}

} // namespace

double gf_Area(const std::vector<gkVector<2>>& points) { return shoelace(points); }

double gf_Area(const std::vector<gkEdgelet>& edgelets) {
    return edgelets.size() < 3 ? 0.0 : shoelace(positions(edgelets));
}

gkVector<2> gnContour::centerOfMass(const std::vector<gkVector<2>>& points) {
    if (points.size() <= 2) return gkVector<2>();
    const gkVector<2> origin;
    double sumX = 0.0;
    double sumY = 0.0;
    double sum = 0.0;
    gkVector<2> previous = points.back();
    for (const gkVector<2>& current : points) {
        const double weight = gk_VectorOps::cross(previous, current);
        if (!gfRealEq(weight, 0.0, 1e-15)) {
            const gkVector<2> centroid = triangleCentroid(origin, previous, current);
            sumX += weight * centroid.x();
            sumY += weight * centroid.y();
            sum += weight;
        }
        previous = current;
    }
    if (gfRealEq(sum, 0.0, 1e-6)) return gkVector<2>();
    return gkVector<2>(sumX / sum, sumY / sum);
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
