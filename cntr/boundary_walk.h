// The walk around the boundary of an outline that crosses itself.
#ifndef GK_CNTR_BOUNDARY_WALK_H
#define GK_CNTR_BOUNDARY_WALK_H

#include "cntr/outline.h"

#include <vector>

// The lowest edge v[i] - v[i+1] that the rest of the outline neither crosses nor touches and that has the
// outside on one of its sides. The closing edge is never tried. `probe` is how far beside the edge's middle the
// sides are looked at. Throws gkContourDefs::BadParams "invalid contour" when there is none.
long gk_StartEdge(gk_Outline& outline, double probe);

// The vertices met by walking from v[start] along its edge, turning back along the crossed edge at every
// crossing, until v[start] is met again; v[start] comes last. Throws gkContourDefs::BadParams "invalid contour"
// when the walk would never come back.
std::vector<gkVector<2>> gk_WalkBoundary(gk_Outline& outline, long start);

#endif
