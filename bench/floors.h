// What each operation is held to.
#ifndef GK_BENCH_FLOORS_H
#define GK_BENCH_FLOORS_H

#include "bench/race.h"
#include "bench/shapes.h"

#include <optional>

namespace bench {

enum class Against { eBestPeer, ePlain };

// Ours may take this much of the other's time.
struct Floor {
    double ratio;
    Against against;
};

// The floor of an operation at a size, none where it only shows. Sizes 1 000 and 100 000 have those of the
// operation; at 10 and 100 the plain definition may not be faster by more than a tenth.
std::optional<Floor> floorOf(const std::string& operation, Kind kind, std::size_t n, Mode mode);

} // namespace bench

#endif
