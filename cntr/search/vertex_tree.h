// A hierarchy of boxes over vertices that lie near each other.
#ifndef GK_CNTR_SEARCH_VERTEX_TREE_H
#define GK_CNTR_SEARCH_VERTEX_TREE_H

#include "cntr/search/box_hierarchy.h"

#include <cstdint>
#include <optional>

// Vertices that follow each other are mostly neighbours in space, and then a run of them makes a group. Where
// segments are long it does not, and the groups are made of vertices in order of space. About 5 or 9 bytes per
// vertex.
class gk_VertexTree {
public:
    using Points = std::vector<gkVector<2>>;
    static constexpr std::size_t kGroup = 8; // vertices

    // None for vertices whose numbers are beyond the bounds of magnitude.h.
    static std::optional<gk_VertexTree> of(const Points& points);

    // Greatest |coordinate|.
    double reach() const { return reach_; }

    // As gk_BoxHierarchy, with visit(index) for every vertex of a leaf.
    template <class Visit> void allOverlapping(const gk_Box& box, Visit visit) const {
        boxes_.anyOverlapping(box, [&](std::size_t leaf) {
            visitGroup(leaf, visit);
            return false;
        });
    }
    template <class Limit, class Visit> void nearestTo(const gkVector<2>& p, Limit limit, Visit visit) const {
        boxes_.nearestTo(p, limit, [&](std::size_t leaf) { visitGroup(leaf, visit); });
    }

private:
    gk_VertexTree() = default;

    std::vector<gk_Box> boxesOfRuns(const Points& points) const;
    void orderRuns(const std::vector<gk_Box>& runBoxes, const gk_Box& all);
    void orderVertices(const Points& points, const gk_Box& all);

    template <class Visit> void visitGroup(std::size_t leaf, Visit& visit) const {
        if (areRuns_) {
            const std::size_t begin = order_[leaf] * kGroup;
            for (std::size_t i = begin; i < std::min(begin + kGroup, vertexCount_); ++i) visit(i);
            return;
        }
        const std::size_t end = std::min((leaf + 1) * kGroup, vertexCount_);
        for (std::size_t i = leaf * kGroup; i < end; ++i) visit(std::size_t{order_[i]});
    }

    double reach_ = 0.0;
    std::size_t vertexCount_ = 0;
    bool areRuns_ = false;
    std::vector<std::uint32_t> order_; // of runs or of vertices
    gk_BoxHierarchy boxes_;
};

#endif
