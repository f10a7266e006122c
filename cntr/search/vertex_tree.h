// A hierarchy of boxes over vertices that lie near each other.
#ifndef GK_CNTR_SEARCH_VERTEX_TREE_H
#define GK_CNTR_SEARCH_VERTEX_TREE_H

#include "cntr/search/box_hierarchy.h"

#include <cstdint>
#include <optional>

// The segments' own boxes say little about where a vertex is when segments are long: the vertices have a tree
// of their own. About 9 bytes per vertex.
class gk_VertexTree {
public:
    using Points = std::vector<gkVector<2>>;
    static constexpr std::size_t kGroup = 8; // vertices

    // None for vertices whose numbers are beyond the bounds of magnitude.h.
    static std::optional<gk_VertexTree> of(const Points& points);

    // Greatest |coordinate|.
    double reach() const { return reach_; }

    // As gk_BoxHierarchy, with visit(index) for every vertex of a leaf.
    template <class Wanted, class Visit> void all(Wanted wanted, Visit visit) const {
        boxes_.any(wanted, [&](std::size_t leaf) {
            visitGroup(leaf, visit);
            return false;
        });
    }
    template <class Nearness, class Limit, class Visit>
    void nearestFirst(Nearness nearness, Limit limit, Visit visit) const {
        boxes_.nearestFirst(nearness, limit, [&](std::size_t leaf) { visitGroup(leaf, visit); });
    }

private:
    gk_VertexTree() = default;

    template <class Visit> void visitGroup(std::size_t leaf, Visit& visit) const {
        const std::size_t end = std::min((leaf + 1) * kGroup, order_.size());
        for (std::size_t i = leaf * kGroup; i < end; ++i) visit(std::size_t{order_[i]});
    }

    double reach_ = 0.0;
    std::vector<std::uint32_t> order_;
    gk_BoxHierarchy boxes_;
};

#endif
