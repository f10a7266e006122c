// Times over sizes as a picture.
#ifndef GK_BENCH_PLOT_H
#define GK_BENCH_PLOT_H

#include "bench/report.h"

#include <filesystem>
#include <vector>

namespace bench {

// One panel for each of the main operations that were measured at two sizes or more, both axes logarithmic:
// ours, the best peer at each size, the plain definition. Drawn on the library's own surface.
void plot(const std::filesystem::path& file, const std::vector<Result>& results);

} // namespace bench

#endif
