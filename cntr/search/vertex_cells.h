// The vertices near a point, in the order of square cells around it.
#ifndef GK_CNTR_SEARCH_VERTEX_CELLS_H
#define GK_CNTR_SEARCH_VERTEX_CELLS_H

#include "cntr/search/vertex_tree.h"

#include <cstdint>
#include <vector>

// The cell of coordinate `value` for cells of width `size`: the nearest integer to the quotient, halves away
// from zero, taken as the integer part of |q| + 0.5 (so 0.49999999999999994 lands in cell 1). Cells are 64 bits
// wide and saturate: with 32 bits a tolerance of 1e-6 would overflow at coordinate 2148. A NaN quotient fires
// assertion 31.
std::int64_t gk_GridCell(double value, double size);

class gk_VertexCells {
public:
    // Indices of all points strictly nearer to p than the tolerance: cell by cell of the 3 x 3 block around p,
    // columns outside, then by index within a cell; not sorted overall. The first question with a tolerance
    // puts every vertex into its cell, which is where a NaN is met; later ones ask the tree, if there is one.
    std::vector<int> near(const std::vector<gkVector<2>>& points, const gk_VertexTree* tree,
                          const gkVector<2>& p, double tolerance);

    // This tolerance has been asked for already.
    bool holds(double tolerance) const;
    // The number of distinct tolerances asked for.
    std::size_t count() const { return tolerances_.size(); }

private:
    std::vector<double> tolerances_;
};

#endif
