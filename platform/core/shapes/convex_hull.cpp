#include "platform/core/shapes/convex_hull.h"

#include "platform/core/shapes/hull_sieve.h"
#include "platform/core/shapes/orientation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

namespace {

using Points = std::vector<gkVector<2>>;

bool isFinite(const gkVector<2>& p) { return std::isfinite(p.x()) && std::isfinite(p.y()); }

// Orders points by their indices. These make it total: every standard library sorts alike, and of equal points
// the one with the lowest index comes first.
class Order {
public:
    enum class Towards { eRight, eLeft };

    Order(const Points& points, Towards towards) : points_(points), isLeft_(towards == Towards::eLeft) {}
    bool operator()(std::size_t i, std::size_t j) const {
        const gkVector<2>& a = points_[isLeft_ ? j : i];
        const gkVector<2>& b = points_[isLeft_ ? i : j];
        if (a.x() != b.x()) return a.x() < b.x();
        if (a.y() != b.y()) return a.y() < b.y();
        return i < j;
    }

private:
    const Points& points_;
    bool isLeft_;
};

// What comes around the hull is nearly in order: few have to move, and not far. Where that is not so they are
// sorted.
void putInOrder(std::vector<std::size_t>& indices, const Order& isBefore) {
    std::size_t moves = 8 * indices.size();
    for (std::size_t i = 1; i < indices.size(); ++i) {
        const std::size_t moving = indices[i];
        std::size_t place = i;
        for (; place > 0 && isBefore(moving, indices[place - 1]); --place) indices[place] = indices[place - 1];
        indices[place] = moving;
        if (moves < i - place) return std::sort(indices.begin(), indices.end(), isBefore);
        moves -= i - place;
    }
}

// Appends `p` to a chain that starts at position `start` of the hull, after taking back what does not turn
// left.
void extend(Points& hull, std::size_t start, const gkVector<2>& p) {
    while (hull.size() >= start + 2 && gk_Orientation(hull[hull.size() - 2], hull.back(), p) <= 0)
        hull.pop_back();
    hull.push_back(p);
}

// Appends the chain over the points, of equal ones the first. The hull may end with the point that comes first.
void addChain(Points& hull, const Points& points, std::vector<std::size_t> indices, Order::Towards towards) {
    putInOrder(indices, Order(points, towards));
    const std::size_t start = hull.empty() ? 0 : hull.size() - 1;
    for (const std::size_t i : indices)
        if (hull.empty() || points[i] != hull.back()) extend(hull, start, points[i]);
}

} // namespace

Points gfConvexHull(const Points& points) {
    const gk_HullSieve sieve(points);
    if (!sieve.areFinite()) {
        Points finite;
        std::copy_if(points.begin(), points.end(), std::back_inserter(finite), isFinite);
        return gfConvexHull(finite);
    }
    Points hull;
    if (points.empty()) return hull;
    gk_HullSieve::OuterPoints outer = sieve.outerPoints(0.0);
    addChain(hull, points, std::move(outer.lower), Order::Towards::eRight);
    if (hull.size() < 2) return hull;
    addChain(hull, points, std::move(outer.upper), Order::Towards::eLeft);
    hull.pop_back(); // the upper chain ends where the lower one began
    return hull;
}
