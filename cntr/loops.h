// The loops of a walked boundary: cut apart at repeated vertices, dropped where they lie inside others, joined
// again.
#ifndef GK_CNTR_LOOPS_H
#define GK_CNTR_LOOPS_H

#include "platform/core/math/vector.h"

#include <vector>

using gk_Loop = std::vector<gkVector<2>>;

// Cuts an outline at every vertex that it visits twice (within 1e-6), until no loop has one. Every vertex ends
// up in one loop. Throws gkContourDefs::EmptyContour when a loop of a single vertex comes up, as its queries
// would. There must be a vertex.
std::vector<gk_Loop> gk_CutLoops(const gk_Loop& walked);

// Leaves out every loop the middle of whose first edge lies inside another one.
std::vector<gk_Loop> gk_DropInnerLoops(std::vector<gk_Loop> loops);

// Joins loops that share a vertex (within 1e-6), each pair into one outline through it; loops that share none
// remain.
std::vector<gk_Loop> gk_JoinLoops(std::vector<gk_Loop> loops);

#endif
