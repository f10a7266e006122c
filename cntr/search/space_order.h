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

// How large the boxes are, their widths and heights together, beside as many squares that share the area of the
// box around all.
double gk_SizeBesideEven(const std::vector<gk_Box>& boxes, const gk_Box& all);

// The numbers of boxes in an order in which neighbours are near each other: their own order where those that
// follow each other are as near as squares of a grid would be, which an outline's pieces mostly are; else that
// of space.
std::vector<std::uint32_t> gk_OrderInSpace(const std::vector<gk_Box>& boxes, const gk_Box& all);

#endif
