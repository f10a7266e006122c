#include "cntr/search/vertex_tree.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/space_order.h"

std::optional<gk_VertexTree> gk_VertexTree::of(const Points& points) {
    if (points.empty() || points.size() > UINT32_MAX) return std::nullopt;
    gk_Box all = gk_Box::of(points.front(), points.front());
    for (const gkVector<2>& point : points) {
        if (!gk_IsModerate(point)) return std::nullopt;
        all = all.enclosing(gk_Box::of(point, point));
    }
    gk_SpaceOrder order(all, points.size());
    for (const gkVector<2>& point : points) order.add(point);

    gk_VertexTree tree;
    tree.reach_ = std::max(gk_Reach({all.x0, all.y0}), gk_Reach({all.x1, all.y1}));
    tree.order_ = order.sorted();
    std::vector<gk_Box> leaves;
    leaves.reserve(points.size() / kGroup + 1);
    for (std::size_t begin = 0; begin < points.size(); begin += kGroup) {
        const gkVector<2>& first = points[tree.order_[begin]];
        gk_Box box = gk_Box::of(first, first);
        for (std::size_t i = begin + 1; i < std::min(begin + kGroup, points.size()); ++i) {
            const gkVector<2>& point = points[tree.order_[i]];
            box = box.enclosing(gk_Box::of(point, point));
        }
        leaves.push_back(box);
    }
    tree.boxes_ = gk_BoxHierarchy(std::move(leaves));
    return tree;
}
