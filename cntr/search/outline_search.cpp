#include "cntr/search/outline_search.h"

#include "cntr/index.h"
#include "cntr/inside_count.h"
#include "cntr/measures.h"
#include "cntr/search/distinct_places.h"
#include "cntr/search/farthest_pair.h"
#include "cntr/search/inside_cells.h"
#include "cntr/search/inside_scan.h"
#include "cntr/search/nearest.h"
#include "cntr/search/ray_direction.h"
#include "platform/core/shapes/line_ops.h"

#include <algorithm>

namespace {

// Outlines of fewer segments are scanned: the scan takes less than a walk down the tree.
constexpr std::size_t kFewestForTree = 48;
// The question from which on the tree is built: the tree costs about as much as two scans.
constexpr std::uint32_t kTreeFrom = 2;
// The inside question from which on the cells are built: they cost about as much as eight scans.
constexpr std::uint32_t kCellsFrom = 4;
// The question for a direction from which on the vertices' runs are known: they cost about as much as a scan.
constexpr std::uint32_t kRunsFrom = 2;
// The same question from which on the outer vertices are known for boxes: they cost about as much as six scans.
constexpr std::uint32_t kOuterFrom = 12;
// So many outer vertices are scanned in less time than runs are searched.
constexpr std::size_t kMostOuter = 400;
// Outlines of fewer vertices are scanned for a direction: 0.1 us for 100.
constexpr std::size_t kFewestForRuns = 512;

// Counts a question; true from the given one on.
bool isFrom(std::uint32_t question, std::uint32_t& asked) {
    if (asked < question) ++asked;
    return asked == question;
}

} // namespace

bool gk_OutlineSearch::isNeededFor(const Points& points) { return points.size() >= kFewestForTree; }

const gk_SegmentTree* gk_OutlineSearch::tree(const gk_Segments& outline) {
    if (!treeTried_ && outline.size() >= kFewestForTree) {
        if (std::optional<gk_SegmentTree> built = gk_SegmentTree::of(outline))
            tree_ = std::make_shared<const gk_SegmentTree>(*std::move(built));
        treeTried_ = true;
    }
    return tree_.get();
}

const gk_SegmentTree* gk_OutlineSearch::treeWhenAsked(const gk_Segments& outline) {
    return isFrom(kTreeFrom, asked_) ? tree(outline) : tree_.get();
}

const gk_VertexTree* gk_OutlineSearch::vertexTree(const Points& points) {
    if (!vertexTreeTried_ && points.size() >= kFewestForTree) {
        if (std::optional<gk_VertexTree> built = gk_VertexTree::of(points))
            vertexTree_ = std::make_shared<const gk_VertexTree>(*std::move(built));
        vertexTreeTried_ = true;
    }
    return vertexTree_.get();
}

const gk_VertexTree* gk_OutlineSearch::vertexTreeWhenAsked(const Points& points) {
    return isFrom(kTreeFrom, askedVertices_) ? vertexTree(points) : vertexTree_.get();
}

const gk_SegmentCells* gk_OutlineSearch::cellsWithParity(const gk_Segments& outline) {
    if (!cells_ && !cellsTried_ && outline.size() >= kFewestForTree) {
        if (const std::optional<gk_CellGrid> grid = gk_CellGrid::of(outline))
            cells_ = std::make_shared<const gk_SegmentCells>(*grid, outline);
        cellsTried_ = true;
    }
    if (cells_ && !cells_->knowsParity())
        cells_ = std::make_shared<const gk_SegmentCells>(cells_->withParity(outline));
    return cells_.get();
}

// The cells of an outline that most places are near; of any other they would seldom know what is nearest.
const gk_SegmentCells* gk_OutlineSearch::crowdedCells(const gk_Segments& outline, Nearest what) {
    const auto isFit = [&](const gk_CellGrid& grid) {
        return grid.isCrowded() && (what == Nearest::eSegment || grid.isNearlySquare());
    };
    bool& isTried = what == Nearest::eSegment ? crowdTried_ : squareTried_;
    if (!cells_ && !isTried && outline.size() >= kFewestForTree) {
        const std::optional<gk_CellGrid> grid = gk_CellGrid::of(outline);
        if (grid && isFit(*grid)) cells_ = std::make_shared<const gk_SegmentCells>(*grid, outline);
        isTried = true;
    }
    return cells_ && isFit(cells_->grid()) ? cells_.get() : nullptr;
}

const gk_OutlineSearch::InsideIndex* gk_OutlineSearch::insideIndexWhenAsked(const gk_Segments& outline,
                                                                            double rayLength) {
    if (inside_ || askedInside_ < kCellsFrom || !cellsWithParity(outline)) return inside_.get();
    const gk_InsideCertificate certificate(outline.vertexCount(), outline.vertex(0), rayLength,
                                           cells_->grid().box());
    inside_ = std::make_shared<const InsideIndex>(InsideIndex{certificate, cells_});
    return inside_.get();
}

