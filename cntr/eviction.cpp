#include "cntr/eviction.h"

#include "platform/core/math/random.h"
#include "platform/core/math/real.h"
#include "platform/core/math/thread_local.h"

#include <algorithm>

std::size_t gk_RandomIndex(std::size_t size) {
    static gk_ThreadLocal<gkRandomUniform> generators([] { return new gkRandomUniform(1); });
    const long index = gfIFloor(generators.get().next(0.0, static_cast<double>(size)));
    return std::min(static_cast<std::size_t>(index), size - 1);
}
