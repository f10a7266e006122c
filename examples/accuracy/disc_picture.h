// Pictures of a disc whose place and size are known.
#ifndef GK_EXAMPLES_ACCURACY_DISC_PICTURE_H
#define GK_EXAMPLES_ACCURACY_DISC_PICTURE_H

#include "platform/core/math/random.h"
#include "platform/core/math/vector.h"

#include <opencv2/core.hpp>

constexpr double kGroundLevel = 50.0;
constexpr double kDiscLevel = 200.0;
constexpr double kContrast = kDiscLevel - kGroundLevel;
constexpr double kLensSigma = 0.8; // of the blur, in pixels

struct Disc {
    gkVector<2> centre; // (0, 0) is the corner of the first pixel
    double radius = 0.0;
};

// As a camera would take it: each pixel gets the light that falls on its square, blurred by the lens, with
// normally distributed noise of `noise` grey levels (standard deviation), rounded to whole levels. CV_8U,
// square.
cv::Mat pictureOf(const Disc& disc, int side, double noise, gkRandomUniform& random);

#endif
