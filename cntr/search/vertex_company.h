// The vertices of a list that have others very near, and which.
#ifndef GK_CNTR_SEARCH_VERTEX_COMPANY_H
#define GK_CNTR_SEARCH_VERTEX_COMPANY_H

#include "platform/core/math/vector.h"

#include <cstdint>
#include <vector>

// Answers what gk_VertexCells would answer at each vertex, by one pass for all: of the vertices of an outline
// few share their place with another.
class gk_VertexCompany {
public:
    using Index = std::uint32_t;

    // Throws what gk_VertexCells throws for a NaN.
    gk_VertexCompany(const std::vector<gkVector<2>>& points, double tolerance);

    // Those with others nearer than the tolerance, ascending.
    const std::vector<Index>& vertices() const { return vertices_; }
    // Those near a vertex, itself among them, in the order of gk_VertexCells; none for one without company.
    const std::vector<Index>& near(Index vertex) const {
        return place_[vertex] == kAlone ? none_ : near_[place_[vertex]];
    }

private:
    static constexpr Index kAlone = UINT32_MAX;

    std::vector<Index> vertices_;
    std::vector<std::vector<Index>> near_; // of vertices_
    std::vector<Index> place_;             // in vertices_
    std::vector<Index> none_;
};

#endif
