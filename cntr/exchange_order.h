// The order that sorting by exchanges leaves, equal keys included, without making most of the exchanges.
#ifndef GK_CNTR_EXCHANGE_ORDER_H
#define GK_CNTR_EXCHANGE_ORDER_H

#include <cstddef>
#include <utility>
#include <vector>

// The exchanges from place `begin` on as they are written: for each i in turn, and each j behind it, items i
// and j change places if key i is greater than key j.
template <class Keys, class Items>
void gk_Exchange(Keys& keys, Items& items, std::size_t count, std::size_t begin = 0) {
    for (std::size_t i = begin; i + 1 < count; ++i) {
        for (std::size_t j = i + 1; j < count; ++j) {
            if (!(keys[i] > keys[j])) continue;
            std::swap(keys[i], keys[j]);
            std::swap(items[i], items[j]);
        }
    }
}

// Entry k tells which item stands at place k after the exchanges. Equal keys do not keep their order; a NaN
// stays where it is. Cost: O(n log n) for distinct keys and for such as go up or down, O(n^2) at worst.
std::vector<std::size_t> gk_ExchangeOrder(const std::vector<double>& keys);

// The place of the item that comes first. Cost: O(n).
std::size_t gk_FirstByExchange(const std::vector<double>& keys);

#endif
