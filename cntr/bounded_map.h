// Insertion into the maps that keep results by the caller's argument, with random replacement when they are
// full.
#ifndef GK_CNTR_BOUNDED_MAP_H
#define GK_CNTR_BOUNDED_MAP_H

#include "cntr/eviction.h"

#include <cstddef>

// Inserts a key that the map does not hold. Up to limit + 1 entries are kept: the one beyond the limit is
// meant. A full map loses the entry at a random position in key order; its size stays.
template <class Less, class Map, class Key, class Value>
void gk_InsertBounded(Map& map, const Key& key, const Value& value, std::size_t limit) {
    if (Less()(key, key)) return; // a key with NaN has no place in the order and could never be found again
    // What is left out makes room for what comes in, so no memory is asked for in between.
    if (map.size() > limit) map.erase(gk_RandomIndex(map.size()));
    map.insert(key, value);
}

#endif
