#include "cntr/search/cell_grid.h"

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segment_tree.h"

namespace {

constexpr double kCellsPerSegment = 1.0;
// Cells that the segments may run through beyond the first of each, per segment: bounds the work of building.
constexpr double kMostPassages = 2.5;
// Passages per cell from which on most places have a segment near them.
constexpr double kCrowded = 0.25;

std::size_t cellCount(double extent, double size, double most) {
    return static_cast<std::size_t>(std::max(1.0, std::min(extent / size, most)));
}

} // namespace

// The margin is that of the certificate for the longest ray there can be, twice the box's diagonal; the slack
// is for the cell that a coordinate rounds into.
std::optional<gk_CellGrid> gk_CellGrid::of(const gk_Segments& outline) {
    const std::optional<gk_Box> box = gk_OutlineBox(outline);
    if (!box) return std::nullopt;
    gk_CellGrid grid;
    grid.box_ = *box;
    grid.reach_ = std::max(gk_Reach({box->x0, box->y0}), gk_Reach({box->x1, box->y1}));
    const double extent = (box->x1 - box->x0) + (box->y1 - box->y0);
    const gk_InsideCertificate certificate(outline.vertexCount(), {box->x0, box->y0}, 2.0 * extent, *box);
    grid.margin_ = certificate.margins().vertex + gk_DistanceSlack(grid.reach_);
    if (!(box->x1 - box->x0 > 4.0 * grid.margin_) || !(box->y1 - box->y0 > 4.0 * grid.margin_))
        return std::nullopt;
    grid.shape(outline);
    return grid;
}

// With A and B the sums of the segments' widths and heights, a grid of w x h cells is passed through A / w + B
// / h times. For a given number of cells that is least when w : h = A : B.
void gk_CellGrid::shape(const gk_Segments& outline) {
    double across = 0.0;
    double upright = 0.0;
    for (std::size_t k = 0; k < outline.size(); ++k) {
        across += std::fabs(outline.second(k).x() - outline.first(k).x());
        upright += std::fabs(outline.second(k).y() - outline.first(k).y());
    }
    const double boxWidth = box_.x1 - box_.x0;
    const double boxHeight = box_.y1 - box_.y0;
    const auto count = static_cast<double>(outline.size());
    const double most = kCellsPerSegment * count;
    const double scale =
        std::max(std::sqrt(boxWidth / across * (boxHeight / upright) / most), 2.0 / (kMostPassages * count));
    columns_ = cellCount(boxWidth, std::max(across * scale, 2.0 * margin_), most);
    rows_ = cellCount(boxHeight, std::max(upright * scale, 2.0 * margin_), most);
    width_ = boxWidth / static_cast<double>(columns_);
    height_ = boxHeight / static_cast<double>(rows_);
    columnsPerUnit_ = static_cast<double>(columns_) / boxWidth;
    rowsPerUnit_ = static_cast<double>(rows_) / boxHeight;
    crowded_ = across / width_ + upright / height_ > kCrowded * static_cast<double>(size());
}
