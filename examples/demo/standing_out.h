// What differs from the background, roughly.
#ifndef GK_EXAMPLES_DEMO_STANDING_OUT_H
#define GK_EXAMPLES_DEMO_STANDING_OUT_H

#include <opencv2/core.hpp>

// Marks (CV_8U) what lies on the other side of one threshold than most of the picture's border, be it brighter
// or darker; nothing where the two sides differ by no more than noise. `difference` is CV_32F, see
// withoutBackground.
cv::Mat standingOut(const cv::Mat& difference);

// True when the marked pixels are darker on average than the others.
bool isDarker(const cv::Mat& difference, const cv::Mat& mask);

#endif
