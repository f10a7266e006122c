#include "examples/accuracy/trial.h"

#include "ch_core/cntrtmpl.h"
#include "examples/accuracy/disc_picture.h"
#include "examples/subpixel/edge_outline.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <vector>

namespace {

constexpr double kPi = 3.14159265358979323846;

// Centres of the border pixels of what is brighter than halfway, the longest border if noise made others.
std::vector<gkVector<2>> pixelOutline(const cv::Mat& picture) {
    cv::Mat mask;
    cv::threshold(picture, mask, 0.5 * (kGroundLevel + kDiscLevel), 255, cv::THRESH_BINARY);
    std::vector<std::vector<cv::Point>> borders;
    cv::findContours(mask, borders, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_NONE);
    const auto longest = std::max_element(borders.begin(), borders.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    std::vector<gkVector<2>> outline;
    for (const cv::Point& pixel : *longest) outline.emplace_back(pixel.x + 0.5, pixel.y + 0.5);
    return outline;
}

double meanChordSquare(const std::vector<gkVector<2>>& points) {
    double length = 0.0;
    double cubes = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double side = points[i].distance(points[(i + 1) % points.size()]);
        length += side;
        cubes += side * side * side;
    }
    return cubes / length;
}

} // namespace

Trial measureDisc(const cv::Mat& picture) {
    const SmoothGradient gradient(picture, kSmoothing);
    const gkRegionT<gkEdgelet> disc(edgeOutline(gradient, pixelOutline(picture), kReach).edges, 1);
    gkEllipse ellipse;
    double error = 0.0;
    disc.fitEllipse(ellipse, error);
    Trial trial;
    trial.fitted = ellipse.radii().x() + ellipse.radii().y();
    trial.area = disc.area(false);
    trial.fromArea = 2.0 * std::sqrt(trial.area / kPi);
    trial.farthest = disc.diameter(gkContourDefs::eExact);
    trial.chordSquare = meanChordSquare(disc.points());
    return trial;
}
