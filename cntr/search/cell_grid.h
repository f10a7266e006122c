// A grid of cells over an outline: where cells are and how large.
#ifndef GK_CNTR_SEARCH_CELL_GRID_H
#define GK_CNTR_SEARCH_CELL_GRID_H

#include "cntr/search/box.h"
#include "cntr/search/segments.h"

#include <cstddef>
#include <optional>

// Cells are as narrow and as high as the outline runs steep and flat, so the teeth of a comb get a cell each.
class gk_CellGrid {
public:
    // None for an outline beyond the bounds of magnitude.h, or with an extent of a few narrowest cells only.
    static std::optional<gk_CellGrid> of(const gk_Segments& outline);

    const gk_Box& box() const { return box_; }
    // Greatest |coordinate|.
    double reach() const { return reach_; }
    std::size_t columns() const { return columns_; }
    std::size_t rows() const { return rows_; }
    std::size_t size() const { return columns_ * rows_; }
    // What lies nearer to a cell than this must be found there.
    double margin() const { return margin_; }
    // Segments run through a good part of the cells.
    bool isCrowded() const { return crowded_; }
    // Where cells are long, segments are, and a vertex near a place may be many narrow cells away.
    bool isNearlySquare() const { return width_ <= 4.0 * height_ && height_ <= 4.0 * width_; }

    // The column or row that holds a coordinate, the outermost for one beyond the box. Monotone.
    std::size_t columnOf(double x) const { return clamped((x - box_.x0) * columnsPerUnit_, columns_); }
    std::size_t rowOf(double y) const { return clamped((y - box_.y0) * rowsPerUnit_, rows_); }
    // Where a column or row begins, a few roundings off.
    double leftOf(std::size_t column) const { return box_.x0 + static_cast<double>(column) * width_; }
    double bottomOf(std::size_t row) const { return box_.y0 + static_cast<double>(row) * height_; }
    double height() const { return height_; }
    gkVector<2> middleOf(std::size_t column, std::size_t row) const {
        return gkVector<2>(box_.x0 + (static_cast<double>(column) + 0.5) * width_,
                           box_.y0 + (static_cast<double>(row) + 0.5) * height_);
    }
    // The first column whose middle may lie to the right of x, some roundings off; the count for none.
    std::size_t columnAfter(double x) const {
        return clamped((x - box_.x0) * columnsPerUnit_ + 0.5, columns_ + 1);
    }

private:
    gk_CellGrid() = default;

    void shape(const gk_Segments& outline);

    static std::size_t clamped(double position, std::size_t count) {
        if (!(position > 0.0)) return 0;
        return position < static_cast<double>(count) ? static_cast<std::size_t>(position) : count - 1;
    }

    gk_Box box_{};
    double reach_ = 0.0;
    double margin_ = 0.0;
    std::size_t columns_ = 0;
    std::size_t rows_ = 0;
    double width_ = 0.0; // of a cell
    double height_ = 0.0;
    double columnsPerUnit_ = 0.0;
    double rowsPerUnit_ = 0.0;
    bool crowded_ = false;
};

#endif
