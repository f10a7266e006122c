// Coordinates in which a fit is well conditioned: centred, along the principal axes, unit spread on both.
#ifndef GK_PLATFORM_CORE_FIT_FIT_FRAME_H
#define GK_PLATFORM_CORE_FIT_FIT_FRAME_H

#include "platform/core/math/vector.h"

#include <vector>

class gk_FitFrame {
public:
    // The points must be of magnitude about 1 or below and not empty.
    explicit gk_FitFrame(const std::vector<gkVector<2>>& points);

    // True when the spread across the main direction is no more than rounding of the coordinates can make it.
    bool isFlat() const;

    std::vector<gkVector<2>> toFrame(const std::vector<gkVector<2>>& points) const;
    gkVector<2> fromFrame(const gkVector<2>& p) const;

    // From the principal directions to the original ones; no scaling.
    gkVector<2> rotatedBack(const gkVector<2>& direction) const;

    // Root mean square along the principal axes.
    double spreadU() const { return spreadU_; }
    double spreadV() const { return spreadV_; }
    // Largest magnitude of a coordinate.
    double reach() const { return reach_; }

private:
    void findAxes(const std::vector<gkVector<2>>& points);

    gkVector<2> center_;
    double cos_ = 1.0;
    double sin_ = 0.0;
    double spreadU_ = 0.0;
    double spreadV_ = 0.0;
    double reach_ = 0.0;
};

#endif