std::size_t gk_OutlineSearch::nearestVertex(const Points& points, bool closed, const gkVector<2>& p) {
    if (!gk_IsModerate(p) || !isFrom(kTreeFrom, askedVertices_)) return gk_NearestVertex(points, p);
    const gk_Segments outline(points, closed);
    if (const gk_SegmentCells* const index = crowdedCells(outline, Nearest::eVertex)) {
        if (const std::optional<std::size_t> nearest = gk_NearestVertex(outline, *index, p)) return *nearest;
    }
    const gk_VertexTree* const index = vertexTree(points);
    return index == nullptr ? gk_NearestVertex(points, p) : gk_NearestVertex(points, *index, p);
}

std::vector<int> gk_OutlineSearch::verticesWithin(const Points& points, const gkVector<2>& p,
                                                  double tolerance) {
    return vertexCells_.near(points, vertexTreeWhenAsked(points), p, tolerance);
}

const gk_VertexRuns* gk_OutlineSearch::vertexRunsWhenAsked(const Points& points) {
    if (!runs_ && points.size() >= kFewestForRuns && isFrom(kRunsFrom, askedDirections_))
        runs_ = std::make_shared<const gk_VertexRuns>(points);
    return runs_.get();
}

const gk_OuterVertices* gk_OutlineSearch::outerVerticesWhenAsked(const Points& points) {
    if (!outerTried_ && points.size() >= kFewestForRuns && isFrom(kOuterFrom, askedBoxes_)) {
        if (std::optional<gk_OuterVertices> found =
                gk_OuterVertices::of(points, std::min(kMostOuter, points.size() / 3)))
            outer_ = std::make_shared<const gk_OuterVertices>(*std::move(found));
        outerTried_ = true;
    }
    return outer_.get();
}

long gk_OutlineSearch::extremalVertex(const Points& points, const gkRadian& angle) {
    const gk_VertexRuns* const runs = vertexRunsWhenAsked(points);
    return runs == nullptr ? gk_ExtremalVertex(points, angle) : gk_ExtremalVertex(points, *runs, angle);
}

gkRect gk_OutlineSearch::encloseRect(const Points& points, const gkXform<2>& xform) {
    if (ownBox_ && gk_IsIdentity(xform))
        return gkRect::fromCorners({ownBox_->x0, ownBox_->y0}, {ownBox_->x1, ownBox_->y1});
    if (const gk_OuterVertices* const outer = outerVerticesWhenAsked(points)) {
        if (const std::optional<gkRect> rect = outer->encloseRect(xform)) return *rect;
    }
    const gk_VertexRuns* const runs = vertexRunsWhenAsked(points);
    return runs == nullptr ? gk_EncloseRect(points, xform) : gk_EncloseRect(points, *runs, xform);
}

void gk_OutlineSearch::circleOverFarthestPair(const Points& points, gkCircle& circle) {
    if (points.size() < kFewestForTree) {
        gk_CircleOverFarthestPair(points, circle);
        return;
    }
    const std::optional<gk_VertexPair> pair = gk_FarthestPair(points);
    if (!pair) {
        // The first of the farthest pairs is one of first vertices at their places.
        gk_CircleOverFarthestPair(gk_VerticesAt(points, gk_DistinctPlaces(points)), circle);
    } else if (pair->distance > 0.0) {
        circle = gkCircle((points[pair->first] + points[pair->second]) / 2.0, pair->distance / 2.0);
    }
}

std::size_t gk_OutlineSearch::nearestSegment(const gk_Segments& outline, const gkVector<2>& p) {
    if (!gk_IsModerate(p) || outline.size() < kFewestForTree || !isFrom(kTreeFrom, asked_))
        return gk_NearestSegment(outline, p);
    if (const gk_SegmentCells* const index = crowdedCells(outline, Nearest::eSegment)) {
        if (const std::optional<std::size_t> nearest = gk_NearestSegment(outline, *index, p)) return *nearest;
    }
    const gk_SegmentTree* const index = tree(outline);
    return index == nullptr ? gk_NearestSegment(outline, p) : gk_NearestSegment(outline, *index, p);
}

gkVector<2> gk_OutlineSearch::nearestPoint(const gk_Segments& outline, const gkVector<2>& p) {
    const std::size_t nearest = nearestSegment(outline, p);
    if (nearest == kNoSegment) return gkVector<2>();
    return gk_LineOps::closestPoint(gkLineSeg(outline.first(nearest), outline.second(nearest)), p);
}

std::vector<gk_Crossing> gk_OutlineSearch::crossings(const gk_Segments& outline, const gk_CrossingTest& query) {
    const gk_SegmentTree* const index = treeWhenAsked(outline);
    return index == nullptr ? gk_Crossings(outline, query) : gk_Crossings(outline, *index, query);
}

std::size_t gk_OutlineSearch::countCrossings(const gk_Segments& outline, const gk_CrossingTest& query,
                                             std::size_t most) {
    const gk_SegmentTree* const index = tree(outline);
    return index == nullptr ? gk_CountCrossings(outline, query, most)
                            : gk_CountCrossings(outline, *index, query, most);
}

