// A grid over an outline that knows of most places at once whether they are inside.
#ifndef GK_CNTR_SEARCH_INSIDE_CELLS_H
#define GK_CNTR_SEARCH_INSIDE_CELLS_H

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segment_tree.h"

#include <cstdint>
#include <optional>
#include <vector>

// Each cell has the parity of its middle, and a mark when the outline comes so near to the cell that a point in
// it needs more: the crossings between it and the middle, from the tree, and the certificate's distances. Cells
// are as narrow and as high as the outline runs steep and flat, so the teeth of a comb get a cell each. 2 bytes
// per segment.
class gk_InsideCells {
public:
    // None for an outline without an extent.
    static std::optional<gk_InsideCells> of(const gk_Segments& outline, const gk_SegmentTree& tree,
                                            const gk_InsideCertificate& certificate);

    // Of a point that the certificate allows rays from.
    gk_Inside at(const gk_Segments& outline, const gk_SegmentTree& tree,
                 const gk_InsideCertificate& certificate, const gkVector<2>& point) const;

private:
    static constexpr std::uint8_t kNear = 1; // bit: the outline is near
    static constexpr std::uint8_t kOdd = 2;  // bit: the middle is inside

    gk_InsideCells() = default;

    void shape(const gk_Segments& outline, double narrowest);
    void markNear(const gkVector<2>& a, const gkVector<2>& b, double margin);
    void markNearRow(std::size_t row, const gkVector<2>& a, const gkVector<2>& b, double margin);
    void toggleMiddles(const gkVector<2>& a, const gkVector<2>& b);
    void settleMiddles();
    gk_Inside fromMiddle(const gk_Segments& outline, const gk_SegmentTree& tree,
                         const gk_InsideCertificate& certificate, const gkVector<2>& point, std::size_t column,
                         std::size_t row) const;

    std::size_t columnOf(double x) const;
    std::size_t rowOf(double y) const;
    gkVector<2> middleOf(std::size_t column, std::size_t row) const;
    std::uint8_t& cell(std::size_t column, std::size_t row) { return cells_[row * columns_ + column]; }

    gk_Box box_{};
    std::size_t columns_ = 0;
    std::size_t rows_ = 0;
    double width_ = 0.0; // of a cell
    double height_ = 0.0;
    std::vector<std::uint8_t> cells_;
};

#endif
