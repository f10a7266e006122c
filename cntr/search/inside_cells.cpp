#include "cntr/search/inside_cells.h"

#include "cntr/search/inside_parity.h"
#include "platform/core/shapes/line_ops.h"

namespace {

// More segments than these in a cell cost more than the ray's own direction.
constexpr std::size_t kMostAround = 2048;

} // namespace

gk_Inside gk_InsideByCells(const gk_Segments& outline, const gk_SegmentCells& cells,
                           const gk_InsideCertificate& certificate, const gkVector<2>& point) {
    const gk_CellGrid& grid = cells.grid();
    if (!grid.box().holds(point)) return gk_Inside::eUnknown;
    const std::size_t column = grid.columnOf(point.x());
    const std::size_t row = grid.rowOf(point.y());
    const gk_SegmentCells::List segments = cells.segmentsIn(column, row);
    if (segments.size() > kMostAround) return gk_Inside::eUnknown;
    bool odd = cells.isMiddleOdd(column, row);
    if (!segments.empty()) {
        const gkVector<2> middle = grid.middleOf(column, row);
        const gk_InsideMargins& margins = certificate.margins();
        for (const std::uint32_t k : segments) {
            const gkVector<2>& a = outline.first(k);
            const gkVector<2>& b = outline.second(k);
            if (margins.isVertexNear(a, point) || margins.isVertexNear(b, point)) return gk_Inside::eUnknown;
            if (gk_Box::of(a, b).grownBy(margins.segment).holds(point) &&
                gk_LineOps::distToPoint(gkLineSeg(a, b), point) <= margins.segment)
                return gk_Inside::eUnknown;
            odd = odd != gk_InsideParity::crossesWay(a, b, middle, point);
        }
    }
    return odd ? gk_Inside::eInside : gk_Inside::eOutside;
}
