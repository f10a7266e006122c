#include "examples/demo/outlines.h"

#include "cntr/moments.h"
#include "examples/demo/background.h"
#include "examples/demo/own_threshold.h"
#include "examples/demo/reading_order.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

namespace {

// Grey levels between objects and background below which there is nothing but noise.
constexpr double kLeastContrast = 16;
constexpr double kLeastSeparation = 3; // the same in standard deviations

cv::Mat disc(int diameter) {
    return cv::getStructuringElement(cv::MORPH_ELLIPSE, cv::Size(diameter, diameter));
}

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

// What stands out, roughly; turns `difference` around where the objects are darker than the background.
cv::Mat roughMask(cv::Mat& difference) {
    cv::Mat bytes;
    cv::Mat mask;
    cv::normalize(difference, bytes, 0, 255, cv::NORM_MINMAX, CV_8U);
    cv::threshold(bytes, mask, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU);
    if (isFlat(difference, mask)) return cv::Mat(difference.size(), CV_8U, cv::Scalar(0));
    if (marksBorder(mask)) {
        cv::bitwise_not(mask, mask);
        difference = -difference;
    }
    return mask;
}

std::vector<std::vector<cv::Point>> outerBorders(const cv::Mat& mask) {
    std::vector<std::vector<cv::Point>> borders;
    cv::findContours(mask, borders, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_NONE);
    return borders;
}

// Objects without holes and hairs: gaps in the rim are closed, insides filled, and what is thinner than the
// last disc goes, so that an outline runs around its object once.
cv::Mat solid(const cv::Mat& mask) {
    cv::Mat closed;
    cv::morphologyEx(mask, closed, cv::MORPH_CLOSE, disc(5));
    cv::Mat filled(mask.size(), CV_8U, cv::Scalar(0));
    cv::drawContours(filled, outerBorders(closed), -1, cv::Scalar(255), cv::FILLED);
    cv::morphologyEx(filled, filled, cv::MORPH_OPEN, disc(7));
    return filled;
}

std::vector<gkVector<2>> pixelCentres(const std::vector<cv::Point>& border) {
    std::vector<gkVector<2>> centres;
    centres.reserve(border.size());
    for (const cv::Point& pixel : border) centres.emplace_back(pixel.x + 0.5, pixel.y + 0.5);
    return centres;
}

} // namespace

std::vector<gkContour> findOutlines(const cv::Mat& picture, double leastArea) {
    cv::Mat gray;
    cv::cvtColor(picture, gray, cv::COLOR_BGR2GRAY);
    cv::GaussianBlur(gray, gray, cv::Size(5, 5), 0);
    cv::Mat difference = withoutBackground(gray);
    const cv::Mat rough = solid(roughMask(difference));
    const cv::Mat mask = solid(withOwnThresholds(difference, rough));

    std::vector<gkContour> outlines;
    for (const std::vector<cv::Point>& border : outerBorders(mask)) {
        const std::vector<gkVector<2>> vertices = pixelCentres(border);
        if (gf_Area(vertices) >= leastArea) outlines.emplace_back(vertices, true, 0);
    }
    sortForReading(outlines);
    for (std::size_t i = 0; i < outlines.size(); ++i) outlines[i].label(i + 1);
    return outlines;
}
