#include "examples/demo/standing_out.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

namespace {

// Grey levels between objects and background below which there is nothing but noise.
constexpr double kLeastContrast = 16;
constexpr double kLeastSeparation = 3; // the same in standard deviations

// True when the two sides of the threshold are no further apart than halves of the same noise would be: those
// of normally distributed values are 2.65 of their own deviations apart.
bool isFlat(const cv::Mat& difference, const cv::Mat& mask) {
    cv::Scalar above, below, spreadAbove, spreadBelow;
    cv::meanStdDev(difference, above, spreadAbove, mask);
    cv::meanStdDev(difference, below, spreadBelow, mask == 0);
    const double share = cv::countNonZero(mask) / static_cast<double>(mask.total());
    const double within =
        std::sqrt(share * spreadAbove[0] * spreadAbove[0] + (1.0 - share) * spreadBelow[0] * spreadBelow[0]);
    return above[0] - below[0] < std::max(kLeastContrast, kLeastSeparation * within);
}

bool marksBorder(const cv::Mat& mask) {
    const int marked = cv::countNonZero(mask.row(0)) + cv::countNonZero(mask.row(mask.rows - 1)) +
                       cv::countNonZero(mask.col(0)) + cv::countNonZero(mask.col(mask.cols - 1));
    return marked > mask.rows + mask.cols;
}

} // namespace

cv::Mat standingOut(const cv::Mat& difference) {
    cv::Mat bytes;
    cv::Mat mask;
    cv::normalize(difference, bytes, 0, 255, cv::NORM_MINMAX, CV_8U);
    cv::threshold(bytes, mask, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU);
    if (isFlat(difference, mask)) return cv::Mat(difference.size(), CV_8U, cv::Scalar(0));
    if (marksBorder(mask)) cv::bitwise_not(mask, mask);
    return mask;
}

bool isDarker(const cv::Mat& difference, const cv::Mat& mask) {
    return cv::mean(difference, mask)[0] < cv::mean(difference, mask == 0)[0];
}
