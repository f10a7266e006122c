// The vertices strictly nearer to a point than a tolerance, in the order of the 3 x 3 cells around the point.
#ifndef GK_TESTS_ORACLE_VERTEX_CELLS_H
#define GK_TESTS_ORACLE_VERTEX_CELLS_H

#include "tests/oracle/oracle.h"

#include <cstdint>

namespace oracle {

// The integer part of |q| + 0.5 with the sign of q; cells far out share the one at 2^62.
inline std::int64_t cellOf(double value, double size) {
    const double outermost = 4611686018427387904.0;
    const double q = value / size;
    if (q != q) throw Refusal{"assertion 31"};
    const double rounded = (q < 0.0 ? -q : q) + 0.5;
    const auto cell = static_cast<std::int64_t>(rounded < outermost ? rounded : outermost);
    return q < 0.0 ? -cell : cell;
}

struct Cell {
    std::int64_t column;
    std::int64_t row;
};

inline Cell cellOf(const gkVector<2>& p, double size) { return {cellOf(p.x(), size), cellOf(p.y(), size)}; }

inline std::vector<int> vertexIndex(const Points& points, const gkVector<2>& p, double tolerance) {
    needsTwo(points);
    std::vector<Cell> cells;
    for (const gkVector<2>& vertex : points) cells.push_back(cellOf(vertex, tolerance));
    const Cell own = cellOf(p, tolerance);
    std::vector<int> found;
    for (std::int64_t column = own.column - 1; column <= own.column + 1; ++column) {
        for (std::int64_t row = own.row - 1; row <= own.row + 1; ++row) {
            for (std::size_t j = 0; j < points.size(); ++j) {
                const bool inCell = cells[j].column == column && cells[j].row == row;
                if (inCell && points[j].distance(p) < tolerance) found.push_back(static_cast<int>(j));
            }
        }
    }
    return found;
}

} // namespace oracle

#endif
