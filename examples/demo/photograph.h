// Reading a picture file.
#ifndef GK_EXAMPLES_DEMO_PHOTOGRAPH_H
#define GK_EXAMPLES_DEMO_PHOTOGRAPH_H

#include "examples/demo/picture.h"

#include <filesystem>
#include <opencv2/core.hpp>

// The picture in a file, CV_8UC3. Throws Failure when the file cannot be read or is no picture.
cv::Mat readPicture(const std::filesystem::path& file);

Photograph photographOf(const cv::Mat& picture);

#endif
