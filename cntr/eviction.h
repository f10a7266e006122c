// The per-thread random source that picks the entry to replace in a full map.
#ifndef GK_CNTR_EVICTION_H
#define GK_CNTR_EVICTION_H

#include <cstddef>

// A random index below `size`, from the calling thread's generator; the generator starts with seed 1 at the
// thread's first use, so a single-threaded program evicts reproducibly.
std::size_t gk_RandomIndex(std::size_t size);

#endif
