#include "cntr/search/vertex_tree.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/space_order.h"

namespace {

gk_Box boxOf(const gkVector<2>& point) { return gk_Box::of(point, point); }

} // namespace

std::optional<gk_VertexTree> gk_VertexTree::of(const Points& points) {
    if (points.empty() || points.size() > UINT32_MAX) return std::nullopt;
    gk_Box all = boxOf(points.front());
    for (const gkVector<2>& point : points) {
        if (!gk_IsModerate(point)) return std::nullopt;
        all = all.enclosing(boxOf(point));
    }
    gk_VertexTree tree;
    tree.reach_ = std::max(gk_Reach({all.x0, all.y0}), gk_Reach({all.x1, all.y1}));
    tree.vertexCount_ = points.size();
    const std::vector<gk_Box> runBoxes = tree.boxesOfRuns(points);
    if (gk_SizeBesideEven(runBoxes, all) <= 2.0)
        tree.orderRuns(runBoxes, all);
    else
        tree.orderVertices(points, all);
    return tree;
}

std::vector<gk_Box> gk_VertexTree::boxesOfRuns(const Points& points) const {
    std::vector<gk_Box> boxes;
    boxes.reserve(points.size() / kGroup + 1);
    for (std::size_t begin = 0; begin < points.size(); begin += kGroup) {
        gk_Box box = boxOf(points[begin]);
        for (std::size_t i = begin + 1; i < std::min(begin + kGroup, points.size()); ++i)
            box = box.enclosing(boxOf(points[i]));
        boxes.push_back(box);
    }
    return boxes;
}

void gk_VertexTree::orderRuns(const std::vector<gk_Box>& runBoxes, const gk_Box& all) {
    order_ = gk_OrderInSpace(runBoxes, all);
    std::vector<gk_Box> leaves;
    leaves.reserve(order_.size());
    for (const std::uint32_t run : order_) leaves.push_back(runBoxes[run]);
    boxes_ = gk_BoxHierarchy(leaves);
    areRuns_ = true;
}

void gk_VertexTree::orderVertices(const Points& points, const gk_Box& all) {
    gk_SpaceOrder order(all, points.size());
    for (const gkVector<2>& point : points) order.add(point);
    order_ = order.sorted();
    std::vector<gk_Box> leaves;
    leaves.reserve(points.size() / kGroup + 1);
    for (std::size_t begin = 0; begin < points.size(); begin += kGroup) {
        gk_Box box = boxOf(points[order_[begin]]);
        for (std::size_t i = begin + 1; i < std::min(begin + kGroup, points.size()); ++i)
            box = box.enclosing(boxOf(points[order_[i]]));
        leaves.push_back(box);
    }
    boxes_ = gk_BoxHierarchy(leaves);
}
