// The door to the search room: answers an outline's questions with the plain scans' bits, from an index where
// one pays.
#ifndef GK_CNTR_SEARCH_OUTLINE_SEARCH_H
#define GK_CNTR_SEARCH_OUTLINE_SEARCH_H

#include "cntr/crossings.h"
#include "cntr/search/close_segments.h"
#include "cntr/search/inside_certificate.h"
#include "cntr/search/outer_vertices.h"
#include "cntr/search/rays_ahead.h"
#include "cntr/search/segment_cells.h"
#include "cntr/search/segment_tree.h"
#include "cntr/search/vertex_cells.h"
#include "cntr/search/vertex_runs.h"
#include "cntr/search/vertex_tree.h"

#include "platform/core/math/angle.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/rect.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

// Belongs to one outline and is thrown away when that changes; every question brings the outline along. Copies
// share what has been built, which never changes.
//
// A fresh outline is scanned, which costs less than an index, and small ones always are; the index comes when
// more questions do.
class gk_OutlineSearch {
public:
    using Points = std::vector<gkVector<2>>;

    // False for outlines so small that all their questions are answered by scans; none needs to be made then.
    static bool isNeededFor(const Points& points);

    std::size_t nearestVertex(const Points& points, bool closed, const gkVector<2>& p);
    // In the order of gk_VertexCells.
    std::vector<int> verticesWithin(const Points& points, const gkVector<2>& p, double tolerance);
    // This tolerance has been asked for.
    bool holdsCells(double tolerance) const { return vertexCells_.holds(tolerance); }

    // The measures of cntr/measures.h.
    long extremalVertex(const Points& points, const gkRadian& angle);
    gkRect encloseRect(const Points& points, const gkXform<2>& xform);
    static void circleOverFarthestPair(const Points& points, gkCircle& circle);

    // The point of the outline nearest to p, on the first of equally near segments; (0, 0) when no distance is
    // below infinity.
    gkVector<2> nearestPoint(const gk_Segments& outline, const gkVector<2>& p);

    // In segment order.
    std::vector<gk_Crossing> crossings(const gk_Segments& outline, const gk_CrossingTest& query);
    // How many crossings() finds, but not more than `most`. Builds the index.
    std::size_t countCrossings(const gk_Segments& outline, const gk_CrossingTest& query, std::size_t most);
    // Whether crossings() may find something for a segment in the box. Builds the index.
    bool mayCross(const gk_Segments& outline, const gk_Box& box);
    bool crossesItself(const gk_Segments& outline, const gk_Box& keptBox);
    // None for an outline without an index. Builds the index.
    std::optional<gk_CloseSegments> closeSegments(const gk_Segments& outline, double margin);

    // Of a closed outline and a point within its kept box, with a ray of twice the distance of the farthest
    // vertex from the first.
    long insideCount(const gk_Segments& outline, const gkVector<2>& point, double rayLength, bool bothWays);
    // Whether the count both ways is 0.
    bool seesOutside(const gk_Segments& outline, const gkVector<2>& point, double rayLength, gk_RaysMet& met);
    // None for an outline without an index. Builds the index.
    std::optional<gk_RaysAhead> raysAhead(const gk_Segments& outline, double rayLength);
    // Whether that count is odd, where it is known without counting. The first questions are answered by a
    // scan, which needs no ray and brings the box along for encloseRect(); later ones from cells.
    gk_Inside insideByScan(const gk_Segments& outline, const gkVector<2>& point);
    gk_Inside insideByCells(const gk_Segments& outline, const gkVector<2>& point, double rayLength);
    // The same where the cells are there and no ray's direction needs to be known.
    gk_Inside insideByKnownCells(const gk_Segments& outline, const gkVector<2>& point) const;
    // True once.
    bool isFirstAnswer() { return !std::exchange(hasAnswered_, true); }

private:
    enum class Nearest { eSegment, eVertex };

    struct InsideIndex {
        gk_InsideCertificate certificate;
        std::shared_ptr<const gk_SegmentCells> cells;
    };

    const gk_SegmentTree* tree(const gk_Segments& outline);
    const gk_SegmentTree* treeWhenAsked(const gk_Segments& outline);
    const gk_VertexTree* vertexTree(const Points& points);
    const gk_VertexTree* vertexTreeWhenAsked(const Points& points);
    const gk_SegmentCells* cellsWithParity(const gk_Segments& outline);
    const gk_SegmentCells* crowdedCells(const gk_Segments& outline, Nearest what);
    const gk_VertexRuns* vertexRunsWhenAsked(const Points& points);
    const gk_OuterVertices* outerVerticesWhenAsked(const Points& points);
    std::size_t nearestSegment(const gk_Segments& outline, const gkVector<2>& p);
    const InsideIndex* insideIndexWhenAsked(const gk_Segments& outline, double rayLength);

    std::shared_ptr<const gk_SegmentTree> tree_;
    std::shared_ptr<const gk_VertexTree> vertexTree_;
    std::shared_ptr<const InsideIndex> inside_;
    std::shared_ptr<const gk_SegmentCells> cells_;
    std::shared_ptr<const gk_VertexRuns> runs_;
    std::shared_ptr<const gk_OuterVertices> outer_;
    gk_VertexCells vertexCells_;
    std::optional<gk_Box> ownBox_;
    std::uint32_t asked_ = 0;
    std::uint32_t askedVertices_ = 0;
    std::uint32_t askedInside_ = 0;
    std::uint32_t askedDirections_ = 0;
    std::uint32_t askedBoxes_ = 0;
    bool hasAnswered_ = false;
    bool treeTried_ = false;
    bool cellsTried_ = false;
    bool crowdTried_ = false;
    bool squareTried_ = false;
    bool vertexTreeTried_ = false;
    bool outerTried_ = false;
};

#endif
