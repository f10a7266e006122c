// From a pixel to the edge beside it.
#ifndef GK_EXAMPLES_SUBPIXEL_EDGE_POINT_H
#define GK_EXAMPLES_SUBPIXEL_EDGE_POINT_H

#include "examples/subpixel/smooth_gradient.h"
#include "platform/image/edgelet.h"

#include <optional>

// The unit of an edge point's magnitude, which is a whole number: a 256th of a grey level per pixel.
constexpr double kMagnitudeUnit = 1.0 / 256.0;

// Where brightness changes fastest along the gradient through `start`. The steepest of samples half a pixel
// apart is found first; then a parabola through three of them tells where between them the top is. With each of
// three rounds the samples are taken around the last top, in the gradient's direction there, until the top is
// the middle one and the form of the curve no longer matters.
//
// Nothing where the steepest place is `reach` pixels away or more: what is found there belongs to something
// else.
std::optional<gkEdgelet> edgePointNear(const SmoothGradient& gradient, const gkVector<2>& start, double reach);

#endif
