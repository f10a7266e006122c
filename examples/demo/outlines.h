// From a picture to the outlines of the objects in it, pixel by pixel.
#ifndef GK_EXAMPLES_DEMO_OUTLINES_H
#define GK_EXAMPLES_DEMO_OUTLINES_H

#include "platform/core/math/vector.h"

#include <opencv2/core.hpp>
#include <vector>

// Vertices are the centres of border pixels, the first pixel's own centre being (0.5, 0.5); they run
// counter-clockwise for x to the right and y up, those of holes too.
struct PixelOutline {
    std::vector<gkVector<2>> outline;
    std::vector<std::vector<gkVector<2>>> holes;
};

struct PixelOutlines {
    std::vector<PixelOutline> all;
    bool arePrint = false; // strokes of a few pixels
};

// `picture` is CV_8UC3. Objects and holes smaller than `leastArea` square pixels are specks and left out.
PixelOutlines findOutlines(const cv::Mat& picture, double leastArea);

#endif
