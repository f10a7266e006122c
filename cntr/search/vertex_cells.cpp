#include "cntr/search/vertex_cells.h"

#include "cntr/index.h"
#include "cntr/search/magnitude.h"
#include "platform/core/math/vector_ops.h"
#include "platform/system/assert.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

// Cells stop well inside the 64-bit range, so that a neighbour of the outermost cell still has a number.
constexpr double kOutermostCell = 4611686018427387904.0; // 2^62

std::int64_t roundedHalvesUp(double q) {
    if (!(q >= 0.0)) gstd_assert_("q >= 0", "cntr/vertex_grid", 31);
    const double rounded = q + 0.5;
    return static_cast<std::int64_t>(rounded < kOutermostCell ? rounded : kOutermostCell);
}

struct Cell {
    std::int64_t column;
    std::int64_t row;
};

std::int64_t cellOfQuotient(double q) { return q < 0.0 ? -roundedHalvesUp(-q) : roundedHalvesUp(q); }

// Both divisions in one.
Cell cellOf(const gkVector<2>& p, double size) {
    const gk_TwoDoubles quotients = gk_TwoOf(p) / gk_TwoDoubles(size);
    return {cellOfQuotient(quotients.first()), cellOfQuotient(quotients.second())};
}

// Collects vertices of the block around a point's cell.
class Block {
public:
    Block(const gkVector<2>& p, double tolerance)
        : p_(p), tolerance_(tolerance), middle_(cellOf(p, tolerance)) {}

    bool reaches(const gkVector<2>& vertex) const { return gk_VectorOps::distance(vertex, p_) < tolerance_; }
    bool holds(const Cell& cell) const {
        return middle_.column - 1 <= cell.column && cell.column <= middle_.column + 1 &&
               middle_.row - 1 <= cell.row && cell.row <= middle_.row + 1;
    }

    // A vertex that is reached, in a cell of the block.
    void add(const Cell& cell, std::size_t index) {
        if (found_.empty()) found_.reserve(kUsual);
        found_.emplace_back(cell.column, cell.row, gk_IndexAs<int>(index));
    }

    std::vector<int> ordered() {
        std::sort(found_.begin(), found_.end());
        std::vector<int> indices;
        indices.reserve(found_.size());
        for (const Found& found : found_) indices.push_back(std::get<2>(found));
        return indices;
    }

private:
    using Found = std::tuple<std::int64_t, std::int64_t, int>; // column, row, index

    static constexpr std::size_t kUsual = 16; // found, for whom memory is asked for once

    gkVector<2> p_;
    double tolerance_;
    Cell middle_;
    std::vector<Found> found_;
};

} // namespace

std::int64_t gk_GridCell(double value, double size) { return cellOfQuotient(value / size); }

bool gk_VertexCells::holds(double tolerance) const {
    return std::any_of(tolerances_.begin(), tolerances_.end(),
                       [&](double known) { return !(known < tolerance) && !(known > tolerance); });
}

std::vector<int> gk_VertexCells::near(const std::vector<gkVector<2>>& points, const gk_VertexTree* tree,
                                      const gkVector<2>& p, double tolerance) {
    // Squares of lesser distances lose bits: what lies beyond a tiny tolerance may come out within it.
    const bool isOrdinary = tolerance * tolerance >= kShortestSquare && tolerance <= kGreatestCoordinate;
    const bool isTreeEnough = tree != nullptr && gk_IsModerate(p) && isOrdinary;
    if (isTreeEnough && holds(tolerance)) {
        // Nearer than the tolerance as it is computed is nearer than a little more.
        const double reach = tolerance + gk_DistanceSlack(std::max(tree->reach(), gk_Reach(p)) + tolerance);
        const gk_Box around = gk_Box::of(p, p).grownBy(reach);
        Block block(p, tolerance);
        tree->allOverlapping(around, [&](std::size_t i) {
            if (!around.holds(points[i]) || !block.reaches(points[i])) return;
            const Cell cell = cellOf(points[i], tolerance);
            if (block.holds(cell)) block.add(cell, i);
        });
        return block.ordered();
    }
    std::vector<Cell> cells;
    cells.reserve(points.size());
    for (const gkVector<2>& point : points) cells.push_back(cellOf(point, tolerance));
    if (!holds(tolerance)) tolerances_.push_back(tolerance);
    Block block(p, tolerance);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (block.holds(cells[i]) && block.reaches(points[i])) block.add(cells[i], i);
    return block.ordered();
}
