#include "bench/picture.h"

#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace bench {

namespace {

cv::Mat picture() { return cv::imread("build/demo/coins.png", cv::IMREAD_GRAYSCALE); }

} // namespace

bool hasPicture() { return !picture().empty(); }

Points longestOutlineOfPicture() {
    cv::Mat mask;
    cv::threshold(picture(), mask, 0.0, 255.0, cv::THRESH_BINARY | cv::THRESH_OTSU);
    std::vector<std::vector<cv::Point>> outlines;
    cv::findContours(mask, outlines, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_NONE);
    const auto longest = std::max_element(outlines.begin(), outlines.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    Points points;
    for (const cv::Point& p : *longest) points.push_back({static_cast<double>(p.x), static_cast<double>(p.y)});
    return points;
}

} // namespace bench
