#include "cntr/search/segment_cells.h"

#include "cntr/search/inside_parity.h"

namespace {

struct Span {
    std::size_t first;
    std::size_t last;
};

// The columns of one row that a long segment comes near: of its part within the margin of the row, and the
// margin again to both sides of that.
Span columnsInRow(const gk_CellGrid& grid, std::size_t row, const gkVector<2>& a, const gkVector<2>& b) {
    const double low = std::min(a.y(), b.y());
    const double high = std::max(a.y(), b.y());
    const double slope = (b.x() - a.x()) / (b.y() - a.y());
    const auto xAt = [&](double y) { return a.x() + (std::min(std::max(y, low), high) - a.y()) * slope; };
    const double bottom = grid.bottomOf(row);
    const double x1 = xAt(bottom - grid.margin());
    const double x2 = xAt(bottom + grid.height() + grid.margin());
    return {grid.columnOf(std::min(x1, x2) - 2.0 * grid.margin()),
            grid.columnOf(std::max(x1, x2) + 2.0 * grid.margin())};
}

// Calls visit(cell) for every cell that the segment comes nearer to than the margin.
template <class Visit>
void eachCellNear(const gk_CellGrid& grid, const gkVector<2>& a, const gkVector<2>& b, Visit visit) {
    const gk_Box box = gk_Box::of(a, b).grownBy(grid.margin());
    const Span rows = {grid.rowOf(box.y0), grid.rowOf(box.y1)};
    const Span columns = {grid.columnOf(box.x0), grid.columnOf(box.x1)};
    const bool isLong = rows.last > rows.first + 1 && columns.last > columns.first + 1;
    for (std::size_t row = rows.first; row <= rows.last; ++row) {
        const Span span = isLong ? columnsInRow(grid, row, a, b) : columns;
        for (std::size_t column = span.first; column <= span.last; ++column)
            visit(row * grid.columns() + column);
    }
}

template <class Visit> void eachPassage(const gk_CellGrid& grid, const gk_Segments& outline, Visit visit) {
    for (std::size_t k = 0; k < outline.size(); ++k)
        eachCellNear(grid, outline.first(k), outline.second(k), [&](std::size_t cell) { visit(cell, k); });
}

} // namespace

gk_SegmentCells::gk_SegmentCells(const gk_CellGrid& grid, const gk_Segments& outline)
    : grid_(grid), marks_(grid.size() + 1, 0) {
    list(outline);
}

gk_SegmentCells gk_SegmentCells::withParity(const gk_Segments& outline) const {
    gk_SegmentCells cells = *this;
    cells.markOddMiddles(outline);
    cells.knowsParity_ = true;
    return cells;
}

// Counts, then fills from the back, so that each list's beginning is what is left.
void gk_SegmentCells::list(const gk_Segments& outline) {
    eachPassage(grid_, outline, [&](std::size_t cell, std::size_t) { ++marks_[cell]; });
    std::uint32_t end = 0;
    for (std::uint32_t& mark : marks_) mark = end += mark;
    segments_.resize(end);
    for (std::size_t k = outline.size(); k-- > 0;) {
        eachCellNear(grid_, outline.first(k), outline.second(k),
                     [&](std::size_t cell) { segments_[--marks_[cell]] = static_cast<std::uint32_t>(k); });
    }
    for (std::uint32_t& mark : marks_) mark *= 2;
}

// From the first cell of a row whose middle has a crossing on its left, the parity changes to the right.
void gk_SegmentCells::markOddMiddles(const gk_Segments& outline) {
    std::vector<std::uint8_t> toggles(grid_.size(), 0);
    for (std::size_t k = 0; k < outline.size(); ++k)
        toggleMiddles(toggles, outline.first(k), outline.second(k));
    for (std::size_t row = 0; row < grid_.rows(); ++row) {
        std::uint32_t odd = 0;
        for (std::size_t cell = row * grid_.columns(); cell < (row + 1) * grid_.columns(); ++cell)
            marks_[cell] |= odd ^= toggles[cell];
    }
}

// In every row that the segment passes the middle height of, toggles the first cell whose middle has the
// crossing on its left.
void gk_SegmentCells::toggleMiddles(std::vector<std::uint8_t>& toggles, const gkVector<2>& a,
                                    const gkVector<2>& b) const {
    if (a.y() == b.y()) return;
    const std::size_t lastRow = grid_.rowOf(std::max(a.y(), b.y()));
    for (std::size_t row = grid_.rowOf(std::min(a.y(), b.y())); row <= lastRow; ++row) {
        const double y = grid_.middleOf(0, row).y();
        if (!gk_InsideParity::spansHeight(a, b, gkVector<2>(0.0, y))) continue;
        const double x = a.x() + (y - a.y()) * ((b.x() - a.x()) / (b.y() - a.y()));
        const auto isLeftOfMiddle = [&](std::size_t column) {
            return !gk_InsideParity::crossesRayRight(a, b, grid_.middleOf(column, row));
        };
        std::size_t column = grid_.columnAfter(x);
        while (column > 0 && isLeftOfMiddle(column - 1)) --column;
        while (column < grid_.columns() && !isLeftOfMiddle(column)) ++column;
        if (column < grid_.columns()) toggles[row * grid_.columns() + column] ^= 1u;
    }
}
