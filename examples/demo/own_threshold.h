// Each object separated from its surroundings by a threshold of its own.
#ifndef GK_EXAMPLES_DEMO_OWN_THRESHOLD_H
#define GK_EXAMPLES_DEMO_OWN_THRESHOLD_H

#include <opencv2/core.hpp>

// One threshold for the whole picture cuts into objects that are fainter than the others. So each part of the
// mask `rough` (CV_8U) is grown or shrunk to where `brightness` (CV_32F, brighter in the objects) lies halfway
// between its own median and that of what surrounds it. Returns the new mask.
cv::Mat withOwnThresholds(const cv::Mat& brightness, const cv::Mat& rough);

#endif
