// Where a segment crosses an outline, and whether an outline crosses itself.
#ifndef GK_CNTR_CROSSINGS_H
#define GK_CNTR_CROSSINGS_H

#include "cntr/search/crossing_test.h"
#include "cntr/search/segment_tree.h"

#include <vector>

// A crossing point and the outline's segment on which it was found.
struct gk_Crossing {
    gkVector<2> point;
    int segment = 0;
};

// The crossings of a query segment with the outline's segments, in segment order. A crossing at an outline's
// vertex is found on both segments that meet there; parallel and collinear segments give none.
std::vector<gk_Crossing> gk_Crossings(const gk_Segments& outline, const gk_CrossingTest& query);
// The same by a tree of these segments.
std::vector<gk_Crossing> gk_Crossings(const gk_Segments& outline, const gk_SegmentTree& tree,
                                      const gk_CrossingTest& query);

// How many there are, but not more than `most`.
std::size_t gk_CountCrossings(const gk_Segments& outline, const gk_CrossingTest& query, std::size_t most);
std::size_t gk_CountCrossings(const gk_Segments& outline, const gk_SegmentTree& tree,
                              const gk_CrossingTest& query, std::size_t most);

// Whether there is a crossing at all. `segment` and its neighbours are tried first; it becomes the one that was
// met.
bool gk_MeetsAny(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_CrossingTest& query,
                 std::size_t& segment);

// Whether a segment of the outline crosses another one that does not touch its ends. Segments whose boxes do
// not overlap `box`, the outline's own as its owner keeps it, are not asked.
bool gk_CrossesItself(const gk_Segments& outline, const gk_Box& box);
bool gk_CrossesItself(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_Box& box);
// The same by what is left of the segments when those are left out that cannot matter.
bool gk_CrossesItselfByCandidates(const gk_Segments& outline, const gk_Box& box);

// The crossing that gk_OrderAlong() would put first, of one or more.
const gk_Crossing& gk_FirstAlong(const gkLineSeg& seg, const std::vector<gk_Crossing>& crossings);

// Puts crossings in order along `seg` by exchanges. Not a stable sort: which of two crossings with the same key
// comes first follows from the exchanges made, and callers rely on that order.
void gk_OrderAlong(const gkLineSeg& seg, std::vector<gk_Crossing>& crossings);

#endif
