// One picture, measured.
#ifndef GK_EXAMPLES_ACCURACY_TRIAL_H
#define GK_EXAMPLES_ACCURACY_TRIAL_H

#include <opencv2/core.hpp>

constexpr double kSmoothing = 1.0; // sigma of the gradient's Gaussian, in pixels, as in the demo
constexpr double kReach = 2.0;     // of the search for edges

struct Trial {
    double fitted = 0.0;      // diameter of the fitted ellipse: the sum of its radii
    double fromArea = 0.0;    // diameter of the disc of the same area
    double farthest = 0.0;    // distance of the farthest pair of edge points
    double area = 0.0;        // inside the polygon of edge points
    double chordSquare = 0.0; // mean square of the polygon's sides, each weighted by its length
};

// `picture` (CV_8U) shows one disc, bright on dark ground.
Trial measureDisc(const cv::Mat& picture);

#endif
