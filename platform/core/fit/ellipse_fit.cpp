#include "platform/core/fit/ellipse_fit.h"

#include "platform/core/fit/conic_fit.h"
#include "platform/core/fit/fit_frame.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/math/vector_ops.h"
#include "platform/core/shapes/ellipse_frame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

using Points = std::vector<gkVector<2>>;
using Geom = gkEllipse::gkEllipseGeom;

constexpr std::size_t kFewestPoints = 5;
// Relative difference of the radii that still counts as a circle, when the coordinates are no larger than the
// radius: 128u, what points all around make of the rounding of their coordinates, with room.
constexpr double kCircleRoundings = 0x1p-46;

[[noreturn]] void refuseCount() {
    throw gkEllipseFitDefs::TooFewPoints(L"ellipse fit: fewer than five different points");
}

bool hasFewestPoints(const Points& points) {
    std::array<gkVector<2>, kFewestPoints> different;
    std::size_t count = 0;
    for (const gkVector<2>& p : points) {
        const auto end = different.begin() + static_cast<std::ptrdiff_t>(count);
        if (std::find(different.begin(), end, p) != end) continue;
        different[count++] = p;
        if (count == kFewestPoints) return true;
    }
    return false;
}

// The power of two below which all coordinates lie.
int exponentOf(const Points& points) {
    gk_TwoDoubles reach;
    gk_TwoDoubles zero;
    for (const gkVector<2>& point : points) {
        const gk_TwoDoubles p = gk_TwoOf(point);
        reach = p.magnitude().orGreater(reach);
        zero = zero + (p - p); // NaN from the first coordinate on that is none or infinite
    }
    if (!(zero.first() == 0.0 && zero.second() == 0.0))
        throw gkEllipseFitDefs::NotFinite(L"ellipse fit: a coordinate is not finite");
    int exponent = 0;
    std::frexp(std::max(reach.first(), reach.second()), &exponent);
    return exponent;
}

gkVector<2> scaled(const gkVector<2>& p, int exponent) {
    return {std::ldexp(p.x(), exponent), std::ldexp(p.y(), exponent)};
}

Points scaled(const Points& points, int exponent) {
    Points result;
    result.reserve(points.size());
    for (const gkVector<2>& p : points) result.push_back(scaled(p, exponent));
    return result;
}

[[noreturn]] void refuse() {
    throw gkEllipseFitDefs::Degenerate(L"ellipse fit: the points determine no ellipse");
}

// Direction of the longer axis of the symmetric matrix (h, q; q, -h), whose positive eigenvalue is `root`.
gkVector<2> longAxis(double h, double q, double root) {
    return h >= 0.0 ? gkVector<2>(h + root, q) : gkVector<2>(q, root - h);
}

// Rotation in (-pi/2, pi/2]; an axis has no sign.
gkRadian axisAngle(gkVector<2> axis) {
    if (axis.x() < 0.0 || (axis.x() == 0.0 && axis.y() < 0.0)) axis = -axis;
    return axis.angle();
}

// Centre, radii and rotation of a conic given in the frame.
//
// About its centre the conic is p' Q p = level. Along the principal axes the inverse matrix, times level, has
// the squared radii as eigenvalues; the smaller one follows from the determinant, without cancellation.
Geom geomOf(gk_Conic conic, const gk_FitFrame& frame) {
    if (conic.xx + conic.yy < 0.0) conic = {-conic.xx, -conic.xy, -conic.yy, -conic.x, -conic.y, -conic.one};
    const double half = 0.5 * conic.xy;
    const double det = conic.xx * conic.yy - half * half;
    const gkVector<2> center(0.5 * (half * conic.y - conic.yy * conic.x) / det,
                             0.5 * (half * conic.x - conic.xx * conic.y) / det);
    const double level = -(conic.one + 0.5 * (conic.x * center.x() + conic.y * center.y()));
    const double u = frame.spreadU();
    const double v = frame.spreadV();
    const double p = level / det * conic.yy * u * u;
    const double q = -level / det * half * u * v;
    const double r = level / det * conic.xx * v * v;
    const double h = 0.5 * (p - r);
    const double mean = 0.5 * (p + r);
    const double root = std::sqrt(h * h + q * q);
    const double big = std::sqrt(mean + root);
    const double small = level / std::sqrt(det) * u * v / big;
    const bool isEllipse = det > 0.0 && level > 0.0 && std::isfinite(big) && std::isfinite(center.x()) &&
                           std::isfinite(center.y()) && small > 0.0;
    if (!isEllipse) refuse(); // or rounding has made none of one
    return {frame.fromFrame(center),
            {big, std::min(big, small)},
            axisAngle(frame.rotatedBack(longAxis(h, q, root)))};
}

