// Coordinates in which a fit is well conditioned: centred, along the principal axes, unit spread on both.
#ifndef GK_PLATFORM_CORE_FIT_FIT_FRAME_H
#define GK_PLATFORM_CORE_FIT_FIT_FRAME_H

#include "platform/core/math/two_doubles.h"

#include <vector>

class gk_FitFrame {
public:
    // The points must be of magnitude about 1 or below and not empty.
    explicit gk_FitFrame(const std::vector<gkVector<2>>& points);

    // True when the spread across the main direction is no more than rounding of the coordinates can make it.
    bool isFlat() const;

    std::vector<gkVector<2>> toFrame(const std::vector<gkVector<2>>& points) const;
    // Calls take(two) for two points in the frame at a time; a last single one comes twice.
    template <class Take> void forTwo(const gkVector<2>* begin, const gkVector<2>* end, Take take) const {
        const gk_TwoVectors center = gk_TwoVectors::of(gk_TwoOf(center_), gk_TwoOf(center_));
        const gk_TwoVectors u = {gk_TwoDoubles(cos_ / spreadU_), gk_TwoDoubles(sin_ / spreadU_)};
        const gk_TwoVectors v = {gk_TwoDoubles(-sin_ / spreadV_), gk_TwoDoubles(cos_ / spreadV_)};
        for (const gkVector<2>* p = begin; p < end; p += 2) {
            const gkVector<2>& second = p + 1 < end ? p[1] : p[0];
            const gk_TwoVectors d = gk_TwoVectors::of(gk_TwoOf(p[0]), gk_TwoOf(second)) - center;
            take(gk_TwoVectors{u.dot(d), v.dot(d)});
        }
    }
    gkVector<2> fromFrame(const gkVector<2>& p) const;

    // From the principal directions to the original ones; no scaling.
    gkVector<2> rotatedBack(const gkVector<2>& direction) const;

    // Root mean square along the principal axes.
    double spreadU() const { return spreadU_; }
    double spreadV() const { return spreadV_; }
    // Largest magnitude of a coordinate.
    double reach() const { return reach_; }

private:
    void setAxes(const std::vector<gkVector<2>>& points);
    void measureSpreads(const std::vector<gkVector<2>>& points);

    gkVector<2> center_;
    double cos_ = 1.0;
    double sin_ = 0.0;
    double spreadU_ = 0.0;
    double spreadV_ = 0.0;
    double reach_ = 0.0;
};

#endif
