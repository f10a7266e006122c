#include "examples/accuracy/disc_picture.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

namespace {

// The lens blurs before the sensor divides the light into pixels, so it has to be done in finer squares.
constexpr int kFiner = 4;
constexpr int kLines = 16; // through each row of fine squares; along a line the light is exact

double overlap(double from, double to, int square) {
    return std::max(0.0, std::min(to, square + 1.0) - std::max(from, static_cast<double>(square)));
}

// The share of each fine square that lies in the disc, given in fine squares.
cv::Mat_<double> coverage(const Disc& disc, int side) {
    cv::Mat_<double> share(side, side, 0.0);
    for (int line = 0; line < side * kLines; ++line) {
        const double below = (line + 0.5) / kLines - disc.centre.y();
        const double halfSquare = disc.radius * disc.radius - below * below;
        if (halfSquare <= 0.0) continue;
        const double from = disc.centre.x() - std::sqrt(halfSquare);
        const double to = disc.centre.x() + std::sqrt(halfSquare);
        double* row = share[line / kLines];
        for (int square = static_cast<int>(from); square <= static_cast<int>(to); ++square)
            row[square] += overlap(from, to, square) / kLines;
    }
    return share;
}

// Of each pixel, from 0 to 1.
cv::Mat_<double> lightOf(const Disc& disc, int side) {
    const Disc fine = {kFiner * disc.centre, kFiner * disc.radius};
    cv::Mat_<double> light = coverage(fine, kFiner * side);
    cv::GaussianBlur(light, light, cv::Size(), kFiner * kLensSigma);
    cv::resize(light, light, cv::Size(side, side), 0.0, 0.0, cv::INTER_AREA);
    return light;
}

// The sum of twelve uniform numbers has variance 1 and is the same on every machine, which the standard
// library's normal distribution is not.
double nearlyNormal(gkRandomUniform& random) {
    double sum = -6.0;
    for (int i = 0; i < 12; ++i) sum += random.next();
    return sum;
}

} // namespace

cv::Mat pictureOf(const Disc& disc, int side, double noise, gkRandomUniform& random) {
    const cv::Mat_<double> light = lightOf(disc, side);
    cv::Mat_<unsigned char> picture(side, side);
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            double level = kGroundLevel + kContrast * light(row, column);
            if (noise > 0.0) level += noise * nearlyNormal(random);
            picture(row, column) = static_cast<unsigned char>(std::clamp(std::floor(level + 0.5), 0.0, 255.0));
        }
    }
    return picture;
}
