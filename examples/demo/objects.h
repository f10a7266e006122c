// From outlines of pixels to objects.
#ifndef GK_EXAMPLES_DEMO_OBJECTS_H
#define GK_EXAMPLES_DEMO_OBJECTS_H

#include "examples/demo/object.h"
#include "examples/demo/outlines.h"
#include "examples/demo/progress.h"
#include "examples/demo/scale.h"

#include <cstddef>
#include <opencv2/core.hpp>
#include <vector>

struct Objects {
    std::vector<Object> all; // in reading order and labelled 1, 2, ... so
    std::size_t withoutEdge =
        0; // objects and holes left out, since hardly any of their outline has a clear edge
    std::size_t touchingHoles = 0; // holes left out, since they touch their region's outline
};

// `picture` is CV_8UC3, `outlines` were found in it.
Objects traceObjects(const cv::Mat& picture, const PixelOutlines& outlines, const Scale& scale,
                     Progress& progress);

#endif
