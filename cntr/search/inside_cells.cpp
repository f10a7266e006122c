#include "cntr/search/inside_cells.h"

#include "cntr/search/inside_parity.h"
#include "platform/core/shapes/line_ops.h"

namespace {

constexpr double kCellsPerSegment = 2.0;
// Cells that the segments may run through beyond the first of each, per segment: bounds the work of building.
constexpr double kMostPassages = 6.0;
// More segments than these around a point cost more than the ray's own direction.
constexpr std::size_t kMostAround = 256;

std::size_t clampedCell(double position, std::size_t count) {
    if (!(position > 0.0)) return 0;
    return position < static_cast<double>(count) ? static_cast<std::size_t>(position) : count - 1;
}

std::size_t cellCount(double extent, double size, double most) {
    return static_cast<std::size_t>(std::max(1.0, std::min(extent / size, most)));
}

} // namespace

std::optional<gk_InsideCells> gk_InsideCells::of(const gk_Segments& outline, const gk_SegmentTree& tree,
                                                 const gk_InsideCertificate& certificate) {
    gk_InsideCells cells;
    cells.box_ = tree.box();
    // Vertices need the greater distance; the slack is for the cell that a point's coordinates round into.
    const double margin = certificate.vertexDistance() + gk_DistanceSlack(tree.reach());
    if (!(cells.box_.x1 - cells.box_.x0 > 4.0 * margin) || !(cells.box_.y1 - cells.box_.y0 > 4.0 * margin))
        return std::nullopt;
    cells.shape(outline, 2.0 * margin);
    for (std::size_t k = 0; k < outline.size(); ++k) {
        cells.markNear(outline.first(k), outline.second(k), margin);
        cells.toggleMiddles(outline.first(k), outline.second(k));
    }
    cells.settleMiddles();
    return cells;
}

// With A and B the sums of the segments' widths and heights, a grid of w x h cells is passed through A / w + B
// / h times. For a given number of cells that is least when w : h = A : B.
void gk_InsideCells::shape(const gk_Segments& outline, double narrowest) {
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
    columns_ = cellCount(boxWidth, std::max(across * scale, narrowest), most);
    rows_ = cellCount(boxHeight, std::max(upright * scale, narrowest), most);
    width_ = boxWidth / static_cast<double>(columns_);
    height_ = boxHeight / static_cast<double>(rows_);
    cells_.assign(columns_ * rows_, 0);
}

std::size_t gk_InsideCells::columnOf(double x) const { return clampedCell((x - box_.x0) / width_, columns_); }

std::size_t gk_InsideCells::rowOf(double y) const { return clampedCell((y - box_.y0) / height_, rows_); }

gkVector<2> gk_InsideCells::middleOf(std::size_t column, std::size_t row) const {
    return gkVector<2>(box_.x0 + (static_cast<double>(column) + 0.5) * width_,
                       box_.y0 + (static_cast<double>(row) + 0.5) * height_);
}

void gk_InsideCells::markNear(const gkVector<2>& a, const gkVector<2>& b, double margin) {
    const gk_Box box = gk_Box::of(a, b).grownBy(margin);
    const std::size_t firstRow = rowOf(box.y0);
    const std::size_t lastRow = rowOf(box.y1);
    if (lastRow > firstRow + 1 && columnOf(box.x1) > columnOf(box.x0) + 1) {
        for (std::size_t row = firstRow; row <= lastRow; ++row) markNearRow(row, a, b, margin);
        return;
    }
    const std::size_t firstColumn = columnOf(box.x0);
    const std::size_t lastColumn = columnOf(box.x1);
    for (std::size_t row = firstRow; row <= lastRow; ++row)
        for (std::size_t column = firstColumn; column <= lastColumn; ++column) cell(column, row) |= kNear;
}

// The part of the segment that is within the margin of the row, and the margin again to both sides of it.
void gk_InsideCells::markNearRow(std::size_t row, const gkVector<2>& a, const gkVector<2>& b, double margin) {
    const gk_Box box = gk_Box::of(a, b);
    const double bottom = box_.y0 + static_cast<double>(row) * height_;
    const auto xAt = [&](double y) {
        const double within = std::min(std::max(y, box.y0), box.y1);
        return a.x() + (within - a.y()) * ((b.x() - a.x()) / (b.y() - a.y()));
    };
    const double x1 = xAt(bottom - margin);
    const double x2 = xAt(bottom + height_ + margin);
    const std::size_t lastColumn = columnOf(std::max(x1, x2) + 2.0 * margin);
    for (std::size_t column = columnOf(std::min(x1, x2) - 2.0 * margin); column <= lastColumn; ++column)
        cell(column, row) |= kNear;
}

