#include "examples/demo/background.h"

#include "examples/demo/standing_out.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>

namespace {

constexpr int kTerms = 6;
constexpr int kMarginShare = 16;    // the margin is this part of the picture wide, on each side
constexpr int kRounds = 6;          // the surface settles after three or four
constexpr double kFittedSide = 256; // a smooth surface needs no more pixels than this along the longer side

// The surface's terms 1, x, y, x^2, xy, y^2 at a pixel, with x and y from -1 to 1 across the picture.
void fillTerms(const cv::Size& size, int row, int column, double* terms) {
    const double x = (2.0 * column + 1.0) / size.width - 1.0;
    const double y = (2.0 * row + 1.0) / size.height - 1.0;
    const double values[kTerms] = {1.0, x, y, x * x, x * y, y * y};
    std::copy(values, values + kTerms, terms);
}

cv::Mat surface(const cv::Mat& coefficients, const cv::Size& size) {
    cv::Mat heights(size, CV_32F);
    double terms[kTerms];
    for (int row = 0; row < size.height; ++row) {
        for (int column = 0; column < size.width; ++column) {
            fillTerms(size, row, column, terms);
            double height = 0.0;
            for (int i = 0; i < kTerms; ++i) height += coefficients.at<double>(i) * terms[i];
            heights.at<float>(row, column) = static_cast<float>(height);
        }
    }
    return heights;
}

// Least squares over the pixels that the mask leaves free.
cv::Mat fit(const cv::Mat& image, const cv::Mat& objects) {
    const int count = static_cast<int>(image.total()) - cv::countNonZero(objects);
    cv::Mat terms(std::max(count, kTerms), kTerms, CV_64F, cv::Scalar(0));
    cv::Mat values(terms.rows, 1, CV_64F, cv::Scalar(0));
    int next = 0;
    for (int row = 0; row < image.rows; ++row) {
        for (int column = 0; column < image.cols; ++column) {
            if (objects.at<unsigned char>(row, column) != 0) continue;
            fillTerms(image.size(), row, column, terms.ptr<double>(next));
            values.at<double>(next++) = image.at<float>(row, column);
        }
    }
    cv::Mat coefficients;
    cv::solve(terms.t() * terms, terms.t() * values, coefficients, cv::DECOMP_SVD);
    return coefficients;
}

cv::Mat objectsIn(const cv::Mat& difference) {
    cv::Mat objects = standingOut(difference);
    // What lies beside an object is in its shade or its glow and tells little about the background.
    cv::dilate(objects, objects, cv::getStructuringElement(cv::MORPH_RECT, cv::Size(3, 3)));
    return objects;
}

// Objects may cover most of a picture, but hardly most of its margin; so the first surface goes through the
// margin only and takes no object that fills the middle for the background.
cv::Mat insideOfFrame(const cv::Size& size) {
    cv::Mat inside(size, CV_8U, cv::Scalar(0));
    const int x = std::max(2, size.width / kMarginShare);
    const int y = std::max(2, size.height / kMarginShare);
    const cv::Rect middle(x, y, std::max(0, size.width - 2 * x), std::max(0, size.height - 2 * y));
    inside(middle).setTo(255);
    return inside;
}

} // namespace

cv::Mat withoutBackground(const cv::Mat& gray) {
    const double shrink = std::min(1.0, kFittedSide / std::max(gray.rows, gray.cols));
    cv::Mat small;
    cv::resize(gray, small, cv::Size(), shrink, shrink, cv::INTER_AREA);
    small.convertTo(small, CV_32F);

    cv::Mat objects = insideOfFrame(small.size());
    cv::Mat coefficients;
    for (int round = 0; round < kRounds; ++round) {
        coefficients = fit(small, objects);
        objects = objectsIn(small - surface(coefficients, small.size()));
    }
    cv::Mat all;
    gray.convertTo(all, CV_32F);
    return all - surface(coefficients, gray.size());
}
