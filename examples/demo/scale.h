// How large a pixel is.
#ifndef GK_EXAMPLES_DEMO_SCALE_H
#define GK_EXAMPLES_DEMO_SCALE_H

#include "platform/core/math/xform.h"
#include "platform/core/transform/xform_base.h"

#include <optional>
#include <string>

class Scale {
public:
    // Without a size, lengths are told in pixels.
    explicit Scale(const std::optional<double>& millimetresPerPixel)
        : size_(millimetresPerPixel.value_or(1.0)), unit_(millimetresPerPixel ? "mm" : "px") {}

    double size() const { return size_; } // of a pixel, in units
    const std::string& unit() const { return unit_; }

    // From the space of the measures to that of the picture: the same axes, (0, 0) is the same corner.
    gkXform<2> toPixels() const;
    // The same as a shared object, as edgelet contours keep it: their vertices are in units, their edge points
    // in pixels.
    gkPtrHandle_const<gk2XformBase> sharedToPixels() const;

    // Digits after the point with which a length tells hundredths of a pixel.
    int digits() const;

private:
    double size_;
    std::string unit_;
};

#endif
