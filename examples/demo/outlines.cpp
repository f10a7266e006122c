#include "examples/demo/outlines.h"

#include "cntr/moments.h"
#include "examples/demo/background.h"
#include "examples/demo/own_threshold.h"
#include "examples/demo/reading_order.h"
#include "examples/demo/standing_out.h"

#include <opencv2/imgproc.hpp>

namespace {

cv::Mat disc(int diameter) {
    return cv::getStructuringElement(cv::MORPH_ELLIPSE, cv::Size(diameter, diameter));
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
    const cv::Mat rough = solid(standingOut(difference));
    if (isDarker(difference, rough)) difference = -difference;
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
