#include "platform/core/fit/fit_frame.h"

#include <algorithm>
#include <cmath>

namespace {

// 8u: half a unit in the last place for each coordinate, and the roundings of the rotation.
constexpr double kFlatness = 0x1p-50;

} // namespace

gk_FitFrame::gk_FitFrame(const std::vector<gkVector<2>>& points) {
    const double count = static_cast<double>(points.size());
    const gkVector<2> first = points.front();
    gkVector<2> sum;
    for (const gkVector<2>& p : points) {
        sum += p - first;
        reach_ = std::max(reach_, std::max(std::fabs(p.x()), std::fabs(p.y())));
    }
    center_ = first + sum / count;
    findAxes(points);
    double squaresU = 0.0;
    double squaresV = 0.0;
    for (const gkVector<2>& p : points) {
        const gkVector<2> d = p - center_;
        const double u = cos_ * d.x() + sin_ * d.y();
        const double v = cos_ * d.y() - sin_ * d.x();
        squaresU += u * u;
        squaresV += v * v;
    }
    spreadU_ = std::sqrt(squaresU / count);
    spreadV_ = std::sqrt(squaresV / count);
}

// The rotation that diagonalizes the scatter matrix. A small spread is measured along the axes afterwards,
// since in the squares of the scatter it drowns.
void gk_FitFrame::findAxes(const std::vector<gkVector<2>>& points) {
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
    for (const gkVector<2>& p : points) {
        const gkVector<2> d = p - center_;
        xx += d.x() * d.x();
        xy += d.x() * d.y();
        yy += d.y() * d.y();
    }
    if (xy == 0.0) return;
    const double tau = (xx - yy) / (2.0 * xy);
    const double root = std::sqrt(1.0 + tau * tau);
    const double tangent = tau < 0.0 ? 1.0 / (tau - root) : 1.0 / (tau + root);
    cos_ = 1.0 / std::sqrt(1.0 + tangent * tangent);
    sin_ = tangent * cos_;
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
