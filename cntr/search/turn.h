// A number that grows with a direction, for comparing directions without an arctangent.
#ifndef GK_CNTR_SEARCH_TURN_H
#define GK_CNTR_SEARCH_TURN_H

// Quarters of a turn from the x direction, counter-clockwise, in [0, 4): whole on the axes and monotone between
// them, but not even. NaN for (0, 0).
inline double gk_QuarterTurns(double x, double y) {
    if (y >= 0.0) return x >= 0.0 ? y / (x + y) : 1.0 - x / (y - x);
    return x < 0.0 ? 2.0 + y / (x + y) : 3.0 + x / (x - y);
}

#endif