// Marks, in every row that the segment passes the middle height of, the first cell whose middle has the
// crossing on its left: from there on to the right the parity changes.
void gk_InsideCells::toggleMiddles(const gkVector<2>& a, const gkVector<2>& b) {
    if (a.y() == b.y()) return;
    const gk_Box box = gk_Box::of(a, b);
    const std::size_t lastRow = rowOf(box.y1);
    for (std::size_t row = rowOf(box.y0); row <= lastRow; ++row) {
        const double y = middleOf(0, row).y();
        if (!gk_InsideParity::spansHeight(a, b, gkVector<2>(0.0, y))) continue;
        const double x = a.x() + (y - a.y()) * ((b.x() - a.x()) / (b.y() - a.y()));
        const auto isLeftOfMiddle = [&](std::size_t column) {
            return !gk_InsideParity::crossesRayRight(a, b, middleOf(column, row));
        };
        std::size_t column = clampedCell((x - box_.x0) / width_ + 0.5, columns_ + 1);
        while (column > 0 && isLeftOfMiddle(column - 1)) --column;
        while (column < columns_ && !isLeftOfMiddle(column)) ++column;
        if (column < columns_) cell(column, row) ^= kOdd;
    }
}

void gk_InsideCells::settleMiddles() {
    for (std::size_t row = 0; row < rows_; ++row) {
        for (std::size_t column = 1; column < columns_; ++column)
            cell(column, row) = static_cast<std::uint8_t>(cell(column, row) ^ (cell(column - 1, row) & kOdd));
    }
}

gk_Inside gk_InsideCells::at(const gk_Segments& outline, const gk_SegmentTree& tree,
                             const gk_InsideCertificate& certificate, const gkVector<2>& point) const {
    if (!box_.holds(point)) return gk_Inside::eUnknown;
    const std::size_t column = columnOf(point.x());
    const std::size_t row = rowOf(point.y());
    const std::uint8_t known = cells_[row * columns_ + column];
    if ((known & kNear) != 0) return fromMiddle(outline, tree, certificate, point, column, row);
    return (known & kOdd) != 0 ? gk_Inside::eInside : gk_Inside::eOutside;
}

gk_Inside gk_InsideCells::fromMiddle(const gk_Segments& outline, const gk_SegmentTree& tree,
                                     const gk_InsideCertificate& certificate, const gkVector<2>& point,
                                     std::size_t column, std::size_t row) const {
    const gkVector<2> middle = middleOf(column, row);
    const double margin = certificate.segmentDistance();
    const gk_Box around =
        gk_Box::of(point, point).grownBy(certificate.vertexDistance()).enclosing(gk_Box::of(point, middle));
    bool odd = (cells_[row * columns_ + column] & kOdd) != 0;
    std::size_t count = 0;
    const auto isTooNear = [&](const gkVector<2>& a, const gkVector<2>& b) {
        return certificate.isVertexNear(a, point) || certificate.isVertexNear(b, point) ||
               (gk_Box::of(a, b).grownBy(margin).holds(point) &&
                gk_LineOps::distToPoint(gkLineSeg(a, b), point) <= margin);
    };
    const bool unknown = tree.any([&](const gk_Box& box) { return box.overlaps(around); },
                                  [&](std::size_t run) {
                                      const gk_SegmentTree::Range range = tree.segmentsOf(run);
                                      for (std::size_t k = range.begin; k < range.end; ++k) {
                                          const gkVector<2>& a = outline.first(k);
                                          const gkVector<2>& b = outline.second(k);
                                          if (!gk_Box::of(a, b).overlaps(around)) continue;
                                          if (isTooNear(a, b)) return true;
                                          if (gk_InsideParity::crossesWay(a, b, middle, point)) odd = !odd;
                                      }
                                      count += gk_SegmentTree::kRun;
                                      return count > kMostAround;
                                  });
    if (unknown) return gk_Inside::eUnknown;
    return odd ? gk_Inside::eInside : gk_Inside::eOutside;
}
