// Puts places in an order in which neighbours are near each other in space.
#ifndef GK_CNTR_SEARCH_SPACE_ORDER_H
#define GK_CNTR_SEARCH_SPACE_ORDER_H

#include "cntr/search/box.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class gk_SpaceOrder {
public:
    // Places will lie in the box.
    explicit gk_SpaceOrder(const gk_Box& box, std::size_t count);

    // The next one.
    void add(const gkVector<2>& place);

    // The numbers of the places along Hilbert's curve through 2^16 x 2^16 cells, the lower first within a cell:
    // the same order on every machine.
    std::vector<std::uint32_t> sorted() const;

private:
    gk_Box box_;
    double columnsPerUnit_;
    double rowsPerUnit_;
    std::vector<std::uint32_t> positions_;
};

#endif
