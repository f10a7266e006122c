#include "examples/demo/own_threshold.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>
#include <vector>

namespace {

// Median of the pixels the mask marks; the upper of two. There must be one.
float median(const cv::Mat& values, const cv::Mat& mask) {
    std::vector<float> marked;
    for (int row = 0; row < values.rows; ++row)
        for (int column = 0; column < values.cols; ++column)
            if (mask.at<unsigned char>(row, column) != 0) marked.push_back(values.at<float>(row, column));
    const auto middle = marked.begin() + static_cast<std::ptrdiff_t>(marked.size() / 2);
    std::nth_element(marked.begin(), middle, marked.end());
    return *middle;
}

// The box with a quarter of its size added on each side, within the picture.
cv::Rect surroundings(const cv::Rect& box, const cv::Size& picture) {
    const int x = std::max(4, box.width / 4);
    const int y = std::max(4, box.height / 4);
    const cv::Rect wide(box.x - x, box.y - y, box.width + 2 * x, box.height + 2 * y);
    return wide & cv::Rect(cv::Point(0, 0), picture);
}

// The parts of `mask` that touch `seed`.
cv::Mat partsTouching(const cv::Mat& mask, const cv::Mat& seed) {
    cv::Mat labels;
    const int count = cv::connectedComponents(mask, labels, 8, CV_32S);
    std::vector<bool> touches(static_cast<std::size_t>(count), false);
    for (int row = 0; row < mask.rows; ++row)
        for (int column = 0; column < mask.cols; ++column)
            if (seed.at<unsigned char>(row, column) != 0 && mask.at<unsigned char>(row, column) != 0)
                touches[static_cast<std::size_t>(labels.at<int>(row, column))] = true;
    cv::Mat parts(mask.size(), CV_8U, cv::Scalar(0));
    for (int row = 0; row < mask.rows; ++row)
        for (int column = 0; column < mask.cols; ++column)
            if (touches[static_cast<std::size_t>(labels.at<int>(row, column))])
                parts.at<unsigned char>(row, column) = 255;
    return parts;
}

// `seed` marks the object, `others` every other one; all three cover the same box.
cv::Mat regrown(const cv::Mat& brightness, const cv::Mat& seed, const cv::Mat& others) {
    const cv::Mat surroundings = (seed | others) == 0;
    if (cv::countNonZero(surroundings) == 0) return seed;
    const float halfway = (median(brightness, seed) + median(brightness, surroundings)) / 2.0F;
    const cv::Mat bright = (brightness > halfway) & (others == 0);
    return partsTouching(bright, seed);
}

} // namespace

cv::Mat withOwnThresholds(const cv::Mat& brightness, const cv::Mat& rough) {
    cv::Mat labels;
    cv::Mat boxes;
    cv::Mat centres;
    const int count = cv::connectedComponentsWithStats(rough, labels, boxes, centres, 8, CV_32S);
    cv::Mat mask(rough.size(), CV_8U, cv::Scalar(0));
    for (int label = 1; label < count; ++label) { // 0 is the background
        const int* box = boxes.ptr<int>(label);   // left, top, width, height
        const cv::Rect wide = surroundings(cv::Rect(box[0], box[1], box[2], box[3]), rough.size());
        const cv::Mat seed = labels(wide) == label;
        const cv::Mat others = (labels(wide) != label) & (labels(wide) != 0);
        mask(wide) |= regrown(brightness(wide), seed, others);
    }
    return mask;
}
