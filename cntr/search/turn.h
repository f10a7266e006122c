// A number that grows with a direction, for comparing directions without an arctangent.
#ifndef GK_CNTR_SEARCH_TURN_H
#define GK_CNTR_SEARCH_TURN_H

#include "cntr/search/box.h"

#include <algorithm>

// Quarters of a turn from the x direction, counter-clockwise, in [0, 4): whole on the axes and monotone between
// them, but not even. NaN for (0, 0).
inline double gk_QuarterTurns(double x, double y) {
    if (y >= 0.0) return x >= 0.0 ? y / (x + y) : 1.0 - x / (y - x);
    return x < 0.0 ? 2.0 + y / (x + y) : 3.0 + x / (x - y);
}

constexpr double kRoundedTurn = 1e-12; // thousands of the roundings of a turn

// Not above the turn of any offset in the box, each coordinate of which may be off by the slack.
inline double gk_LeastTurn(const gk_Box& offsets, double slack) {
    if (offsets.x1 >= -slack && offsets.y0 <= slack && offsets.y1 >= -slack) return 0.0;
    return std::min({gk_QuarterTurns(offsets.x0, offsets.y0), gk_QuarterTurns(offsets.x0, offsets.y1),
                     gk_QuarterTurns(offsets.x1, offsets.y0), gk_QuarterTurns(offsets.x1, offsets.y1)}) -
           kRoundedTurn;
}

#endif
