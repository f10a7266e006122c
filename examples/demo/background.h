// The light that falls on the picture.
#ifndef GK_EXAMPLES_DEMO_BACKGROUND_H
#define GK_EXAMPLES_DEMO_BACKGROUND_H

#include <opencv2/core.hpp>

// Brightness minus that of the background, as CV_32F; `gray` is CV_8U. The background is a smooth surface
// through the pixels that belong to no object, so lamps to one side and dark corners do not matter.
cv::Mat withoutBackground(const cv::Mat& gray);

#endif