bool gk_OutlineSearch::mayCross(const gk_Segments& outline, const gk_Box& box) {
    const gk_SegmentTree* const index = tree(outline);
    const bool isBox = box.x0 <= box.x1 && box.y0 <= box.y1; // not with a NaN
    if (index == nullptr || !isBox) return true;
    return index->anyOverlapping(box, [](std::size_t) { return true; });
}

bool gk_OutlineSearch::crossesItself(const gk_Segments& outline, const gk_Box& keptBox) {
    if (outline.size() < kFewestForTree) return gk_CrossesItself(outline, keptBox);
    const gk_SegmentTree* const index = tree(outline);
    return index == nullptr ? gk_CrossesItselfByCandidates(outline, keptBox)
                            : gk_CrossesItself(outline, *index, keptBox);
}

std::optional<gk_CloseSegments> gk_OutlineSearch::closeSegments(const gk_Segments& outline, double margin) {
    const gk_SegmentTree* const index = tree(outline);
    if (index == nullptr || !(margin <= kGreatestCoordinate)) return std::nullopt;
    return gk_CloseSegments::of(outline, *index, margin + gk_DistanceSlack(index->reach()));
}

long gk_OutlineSearch::insideCount(const gk_Segments& outline, const gkVector<2>& point, double rayLength,
                                   bool bothWays) {
    // The plain ray sorts all directions, which takes longer than to build the tree.
    const gk_SegmentTree* const index = tree(outline);
    const std::optional<gkVector<2>> direction = index == nullptr || !gk_IsModerate(point)
                                                     ? gk_RayDirection(outline, point)
                                                     : gk_RayDirection(outline, *index, point);
    return gk_InsideCount(direction, point, rayLength, bothWays, [&](const gkVector<2>& end) {
        const gk_CrossingTest query(gkLineSeg(point, end), false);
        return gk_IndexAs<long>(
            (index == nullptr ? gk_Crossings(outline, query) : gk_Crossings(outline, *index, query)).size());
    });
}

bool gk_OutlineSearch::seesOutside(const gk_Segments& outline, const gkVector<2>& point, double rayLength,
                                   gk_RaysMet& met) {
    const gk_SegmentTree* const index = tree(outline);
    if (index == nullptr || !gk_IsModerate(point)) return insideCount(outline, point, rayLength, true) == 0;
    const std::optional<gkVector<2>> direction = gk_RayDirection(outline, *index, point);
    if (!direction) return false;
    const auto meets = [&](const gkVector<2>& end, std::size_t& segment) {
        return gk_MeetsAny(outline, *index, gk_CrossingTest(gkLineSeg(point, end), false), segment);
    };
    const gkVector<2> ray = *direction * rayLength;
    return !meets(point + ray, met.forward) || !meets(point - ray, met.backward);
}

std::optional<gk_RaysAhead> gk_OutlineSearch::raysAhead(const gk_Segments& outline, double rayLength) {
    return tree(outline) == nullptr ? std::nullopt : gk_RaysAhead::of(outline, tree_, rayLength);
}

gk_Inside gk_OutlineSearch::insideByScan(const gk_Segments& outline, const gkVector<2>& point) {
    const bool hasCells = isFrom(kCellsFrom, askedInside_) && cellsWithParity(outline);
    if (hasCells || !gk_IsModerate(point) || (ownBox_ && !ownBox_->holds(point))) return gk_Inside::eUnknown;
    const gk_InsideScan scan = gk_ScanInside(outline, point);
    ownBox_ = scan.box;
    return scan.inside;
}

gk_Inside gk_OutlineSearch::insideByCells(const gk_Segments& outline, const gkVector<2>& point,
                                          double rayLength) {
    if (!(rayLength <= kGreatestCoordinate) || !gk_IsModerate(point)) return gk_Inside::eUnknown;
    const InsideIndex* const index = insideIndexWhenAsked(outline, rayLength);
    if (index == nullptr) return gk_Inside::eUnknown;
    if (!index->certificate.isExact()) return gk_Inside::eUnknown;
    if (!index->certificate.allowsRaysFrom(point)) {
        const gk_SegmentTree* const boxes = tree(outline);
        if (boxes == nullptr) return gk_Inside::eUnknown;
        const std::optional<gkVector<2>> direction = gk_RayDirection(outline, *boxes, point);
        if (!direction) return gk_Inside::eInside;
        if (!index->certificate.allowsEnd(point + *direction * rayLength)) return gk_Inside::eUnknown;
    }
    return gk_InsideByCells(outline, *index->cells, index->certificate, point);
}

gk_Inside gk_OutlineSearch::insideByKnownCells(const gk_Segments& outline, const gkVector<2>& point) const {
    if (!inside_ || !inside_->certificate.allowsRaysFrom(point)) return gk_Inside::eUnknown;
    return gk_InsideByCells(outline, *inside_->cells, inside_->certificate, point);
}
