// Bounds on rounding that let the search leave out what a plain scan would look at and reject.
#ifndef GK_CNTR_SEARCH_MAGNITUDE_H
#define GK_CNTR_SEARCH_MAGNITUDE_H

#include "platform/core/math/vector.h"

#include <algorithm>
#include <cmath>

// Between these bounds no product of two coordinates overflows, and the square of a segment's length keeps all
// its bits. An outline beyond them, or one with a NaN, is left to the plain scans, whose answers are then their
// own.
constexpr double kGreatestCoordinate = 1e140;
constexpr double kShortestSquare = 1e-280;

// Greatest |coordinate|; the comparison is false for NaN.
inline bool gk_IsModerate(const gkVector<2>& p) {
    return std::fabs(p.x()) <= kGreatestCoordinate && std::fabs(p.y()) <= kGreatestCoordinate;
}

inline double gk_Reach(const gkVector<2>& p) { return std::max(std::fabs(p.x()), std::fabs(p.y())); }

// How far a distance that gk_LineOps computes between points of at most this reach can be from the true one.
//
// With u = 2^-53 and reach M: a difference of two coordinates is off by at most 2 u M, so offsets and
// directions by 2.9 u M; the cross product divided by the length adds 6 u of an offset of at most 2.9 M, the
// length 3 u of it; a foot that falls on the wrong side of a segment's end moves the distance by no more than
// the foot's own error, 4 u of an offset and the errors before. Together below 64 u M.
inline double gk_DistanceSlack(double reach) { return 64.0 * 0x1p-53 * reach; }

// The square beyond which nothing can be computed as near as `distance`: what is farther by more than the slack
// cannot. The factor covers the roundings of this square and of the one compared with it.
inline double gk_FartherSquare(double distance, double slack) {
    const double far = distance + slack;
    return far * far * (1.0 + 0x1p-49);
}

#endif
