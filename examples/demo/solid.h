// Objects as wholes, and the holes in them.
#ifndef GK_EXAMPLES_DEMO_SOLID_H
#define GK_EXAMPLES_DEMO_SOLID_H

#include <opencv2/core.hpp>

// Objects (CV_8U) without holes and hairs: gaps in the rim are closed, insides filled, and what is thinner than
// a small disc goes, so that an outline runs around its object once.
cv::Mat solid(const cv::Mat& mask);

// The holes: parts of `filled` (see solid) that are not in `mask` and on average nearly as dark as what lies
// around the objects. `brightness` is CV_32F, brighter in the objects.
cv::Mat showingBackground(const cv::Mat& brightness, const cv::Mat& filled, const cv::Mat& mask);

#endif
