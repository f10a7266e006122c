// Insertion into the maps that keep results by the caller's argument, with random replacement when they are
// full.
#ifndef GK_CNTR_BOUNDED_MAP_H
#define GK_CNTR_BOUNDED_MAP_H

#include "cntr/eviction.h"

#include <cstddef>
#include <utility>

// Inserts a key that the map does not hold. Up to limit + 1 entries are kept: the one beyond the limit is
// meant. A full map loses the entry at a random position in key order; its size stays.
template <class Map>
void gk_InsertBounded(Map& map, const typename Map::key_type& key, const typename Map::mapped_type& value,
                      std::size_t limit) {
    if (map.key_comp()(key, key))
        return; // a key with NaN has no place in the order and could never be found again
    if (map.size() <= limit) {
        map.emplace(key, value);
        return;
    }
    const std::size_t evicted = gk_RandomIndex(map.size());
    Map next;
    std::size_t position = 0;
    for (const auto& entry : map) {
        if (position++ == evicted) {
            next.emplace(key, value);
        } else {
            next.insert(entry);
        }
    }
    map = std::move(next);
}

#endif