bool isCircle(const Geom& geom, double reach) {
    const double big = geom.radii.x();
    return big - geom.radii.y() <= kCircleRoundings * (big + reach);
}

// The best radius about a given centre. Beside a short arc the errors of centre and radii go together, so that
// a mean of the radii would leave the points.
double meanDistance(const Points& points, const gkVector<2>& center) {
    const double first = gk_VectorOps::distance(center, points.front());
    double excess = 0.0; // of nearly equal distances only the differences are summed: they round off little
    for (const gkVector<2>& p : points) excess += gk_VectorOps::distance(center, p) - first;
    return first + excess / static_cast<double>(points.size());
}

Geom fitted(const Points& points, const gkRadian& circleAngle) {
    if (!hasFewestPoints(points)) refuseCount();
    const gk_FitFrame frame(points);
    if (frame.isFlat()) refuse();
    Geom geom = geomOf(gk_FitConic(frame, points), frame);
    if (!isCircle(geom, frame.reach())) return geom;
    const double radius = meanDistance(points, geom.center.vector());
    return {geom.center, {radius, radius}, circleAngle};
}

std::size_t farthest(const Points& points, const Geom& geom) {
    const gk_EllipseFrame ellipse(geom);
    std::size_t worst = 0;
    double most = -1.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double distance = ellipse.distance(points[i]);
        if (!(distance > most)) continue;
        most = distance;
        worst = i;
    }
    return worst;
}

double rootMeanSquare(const Points& points, const Geom& geom) {
    const gk_EllipseFrame ellipse(geom);
    return std::sqrt(ellipse.sumOfSquares(points) / static_cast<double>(points.size()));
}

} // namespace

void gfEllipseFit(const gkEllipseFitParams& params, const Points& points, gkEllipseFitResults& results) {
    if (params.mode() != gkEllipseFitDefs::eDirectLeastSquares || std::isnan(params.limit()))
        throw gkEllipseFitDefs::BadParams(L"ellipse fit: unknown mode or limit");
    constexpr int kModerate = 100; // powers whose squares and fourths are ordinary numbers
    const int largest = exponentOf(points);
    const int exponent = largest >= -kModerate && largest <= kModerate ? 0 : largest;
    if (params.count() >= points.size()) refuseCount(); // before many fits in vain
    // Scaling by a power of two is exact; the fit then cannot overflow, whatever the unit.
    Points changed;
    if (exponent != 0 || params.count() > 0) changed = scaled(points, -exponent);
    for (unsigned long left = params.count(); left > 0; --left) {
        const std::size_t worst = farthest(changed, fitted(changed, params.angle()));
        changed.erase(changed.begin() + static_cast<std::ptrdiff_t>(worst));
    }
    const Points& kept = changed.empty() ? points : changed;
    Geom geom = fitted(kept, params.angle());
    const double error = std::ldexp(rootMeanSquare(kept, geom), exponent);
    if (error > params.limit()) throw gkEllipseFitDefs::LimitExceeded(L"ellipse fit: error above the limit");
    geom.center = scaled(geom.center.vector(), exponent);
    geom.radii = scaled(geom.radii, exponent);
    results = gkEllipseFitResults(gkEllipse(geom), error);
}
