#include "platform/core/fit/fit_frame.h"

#include <algorithm>
#include <cmath>

namespace {

// 8u: half a unit in the last place for each coordinate, and the roundings of the rotation.
constexpr double kFlatness = 0x1p-50;
// Least share of a squared spread in the other one that has lost hardly any digits.
constexpr double kLeastShare = 0x1p-4;

} // namespace

gk_FitFrame::gk_FitFrame(const std::vector<gkVector<2>>& points) {
    const gk_TwoDoubles count(static_cast<double>(points.size()));
    const gk_TwoDoubles first = gk_TwoOf(points.front());
    gk_TwoDoubles sum;
    gk_TwoDoubles reach;
    for (const gkVector<2>& point : points) {
        const gk_TwoDoubles p = gk_TwoOf(point);
        sum = sum + (p - first);
        reach = p.magnitude().orGreater(reach);
    }
    reach_ = std::max(reach.first(), reach.second());
    const gk_TwoDoubles center = first + sum / count;
    center_ = gk_VectorOf(center);
    setAxes(points);
}

void gk_FitFrame::measureSpreads(const std::vector<gkVector<2>>& points) {
    const gk_TwoDoubles center = gk_TwoOf(center_);
    const gk_TwoDoubles along(cos_, cos_);
    const gk_TwoDoubles across(sin_, -sin_);
    gk_TwoDoubles squares;
    for (const gkVector<2>& point : points) {
        const gk_TwoDoubles d = gk_TwoOf(point) - center;
        const gk_TwoDoubles uv = along * d + across * d.swapped();
        squares = squares + uv * uv;
    }
    const gk_TwoDoubles spreads = (squares / gk_TwoDoubles(static_cast<double>(points.size()))).root();
    spreadU_ = spreads.first();
    spreadV_ = spreads.second();
}

// The rotation that diagonalizes the scatter matrix, which has the squared spreads as its eigenvalues then. A
// small spread drowns in them and is measured along the axes.
void gk_FitFrame::setAxes(const std::vector<gkVector<2>>& points) {
    const gk_TwoDoubles center = gk_TwoOf(center_);
    gk_TwoDoubles squares;
    double xy = 0.0;
    for (const gkVector<2>& point : points) {
        const gk_TwoDoubles d = gk_TwoOf(point) - center;
        squares = squares + d * d;
        xy += d.first() * d.second();
    }
    const double xx = squares.first();
    const double yy = squares.second();
    double tangent = 0.0;
    if (xy != 0.0) {
        const double tau = (xx - yy) / (2.0 * xy);
        const double root = std::sqrt(1.0 + tau * tau);
        tangent = tau < 0.0 ? 1.0 / (tau - root) : 1.0 / (tau + root);
        cos_ = 1.0 / std::sqrt(1.0 + tangent * tangent);
        sin_ = tangent * cos_;
    }
    const double count = static_cast<double>(points.size());
    const double u2 = xx + tangent * xy;
    const double v2 = yy - tangent * xy;
    spreadU_ = std::sqrt(u2 / count);
    spreadV_ = std::sqrt(v2 / count);
    if (!(std::min(u2, v2) > kLeastShare * std::max(u2, v2))) measureSpreads(points);
}

bool gk_FitFrame::isFlat() const { return std::min(spreadU_, spreadV_) <= kFlatness * reach_; }

std::vector<gkVector<2>> gk_FitFrame::toFrame(const std::vector<gkVector<2>>& points) const {
    std::vector<gkVector<2>> result;
    result.reserve(points.size());
    for (const gkVector<2>& p : points) {
        const gkVector<2> d = p - center_;
        result.emplace_back((cos_ * d.x() + sin_ * d.y()) / spreadU_, (cos_ * d.y() - sin_ * d.x()) / spreadV_);
    }
    return result;
}

gkVector<2> gk_FitFrame::fromFrame(const gkVector<2>& p) const {
    return center_ + rotatedBack({p.x() * spreadU_, p.y() * spreadV_});
}

gkVector<2> gk_FitFrame::rotatedBack(const gkVector<2>& d) const {
    return {cos_ * d.x() - sin_ * d.y(), sin_ * d.x() + cos_ * d.y()};
}
