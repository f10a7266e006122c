// Real outlines, from the picture that the demo measures.
#ifndef GK_BENCH_PICTURE_H
#define GK_BENCH_PICTURE_H

#include "bench/plain.h"

namespace bench {

// Whether build/demo/coins.png is there: ./dev demo fetches it.
bool hasPicture();

// Of the objects brighter than the mean, the longest outline at full resolution.
Points longestOutlineOfPicture();

} // namespace bench

#endif
