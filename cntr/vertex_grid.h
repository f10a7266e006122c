// Vertices sorted into square cells, one grid per tolerance asked for: finds those near a point without a scan.
#ifndef GK_CNTR_VERTEX_GRID_H
#define GK_CNTR_VERTEX_GRID_H

#include "platform/core/math/vector.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

// The cell of coordinate `value` for cells of width `size`: the nearest integer to the quotient, halves away
// from zero, taken as the integer part of |q| + 0.5 (so 0.49999999999999994 lands in cell 1). Cells are 64 bits
// wide and saturate: with 32 bits a tolerance of 1e-6 would overflow at coordinate 2148. A NaN quotient fires
// assertion 31.
std::int64_t gk_GridCell(double value, double size);

class gk_VertexGrids {
public:
    // Indices of all points strictly nearer to p than the tolerance: cell by cell of the 3 x 3 block around p,
    // columns outside, then by index within a cell; not sorted overall. Builds the tolerance's grid on its
    // first use.
    std::vector<int> near(const std::vector<gkVector<2>>& points, const gkVector<2>& p, double tolerance);

    // The grid of this tolerance has been built already.
    bool holds(double tolerance) const { return find(tolerance) != nullptr; }

    // The number of grids held, one per distinct tolerance.
    std::size_t count() const { return grids_.size(); }

private:
    using Cell = std::pair<std::int64_t, std::int64_t>; // column, row
    struct Grid {
        double size;
        std::map<Cell, std::vector<int>> cells;
    };

    const Grid* find(double tolerance) const;
    const Grid& grid(const std::vector<gkVector<2>>& points, double tolerance);

    std::vector<Grid> grids_;
};

#endif
