// Which segments run through each cell of a grid, and whether the cell's middle is inside.
#ifndef GK_CNTR_SEARCH_SEGMENT_CELLS_H
#define GK_CNTR_SEARCH_SEGMENT_CELLS_H

#include "cntr/search/cell_grid.h"

#include <cstdint>
#include <vector>

// Some 18 bytes per segment at most: 4 for a cell and 4 for each passage.
class gk_SegmentCells {
public:
    // Of the outline that the grid is of.
    gk_SegmentCells(const gk_CellGrid& grid, const gk_Segments& outline);

    const gk_CellGrid& grid() const { return grid_; }

    // The segments nearer to the cell than the grid's margin, ascending, and perhaps some that are a little
    // farther away.
    class List {
    public:
        List(const std::uint32_t* begin, const std::uint32_t* end) : begin_(begin), end_(end) {}
        const std::uint32_t* begin() const { return begin_; }
        const std::uint32_t* end() const { return end_; }
        std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
        bool empty() const { return begin_ == end_; }

    private:
        const std::uint32_t* begin_;
        const std::uint32_t* end_;
    };
    List segmentsIn(std::size_t column, std::size_t row) const {
        const std::uint32_t* const marks = marks_.data() + row * grid_.columns() + column;
        return {segments_.data() + marks[0] / 2, segments_.data() + marks[1] / 2};
    }

    // The same cells of a closed outline, with the parity of their middles, which takes as long again to find
    // and only the inside question needs.
    gk_SegmentCells withParity(const gk_Segments& outline) const;
    bool knowsParity() const { return knowsParity_; }
    // Whether the number of crossings between the cell's middle and the outside is odd.
    bool isMiddleOdd(std::size_t column, std::size_t row) const {
        return (marks_[row * grid_.columns() + column] & 1u) != 0;
    }

private:
    void list(const gk_Segments& outline);
    void markOddMiddles(const gk_Segments& outline);
    void toggleMiddles(std::vector<std::uint8_t>& toggles, const gkVector<2>& a, const gkVector<2>& b) const;

    gk_CellGrid grid_;
    bool knowsParity_ = false;
    std::vector<std::uint32_t> marks_; // twice the place where a cell's list begins, and 1 for an odd middle
    std::vector<std::uint32_t> segments_;
};

#endif
