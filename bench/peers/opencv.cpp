#include "bench/peers/opencv.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace bench {

struct CvOutline::Body {
    cv::Mat points; // one column, two channels
};

CvOutline::CvOutline(const Points& points, Numbers numbers) : body_(std::make_unique<Body>()) {
    cv::setNumThreads(1);
    cv::Mat made(static_cast<int>(points.size()), 1, CV_32FC2);
    for (int i = 0; i < made.rows; ++i) {
        const Point& p = points[static_cast<std::size_t>(i)];
        made.at<cv::Vec2f>(i) = {static_cast<float>(p.x), static_cast<float>(p.y)};
    }
    if (numbers == Numbers::ePixels) made.convertTo(made, CV_32S);
    body_->points = made;
}
CvOutline::~CvOutline() = default;

bool CvOutline::inside(const Point& p) const {
    const cv::Point2f at(static_cast<float>(p.x), static_cast<float>(p.y));
    return cv::pointPolygonTest(body_->points, at, false) > 0.0;
}

double CvOutline::distance(const Point& p) const {
    const cv::Point2f at(static_cast<float>(p.x), static_cast<float>(p.y));
    return std::fabs(cv::pointPolygonTest(body_->points, at, true));
}

double CvOutline::area() const { return cv::contourArea(body_->points); }
double CvOutline::length() const { return cv::arcLength(body_->points, true); }

Points CvOutline::hull() const {
    cv::Mat found;
    cv::convexHull(body_->points, found);
    Points hull;
    for (int i = 0; i < found.rows; ++i) {
        if (found.type() == CV_32SC2) {
            const auto& p = found.at<cv::Vec2i>(i);
            hull.push_back({static_cast<double>(p[0]), static_cast<double>(p[1])});
        } else {
            const auto& p = found.at<cv::Vec2f>(i);
            hull.push_back({static_cast<double>(p[0]), static_cast<double>(p[1])});
        }
    }
    return hull;
}

Point CvOutline::centreOfMass() const {
    const cv::Moments m = cv::moments(body_->points);
    return {m.m10 / m.m00, m.m01 / m.m00};
}

Moments CvOutline::secondMoments() const {
    const cv::Moments m = cv::moments(body_->points);
    return {m.mu20, m.mu02, m.mu11};
}

double CvOutline::fittedRadius() const {
    const cv::RotatedRect fitted = cv::fitEllipse(body_->points);
    return static_cast<double>(std::max(fitted.size.width, fitted.size.height)) / 2.0;
}

struct CvVertices::Body {
    cv::Mat points;
};

CvVertices::CvVertices(const Points& points) : body_(std::make_unique<Body>()) {
    cv::setNumThreads(1);
    body_->points.create(static_cast<int>(points.size()), 1, CV_64FC2);
    for (int i = 0; i < body_->points.rows; ++i) {
        const Point& p = points[static_cast<std::size_t>(i)];
        body_->points.at<cv::Vec2d>(i) = {p.x, p.y};
    }
}
CvVertices::~CvVertices() = default;

Box CvVertices::boxUnder(const Affine& t) const {
    const cv::Matx23d matrix(t.a, t.b, t.dx, t.c, t.d, t.dy);
    cv::Mat mapped;
    cv::transform(body_->points, mapped, matrix);
    cv::Mat low;
    cv::Mat high;
    cv::reduce(mapped, low, 0, cv::REDUCE_MIN);
    cv::reduce(mapped, high, 0, cv::REDUCE_MAX);
    const auto& l = low.at<cv::Vec2d>(0);
    const auto& h = high.at<cv::Vec2d>(0);
    return {{l[0], l[1]}, {h[0], h[1]}};
}

} // namespace bench
