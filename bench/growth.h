// How times grow with the number of vertices.
#ifndef GK_BENCH_GROWTH_H
#define GK_BENCH_GROWTH_H

#include "bench/report.h"

#include <iosfwd>
#include <vector>

namespace bench {

// The slope of log time over log n from 1 000 to the greatest size measured, for every operation, shape and
// mode.
void printGrowth(std::ostream& out, const std::vector<Result>& results);

} // namespace bench

#endif
