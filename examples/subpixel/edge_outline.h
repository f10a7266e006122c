// From an outline of pixels to one of edge points.
#ifndef GK_EXAMPLES_SUBPIXEL_EDGE_OUTLINE_H
#define GK_EXAMPLES_SUBPIXEL_EDGE_OUTLINE_H

#include "examples/subpixel/smooth_gradient.h"
#include "platform/image/edgelet.h"

#include <cstddef>
#include <vector>

struct EdgeOutline {
    std::vector<gkEdgelet> edges;
    std::size_t unclear = 0; // vertices without a clear edge
};

// The edge points beside the vertices of a closed outline, in its order; `reach` as in edgePointNear.
//
// Vertices without a clear edge are left out, so that their neighbours are joined by a straight piece:
// - vertices beside which no edge is found,
// - those whose edge is much fainter than the outline's others (shade, or the border of the picture),
// - those whose edge rises to the other side than most (relief beside a rim).
//
// So are, without being unclear, those whose edge point would lie behind the last one along the outline, or
// hardly before it: at a corner several vertices find the same edge.
EdgeOutline edgeOutline(const SmoothGradient& gradient, const std::vector<gkVector<2>>& outline, double reach);

#endif
