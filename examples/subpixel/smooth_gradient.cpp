#include "examples/subpixel/smooth_gradient.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// The Gaussian and its derivative at the pixels along one axis.
struct Weights {
    int first = 0;
    std::vector<double> smooth;
    std::vector<double> slope;
};

Weights weightsAround(double position, double sigma, int reach) {
    Weights weights;
    weights.first = static_cast<int>(std::floor(position)) - reach;
    double sum = 0.0;
    for (int pixel = weights.first; pixel <= weights.first + 2 * reach; ++pixel) {
        const double distance = (pixel + 0.5 - position) / sigma;
        const double height = std::exp(-0.5 * distance * distance);
        weights.smooth.push_back(height);
        weights.slope.push_back(height * distance / sigma);
        sum += height;
    }
    for (double& weight : weights.smooth) weight /= sum;
    for (double& weight : weights.slope) weight /= sum;
    return weights;
}

} // namespace

SmoothGradient::SmoothGradient(const cv::Mat& gray, double sigma)
    : sigma_(sigma), reach_(static_cast<int>(std::ceil(4.0 * sigma))) {
    gray.convertTo(brightness_, CV_32F);
}

gkVector<2> SmoothGradient::at(const gkVector<2>& position) const {
    const Weights across = weightsAround(position.x(), sigma_, reach_);
    const Weights down = weightsAround(position.y(), sigma_, reach_);
    gkVector<2> gradient;
    for (std::size_t i = 0; i < down.smooth.size(); ++i) {
        const float* row = brightness_[std::clamp(down.first + static_cast<int>(i), 0, brightness_.rows - 1)];
        double smooth = 0.0;
        double slope = 0.0;
        for (std::size_t k = 0; k < across.smooth.size(); ++k) {
            const double value = row[std::clamp(across.first + static_cast<int>(k), 0, brightness_.cols - 1)];
            smooth += across.smooth[k] * value;
            slope += across.slope[k] * value;
        }
        gradient += gkVector<2>(down.smooth[i] * slope, down.slope[i] * smooth);
    }
    return gradient;
}
