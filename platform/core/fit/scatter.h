// The triangular factor of a conic's design matrix from sums of powers, where these are good enough.
#ifndef GK_PLATFORM_CORE_FIT_SCATTER_H
#define GK_PLATFORM_CORE_FIT_SCATTER_H

#include "platform/core/fit/fit_frame.h"

#include <array>
#include <vector>

// Upper triangle R, by rows, such that R'R is the matrix of all sums of products of two of x, y, 1, x^2, x y,
// y^2 over the points in the frame.
struct gk_DesignFactor {
    std::array<std::array<double, 6>, 6> rows{};
    // Every column keeps a thousandth of its length beside those before, so that R is as exact as from the
    // points themselves. Not so for points on a conic to within that, for which squares lose what is left.
    bool isSound = false;
};

gk_DesignFactor gk_FactorOfSums(const gk_FitFrame& frame, const std::vector<gkVector<2>>& points);

#endif
