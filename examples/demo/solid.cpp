#include "examples/demo/solid.h"

#include <opencv2/imgproc.hpp>
#include <vector>

namespace {

// Of the way from the background's brightness to the objects'; relief in the shade is brighter than that.
constexpr double kBackgroundShare = 0.25;

cv::Mat disc(int diameter) {
    return cv::getStructuringElement(cv::MORPH_ELLIPSE, cv::Size(diameter, diameter));
}

} // namespace

cv::Mat solid(const cv::Mat& mask) {
    cv::Mat closed;
    cv::morphologyEx(mask, closed, cv::MORPH_CLOSE, disc(5));
    std::vector<std::vector<cv::Point>> borders;
    cv::findContours(closed, borders, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_NONE);
    cv::Mat filled(mask.size(), CV_8U, cv::Scalar(0));
    cv::drawContours(filled, borders, -1, cv::Scalar(255), cv::FILLED);
    cv::morphologyEx(filled, filled, cv::MORPH_OPEN, disc(7));
    return filled;
}

cv::Mat showingBackground(const cv::Mat& brightness, const cv::Mat& filled, const cv::Mat& mask) {
    const double background = cv::mean(brightness, filled == 0)[0];
    const double objects = cv::mean(brightness, mask)[0];
    const double limit = background + kBackgroundShare * (objects - background);
    cv::Mat inside = filled & ~mask;
    cv::Mat labels;
    // Parts that meet at a corner only are apart, since the object around them is joined there.
    const int count = cv::connectedComponents(inside, labels, 4, CV_32S);
    cv::Mat holes(mask.size(), CV_8U, cv::Scalar(0));
    for (int label = 1; label < count; ++label) {
        const cv::Mat part = labels == label;
        if (cv::mean(brightness, part)[0] < limit) holes |= part;
    }
    return holes;
}
