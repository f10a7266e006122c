// From a picture to the regions of the objects in it.
#ifndef GK_EXAMPLES_DEMO_OUTLINES_H
#define GK_EXAMPLES_DEMO_OUTLINES_H

#include "cntr/region.h"

#include <cstddef>
#include <opencv2/core.hpp>
#include <vector>

struct Outlines {
    std::vector<gkPtrHandle<gkRegion>> regions;
    std::size_t refusedHoles = 0; // that touch their region's outline
};

// One region with its holes for each object, in reading order (rows from the top, each from the left) and
// labelled 1, 2, ... so. `picture` is CV_8UC3. Objects and holes smaller than `leastArea` square pixels are
// specks and left out. Vertices are the centres of the objects' border pixels in the library's coordinates, in
// which the first pixel's own centre is (0.5, 0.5); those of an outline run counter-clockwise (x to the right,
// y up), those of a hole too.
Outlines findOutlines(const cv::Mat& picture, double leastArea);

#endif
