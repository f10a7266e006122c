// The segments of an outline without which no two of it cross, for outlines whose boxes tell nothing.
#ifndef GK_CNTR_SEARCH_CROSSING_CANDIDATES_H
#define GK_CNTR_SEARCH_CROSSING_CANDIDATES_H

#include "cntr/search/segments.h"
#include "platform/core/shapes/line_seg.h"

#include <vector>

// Whether two segments cross depends on their ends alone. So of segments with the same ends one will do; one
// without length, or too long or too little a number for its direction to be compared with any other's, crosses
// none; and where all point along one line, none crosses another. What is left is in no particular order.
std::vector<gkLineSeg> gk_CrossingCandidates(const gk_Segments& outline);

#endif
