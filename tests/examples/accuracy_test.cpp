// tests/examples/accuracy_test.cpp - bias and spread of measured discs stay what theory says. Oracle: the
// discs' own size and the formulas of examples/accuracy/expected.h, which the first tests check by themselves.
#include "examples/accuracy/cell.h"
#include "examples/accuracy/disc_picture.h"
#include "examples/accuracy/expected.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kPhases = 5;
constexpr double kPictures = kPhases * kPhases;

// Four standard errors: one test in some 16000 would fail by chance, and the noise is the same in every run.
double biasBound(double spread) { return 4.0 * spread / std::sqrt(kPictures); }

void expectWithin(double radius, double noise) {
    SCOPED_TRACE(testing::Message() << "radius " << radius << ", noise " << noise);
    const Cell cell = measureCell(radius, noise, kPhases);
    const double spread = diameterSpread(radius, noise);
    const double bias = 2.0 * curvatureBias(radius);
    // Pixels are squares and not round, which the theory leaves out: the fourth moment of a square's profile
    // differs from a Gaussian's, which moves a curved edge by less than a hundredth of its bias.
    const double slack = 0.01 * std::fabs(bias);
    EXPECT_NEAR(bias, cell.fitted.bias, biasBound(spread) + slack);
    EXPECT_NEAR(bias + chordBias(radius, cell.chordSquare), cell.fromArea.bias,
                biasBound(spread) + slack + 0.02 / radius); // the area's own second order
    // A standard deviation from n values is known to 1 / sqrt(2 (n - 1)) of itself; four of these, here 0.58.
    const double share = 4.0 / std::sqrt(2.0 * (kPictures - 1.0));
    EXPECT_LT(cell.fitted.spread, (1.0 + share) * spread);
    EXPECT_GT(cell.fitted.spread, (1.0 - share) * spread);
}

} // namespace

TEST(Accuracy, CurvatureBiasIsNearlyVarianceOverDiameter) {
    for (double radius : {20.0, 50.0, 100.0}) {
        const double first = -blurSigma() * blurSigma() / (2.0 * radius);
        // The next term is 3 sigma^4 / (8 r^3).
        EXPECT_NEAR(first, curvatureBias(radius), std::pow(blurSigma(), 4) / std::pow(radius, 3));
    }
}

TEST(Accuracy, ChordBiasIsThatOfRegularPolygons) {
    const double radius = 10.0;
    const double corners = 60.0;
    const double side = 2.0 * radius * std::sin(kPi / corners);
    const double area = 0.5 * corners * radius * radius * std::sin(2.0 * kPi / corners);
    const double diameter = 2.0 * std::sqrt(area / kPi);
    EXPECT_NEAR(diameter - 2.0 * radius, chordBias(radius, side * side), 2e-5); // first order, of 0.018
}

TEST(Accuracy, PicturesHoldTheLightOfTheDisc) {
    gkRandomUniform random(1);
    const cv::Mat picture = pictureOf({{20.3, 19.6}, 8.0}, 40, 0.0, random);
    const double light = (cv::sum(picture)[0] - 1600 * kGroundLevel) / kContrast;
    // Rounding of the 200 pixels or so that are neither ground nor disc, each by 0.29 of a level of 150; four
    // of these.
    EXPECT_NEAR(kPi * 64.0, light, 4.0 * 0.29 * std::sqrt(200.0) / kContrast);
}

TEST(Accuracy, OfSmallDiscsIsWhatTheoryExpects) { expectWithin(5.0, 5.0); }
TEST(Accuracy, OfMiddlingDiscsIsWhatTheoryExpects) { expectWithin(20.0, 2.0); }
TEST(Accuracy, OfNoisyDiscsIsWhatTheoryExpects) { expectWithin(20.0, 10.0); }
TEST(Accuracy, OfLargeDiscsIsWhatTheoryExpects) { expectWithin(50.0, 5.0); }

// Without noise only grey levels in whole steps are left, whose errors are not independent of each other.
TEST(Accuracy, WithoutNoiseIsAHundredthOfAPixel) {
    const Cell cell = measureCell(10.0, 0.0, kPhases);
    EXPECT_NEAR(2.0 * curvatureBias(10.0), cell.fitted.bias, 0.01);
    EXPECT_LT(cell.fitted.spread, 0.01);
}

TEST(Accuracy, IsTheSameInEveryRun) {
    const Cell once = measureCell(5.0, 10.0, 2);
    const Cell again = measureCell(5.0, 10.0, 2);
    EXPECT_EQ(once.fitted.bias, again.fitted.bias);
    EXPECT_EQ(once.area.spread, again.area.spread);
}
