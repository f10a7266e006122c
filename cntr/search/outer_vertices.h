// The few vertices that decide about boxes under transforms.
#ifndef GK_CNTR_SEARCH_OUTER_VERTICES_H
#define GK_CNTR_SEARCH_OUTER_VERTICES_H

#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/rect.h"

#include <cstddef>
#include <optional>
#include <vector>

// All vertices but those certainly deeper in the convex hull than a slack of 128 u M, with u = 2^-53 and M the
// greatest magnitude of a coordinate.
//
// Of a vertex left out and a row (a, b) of a matrix: some vertex of the hull, which is kept, lies farther out
// along (a, b) by more than that slack. The products a x + b y are computed within 2.1 u (|a| + |b|) M <= 3 u
// |(a, b)| M, so the one of the hull's vertex is not less as computed, nor is it after the translation has been
// added.
class gk_OuterVertices {
public:
    using Points = std::vector<gkVector<2>>;

    // None when more than `most` are left, or for coordinates that are not moderate (magnitude.h) or all tiny.
    static std::optional<gk_OuterVertices> of(const Points& points, std::size_t most);

    // The box of all vertices under the transform. None where a product could overflow, lose digits to
    // underflow, or where a side is zero, whose sign is that of the first such vertex.
    std::optional<gkRect> encloseRect(const gkXform<2>& xform) const;

    const Points& points() const { return points_; }

private:
    explicit gk_OuterVertices(Points points) : points_(std::move(points)) {}

    Points points_; // in their order
};

#endif
