// Second moments of a triangle, from its base and apex.
#ifndef GK_CNTR_TRIANGLE_INERTIA_H
#define GK_CNTR_TRIANGLE_INERTIA_H

#include "cntr/inertia_piece.h"

// Of the triangle with these corners in this order; counts for nothing when it has no base, which rounding or a
// NaN can bring about.
gk_InertiaPiece gk_TriangleInertia(const gkVector<2>& q1, const gkVector<2>& q2, const gkVector<2>& q3);

#endif
