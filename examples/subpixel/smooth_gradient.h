// The gradient of a picture's brightness at any position.
#ifndef GK_EXAMPLES_SUBPIXEL_SMOOTH_GRADIENT_H
#define GK_EXAMPLES_SUBPIXEL_SMOOTH_GRADIENT_H

#include "platform/core/math/vector.h"

#include <opencv2/core.hpp>

// Of the picture smoothed by a Gaussian. The Gaussian is centred on the very position that is asked for, so
// nothing is interpolated between pixels; it only has to be wide enough (0.7 pixels will do) for the sum over
// pixels to stand for the integral. Beyond the border the picture goes on as its border pixels are.
class SmoothGradient {
public:
    // `gray` has one channel of any depth; `sigma` is that of the Gaussian, in pixels.
    SmoothGradient(const cv::Mat& gray, double sigma);

    // In brightness per pixel; the first pixel's centre is (0.5, 0.5), y points downwards.
    gkVector<2> at(const gkVector<2>& position) const;

private:
    cv::Mat_<float> brightness_;
    double sigma_;
    int reach_; // in pixels, where the Gaussian has come down to a 3000th of its height
};

#endif
