// A closed outline as plain vertices with the queries that its repair asks of it.
#ifndef GK_CNTR_OUTLINE_H
#define GK_CNTR_OUTLINE_H

#include "cntr/crossings.h"
#include "cntr/segment_cache.h"
#include "cntr/vertex_grid.h"
#include "platform/core/shapes/rect.h"

#include <optional>
#include <vector>

// wrap(a, m) of the repair's index arithmetic: one correction in each direction, not a modulo.
inline long gk_WrapOnce(long a, long m) {
    if (a < 0) a += m;
    if (a >= m) a -= m;
    return a;
}

// Answers as a region of these vertices would. The queries throw gkContourDefs::EmptyContour below 2 vertices.
class gk_Outline {
public:
    explicit gk_Outline(std::vector<gkVector<2>> points);
    // With the box that the owner of the vertices keeps, which need not be their own.
    gk_Outline(std::vector<gkVector<2>> points, const gkRect& box);

    const std::vector<gkVector<2>>& points() const { return points_; }
    long size() const { return static_cast<long>(points_.size()); }
    const gkVector<2>& operator[](long index) const { return points_[static_cast<std::size_t>(index)]; }
    // The vertex at an index that may run up to once past either end.
    const gkVector<2>& wrapped(long index) const { return (*this)[gk_WrapOnce(index, size())]; }

    // The crossings of a segment with the outline, ordered along the segment.
    std::vector<gk_Crossing> crossings(const gkLineSeg& seg, bool includeEnds);
    // Indices of the vertices nearer than the tolerance, in the vertex grid's order.
    std::vector<int> near(const gkVector<2>& p, double tolerance);
    long insideCount(const gkVector<2>& point, bool bothWays);
    bool inside(const gkVector<2>& point) { return insideCount(point, false) % 2 == 1; }

private:
    void check() const;
    const gkRect& box();

    std::vector<gkVector<2>> points_;
    std::optional<gkRect> box_;
    std::optional<double> rayLength_;
    gk_SegmentCache segments_;
    gk_VertexGrids grids_;
};

#endif
