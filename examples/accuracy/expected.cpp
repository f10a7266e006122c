#include "examples/accuracy/expected.h"

#include "examples/accuracy/disc_picture.h"
#include "examples/accuracy/trial.h"

#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;

// I1(z) / I0(z) of the modified Bessel functions, by Gauss's continued fraction.
double besselRatio(double z) {
    double ratio = 0.0;
    for (int k = static_cast<int>(z) + 50; k >= 1; --k) ratio = 1.0 / (2.0 * k / z + ratio);
    return ratio;
}

} // namespace

double blurSigma() { return std::sqrt(kLensSigma * kLensSigma + 1.0 / 12.0 + kSmoothing * kSmoothing); }

// At the distance p from the centre the gradient of a disc blurred by a Gaussian is proportional to
// exp(-(p^2 + r^2) / (2 s^2)) I1(z) with z = p r / s^2. Its derivative is zero where p I1(z) = r (I0(z) - I1(z)
// / z).
double curvatureBias(double radius) {
    const double variance = blurSigma() * blurSigma();
    double low = 0.5 * radius; // right as long as the disc is not much smaller than the blur
    double high = radius;
    for (int i = 0; i < 60; ++i) {
        const double p = 0.5 * (low + high);
        const double z = p * radius / variance;
        const double ratio = besselRatio(z);
        (p * ratio < radius * (1.0 - ratio / z) ? low : high) = p;
    }
    return 0.5 * (low + high) - radius;
}

// Between a chord s and its arc lies s^3 / (12 r), to first order. Over all chords, whose lengths sum to 2 pi
// r, that is pi / 6 times their mean square (weighted by length), and the diameter changes by 1 / (pi r) of the
// area.
double chordBias(double radius, double chordSquare) { return -chordSquare / (6.0 * radius); }

// An edge point is where the second derivative across the edge is zero. Of white noise, smoothed by a Gaussian
// g of sigma s, that has the standard deviation noise * sqrt(3 / (16 pi)) / s^3, and the edge makes it change
// by contrast / (sqrt(2 pi) sigma^3) per pixel. Rounding to whole levels is noise of variance 1/12.
double pointSpread(double noise) {
    const double all = std::sqrt(noise * noise + 1.0 / 12.0);
    const double ratio = blurSigma() / kSmoothing;
    return std::sqrt(3.0 / 8.0) * ratio * ratio * ratio * all / kContrast;
}

// Along the edge the noise is correlated by exp(-d^2 / (4 s^2)), so an edge of length l has l / (2 sqrt(pi) s)
// independent points.
double diameterSpread(double radius, double noise) {
    return 2.0 * pointSpread(noise) * std::sqrt(kSmoothing / (std::sqrt(kPi) * radius));
}
