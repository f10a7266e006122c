// From a picture to the outlines of the objects in it.
#ifndef GK_EXAMPLES_DEMO_OUTLINES_H
#define GK_EXAMPLES_DEMO_OUTLINES_H

#include "cntr/contour.h"

#include <opencv2/core.hpp>
#include <vector>

// One closed contour for each object, in reading order (rows from the top, each from the left) and labelled 1,
// 2, ... so. `picture` is CV_8UC3. Objects stand out against a smooth background, brighter or darker; those
// smaller than `leastArea` square pixels are specks and left out. Vertices are the centres of the border pixels
// in the library's coordinates, in which the first pixel's own centre is (0.5, 0.5).
std::vector<gkContour> findOutlines(const cv::Mat& picture, double leastArea);

#endif
