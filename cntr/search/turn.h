// A number that grows with a direction, for comparing directions without an arctangent.
#ifndef GK_CNTR_SEARCH_TURN_H
#define GK_CNTR_SEARCH_TURN_H

#include "cntr/search/box.h"
#include "platform/core/math/vector_ops.h"

// Quarters of a turn from the x direction, counter-clockwise, in [0, 4): whole on the axes and monotone between
// them, but not even. NaN for (0, 0).
inline double gk_QuarterTurns(double x, double y) {
    if (y >= 0.0) return x >= 0.0 ? y / (x + y) : 1.0 - x / (y - x);
    return x < 0.0 ? 2.0 + y / (x + y) : 3.0 + x / (x - y);
}

// A vector that has this turn, at most 4.
inline gkVector<2> gk_DirectionAt(double quarterTurns) {
    if (quarterTurns <= 2.0)
        return {1.0 - quarterTurns, quarterTurns <= 1.0 ? quarterTurns : 2.0 - quarterTurns};
    return {quarterTurns - 3.0, quarterTurns <= 3.0 ? 2.0 - quarterTurns : quarterTurns - 4.0};
}

// Whether the angle from one direction to another at most three quarters of a turn ahead is wider than one
// below a right angle, of which the square of the sine is given.
inline bool gk_IsWider(const gkVector<2>& from, const gkVector<2>& to, double sine2) {
    const double cross = gk_VectorOps::cross(from, to);
    return gk_VectorOps::dot(from, to) <= 0.0 ||
           cross * cross > sine2 * gk_VectorOps::dot(from, from) * gk_VectorOps::dot(to, to);
}

constexpr double kRoundedTurn = 1e-12; // thousands of the roundings of a turn

// An offset so little below the x direction may be computed to lie in it.
constexpr double kTinyOffset = 1e-300;

// Not above the turn of any offset in the box, which is that of one of its corners. Differences keep the order
// of what they are made from, so a box made of differences holds the offsets as they are computed.
inline double gk_LeastTurn(const gk_Box& offsets) {
    const auto [x0, y0, x1, y1] = offsets;
    if (y0 > 0.0) return gk_QuarterTurns(x1, x1 >= 0.0 ? y0 : y1) - kRoundedTurn;
    if (y1 < -kTinyOffset) return gk_QuarterTurns(x0, x0 < 0.0 ? y1 : y0) - kRoundedTurn;
    return x1 >= 0.0 ? 0.0 : gk_QuarterTurns(x1, y1) - kRoundedTurn;
}

#endif
