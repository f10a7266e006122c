// The cells around a point, taken in one column or row at a time.
#ifndef GK_CNTR_SEARCH_CELL_BLOCK_H
#define GK_CNTR_SEARCH_CELL_BLOCK_H

#include "cntr/search/segment_cells.h"

#include <limits>

// Begins with the point's own cell. Grows to the side whose border is nearest, so that few cells do.
class gk_CellBlock {
public:
    // The point lies in the grid's box.
    gk_CellBlock(const gk_CellGrid& grid, const gkVector<2>& point)
        : grid_(grid), point_(point), left_(grid.columnOf(point.x())), right_(left_),
          bottom_(grid.rowOf(point.y())), top_(bottom_) {
        measure();
    }

    // No part of a segment that is listed in none of the block's cells is nearer to the point. Infinite when
    // the block is the whole grid.
    double clearance() const { return std::min(std::min(toLeft_, toRight_), std::min(toBottom_, toTop_)); }

    template <class Visit> void eachCell(Visit visit) const { visitAll(left_, right_, bottom_, top_, visit); }

    // Takes the cells beyond the nearest border in and calls visit(column, row) for each.
    template <class Visit> void grow(Visit visit) {
        const double nearest = clearance();
        if (nearest == toLeft_) {
            --left_;
            visitAll(left_, left_, bottom_, top_, visit);
        } else if (nearest == toRight_) {
            ++right_;
            visitAll(right_, right_, bottom_, top_, visit);
        } else if (nearest == toBottom_) {
            --bottom_;
            visitAll(left_, right_, bottom_, bottom_, visit);
        } else {
            ++top_;
            visitAll(left_, right_, top_, top_, visit);
        }
        measure();
    }

private:
    template <class Visit>
    static void visitAll(std::size_t left, std::size_t right, std::size_t bottom, std::size_t top,
                         Visit& visit) {
        for (std::size_t row = bottom; row <= top; ++row)
            for (std::size_t column = left; column <= right; ++column) visit(column, row);
    }

    // Borders are computed a few roundings off; lists reach the margin beyond them, which is more.
    void measure() {
        constexpr double kNone = std::numeric_limits<double>::infinity();
        toLeft_ = left_ == 0 ? kNone : point_.x() - grid_.leftOf(left_);
        toRight_ = right_ + 1 == grid_.columns() ? kNone : grid_.leftOf(right_ + 1) - point_.x();
        toBottom_ = bottom_ == 0 ? kNone : point_.y() - grid_.bottomOf(bottom_);
        toTop_ = top_ + 1 == grid_.rows() ? kNone : grid_.bottomOf(top_ + 1) - point_.y();
    }

    const gk_CellGrid& grid_;
    gkVector<2> point_;
    std::size_t left_;
    std::size_t right_;
    std::size_t bottom_;
    std::size_t top_;
    double toLeft_ = 0.0;
    double toRight_ = 0.0;
    double toBottom_ = 0.0;
    double toTop_ = 0.0;
};

#endif
