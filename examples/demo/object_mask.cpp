#include "examples/demo/object_mask.h"

#include "examples/demo/background.h"
#include "examples/demo/own_threshold.h"
#include "examples/demo/solid.h"
#include "examples/demo/standing_out.h"

#include <opencv2/imgproc.hpp>
#include <vector>

namespace {

constexpr double kThinStroke = 6; // pixels; print in pictures of a page comes to 4, coins to 18
constexpr int kEnlargement = 4;

cv::Mat difference(cv::Mat gray) {
    cv::GaussianBlur(gray, gray, cv::Size(5, 5), 0);
    return withoutBackground(gray);
}

// Of strokes the mean width, as a long stroke has its area from its width and half its border.
double strokeWidth(const cv::Mat& mask) {
    std::vector<std::vector<cv::Point>> borders;
    cv::findContours(mask, borders, cv::RETR_LIST, cv::CHAIN_APPROX_NONE);
    double length = 0.0;
    for (const std::vector<cv::Point>& border : borders) length += cv::arcLength(border, true);
    return length > 0.0 ? 2.0 * cv::countNonZero(mask) / length : 0.0;
}

ObjectMask thinObjects(const cv::Mat& gray) {
    cv::Mat large;
    cv::resize(gray, large, cv::Size(), kEnlargement, kEnlargement, cv::INTER_CUBIC);
    return {standingOut(difference(large)), kEnlargement};
}

ObjectMask thickObjects(cv::Mat brightness, const cv::Mat& standing) {
    const cv::Mat rough = solid(standing);
    if (isDarker(brightness, rough)) brightness = -brightness;
    const cv::Mat mask = withOwnThresholds(brightness, rough);
    const cv::Mat filled = solid(mask);
    return {filled & ~showingBackground(brightness, filled, mask), 1};
}

} // namespace

ObjectMask findObjects(const cv::Mat& picture) {
    cv::Mat gray;
    cv::cvtColor(picture, gray, cv::COLOR_BGR2GRAY);
    const cv::Mat brightness = difference(gray.clone());
    const cv::Mat standing = standingOut(brightness);
    const double width = strokeWidth(standing);
    return width > 0.0 && width < kThinStroke ? thinObjects(gray) : thickObjects(brightness, standing);
}
