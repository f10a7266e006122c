// Measures of a plain list of vertices, as the text of each says: no classes, no caches.
#ifndef GK_CNTR_MEASURES_H
#define GK_CNTR_MEASURES_H

#include "platform/core/math/angle.h"
#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/rect.h"

#include <vector>

class gk_VertexRuns;

// Sum of the segments' lengths, in walking order.
double gk_Length(const std::vector<gkVector<2>>& points, bool closed);

// Mean of the segments' midpoints, weighted by length; a division by zero when all vertices coincide.
gkVector<2> gk_MeanPosition(const std::vector<gkVector<2>>& points, bool closed);

// Sets `circle` to the one over the first pair of vertices that is farthest apart, in the order (outer i, inner
// j) over all ordered pairs; leaves it alone when no pair is farther apart than 0.
void gk_CircleOverFarthestPair(const std::vector<gkVector<2>>& points, gkCircle& circle);

// The circle around the first vertex that reaches the farthest other one; `points` must not be empty.
gkCircle gk_CircleAroundFirst(const std::vector<gkVector<2>>& points);

// Index of the vertex that lies furthest in a direction, the lowest index among equals; -1 when no vertex has a
// score above the most negative double (NaN or infinite coordinates).
long gk_ExtremalVertex(const std::vector<gkVector<2>>& points, const gkRadian& angle);
// The same from runs of the vertices, which must not be empty.
long gk_ExtremalVertex(const std::vector<gkVector<2>>& points, const gk_VertexRuns& runs,
                       const gkRadian& angle);

// The identity takes the vertices as they are, and so does a transform within 1e-15 of it.
bool gk_IsIdentity(const gkXform<2>& xform);

// Box of the vertices mapped by `xform`; `points` must not be empty.
gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const gkXform<2>& xform);
// The same from runs of the vertices.
gkRect gk_EncloseRect(const std::vector<gkVector<2>>& points, const gk_VertexRuns& runs,
                      const gkXform<2>& xform);

// Median of the segments' lengths, the upper of the two middle values for an even count; there must be a
// segment.
double gk_MedianSegmentLength(const std::vector<gkVector<2>>& points, bool closed);

#endif
