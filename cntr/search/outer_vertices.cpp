#include "cntr/search/outer_vertices.h"

#include "cntr/measures.h"
#include "cntr/search/magnitude.h"
#include "platform/core/shapes/hull_sieve.h"

#include <algorithm>

namespace {

// A product of numbers between this and kGreatestCoordinate neither overflows nor gets near underflow, as long
// as a difference of 128 u in it counts.
constexpr double kLeastMagnitude = 1e-100;

// A row of zeros leaves the translation alone.
bool isOrdinary(const gkVector<2>& row) {
    return gk_IsModerate(row) && (gk_Reach(row) >= kLeastMagnitude || gk_Reach(row) == 0.0);
}

bool isOrdinary(const gkXform<2>& xform) {
    const gkMatrix<2>& m = xform.matrix();
    return isOrdinary(gkVector<2>(m.element(0, 0), m.element(0, 1))) &&
           isOrdinary(gkVector<2>(m.element(1, 0), m.element(1, 1))) && gk_IsModerate(xform.translation());
}

bool hasZero(const gkVector<2>& corner) { return corner.x() == 0.0 || corner.y() == 0.0; }

} // namespace

std::optional<gk_OuterVertices> gk_OuterVertices::of(const Points& points, std::size_t most) {
    const gk_HullSieve sieve(points);
    const gk_HullBox& box = sieve.box();
    const gkVector<2> least(box[0], box[1]);
    const gkVector<2> greatest(box[2], box[3]);
    if (!sieve.areFinite() || !gk_IsModerate(least) || !gk_IsModerate(greatest)) return std::nullopt;
    const double reach = std::max(gk_Reach(least), gk_Reach(greatest));
    if (!(reach >= kLeastMagnitude)) return std::nullopt;
    gk_HullSieve::OuterPoints outer = sieve.outerPoints(2.0 * gk_DistanceSlack(reach));
    std::vector<std::size_t> indices = std::move(outer.lower);
    indices.insert(indices.end(), outer.upper.begin(), outer.upper.end());
    std::sort(indices.begin(), indices.end());
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
    if (indices.size() > most) return std::nullopt;
    Points vertices;
    vertices.reserve(indices.size());
    for (const std::size_t i : indices) vertices.push_back(points[i]);
    return gk_OuterVertices(std::move(vertices));
}

std::optional<gkRect> gk_OuterVertices::encloseRect(const gkXform<2>& xform) const {
    if (!isOrdinary(xform)) return std::nullopt;
    const gkRect rect = gk_EncloseRect(points_, xform);
    if (hasZero(rect.ul()) || hasZero(rect.lr())) return std::nullopt;
    return rect;
}
