// Two crossing outlines run together into one.
#ifndef GK_CNTR_SPLICE_H
#define GK_CNTR_SPLICE_H

#include "platform/core/math/vector.h"

#include <cstddef>
#include <vector>

// The crossing point, all vertices of `one` from the end of its edge `oneEdge` on, the point again, and all
// vertices of `other` from the end of its edge `otherEdge` on. Edge k of a closed outline ends at vertex k; the
// vertices themselves are taken, so an edge of length zero ends where it lies.
std::vector<gkVector<2>> gk_Spliced(const gkVector<2>& crossing, const std::vector<gkVector<2>>& one,
                                    std::size_t oneEdge, const std::vector<gkVector<2>>& other,
                                    std::size_t otherEdge);

#endif
