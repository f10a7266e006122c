#include "cntr/vertex_grid.h"

#include "cntr/index.h"
#include "platform/core/math/vector_ops.h"
#include "platform/system/assert.h"

#include <utility>

namespace {

// Cells stop well inside the 64-bit range, so that a neighbour of the outermost cell still has a number.
constexpr double kOutermostCell = 4611686018427387904.0; // 2^62

std::int64_t roundedHalvesUp(double q) {
    if (!(q >= 0.0)) gstd_assert_("q >= 0", "cntr/vertex_grid", 31);
    const double rounded = q + 0.5;
    return static_cast<std::int64_t>(rounded < kOutermostCell ? rounded : kOutermostCell);
}

} // namespace

std::int64_t gk_GridCell(double value, double size) {
    const double q = value / size;
    return q < 0.0 ? -roundedHalvesUp(-q) : roundedHalvesUp(q);
}

const gk_VertexGrids::Grid* gk_VertexGrids::find(double tolerance) const {
    for (const Grid& known : grids_) {
        if (!(known.size < tolerance) && !(known.size > tolerance)) return &known;
    }
    return nullptr;
}

const gk_VertexGrids::Grid& gk_VertexGrids::grid(const std::vector<gkVector<2>>& points, double tolerance) {
    if (const Grid* known = find(tolerance)) return *known;
    Grid fresh{tolerance, {}};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Cell cell(gk_GridCell(points[i].x(), tolerance), gk_GridCell(points[i].y(), tolerance));
        fresh.cells[cell].push_back(gk_IndexAs<int>(i));
    }
    grids_.push_back(std::move(fresh));
    return grids_.back();
}

std::vector<int> gk_VertexGrids::near(const std::vector<gkVector<2>>& points, const gkVector<2>& p,
                                      double tolerance) {
    const Grid& cells = grid(points, tolerance);
    const std::int64_t column = gk_GridCell(p.x(), tolerance);
    const std::int64_t row = gk_GridCell(p.y(), tolerance);
    std::vector<int> found;
    for (std::int64_t u = column - 1; u <= column + 1; ++u) {
        for (std::int64_t r = row - 1; r <= row + 1; ++r) {
            const auto cell = cells.cells.find(Cell(u, r));
            if (cell == cells.cells.end()) continue;
            for (const int index : cell->second) {
                if (gk_VectorOps::distance(points[static_cast<std::size_t>(index)], p) < tolerance) {
                    found.push_back(index);
                }
            }
        }
    }
    return found;
}
