// Which pixels of a picture belong to objects.
#ifndef GK_EXAMPLES_DEMO_OBJECT_MASK_H
#define GK_EXAMPLES_DEMO_OBJECT_MASK_H

#include <opencv2/core.hpp>

struct ObjectMask {
    cv::Mat pixels;      // CV_8U, not 0 in objects and 0 in their holes
    int enlargement = 1; // how many of them, across and down, one pixel of the picture is
};

// Objects stand out against a smooth background, brighter or darker. Where they are strokes of a few pixels, as
// in small print, the picture is enlarged first, since half a pixel more or less on each side would be much. In
// other objects a hole is what shows the background; relief and print on them are no holes.
ObjectMask findObjects(const cv::Mat& picture);

#endif
