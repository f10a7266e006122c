// The nearest segment and the nearest vertex of an outline, by scan, by cells and by tree: the plain scan's
// answer.
#ifndef GK_CNTR_SEARCH_NEAREST_H
#define GK_CNTR_SEARCH_NEAREST_H

#include "cntr/search/segment_cells.h"
#include "cntr/search/segment_tree.h"
#include "cntr/search/vertex_tree.h"

#include <optional>

constexpr std::size_t kNoSegment = static_cast<std::size_t>(-1);

// The segment whose computed distance to p is least, the first among equals; kNoSegment when no distance is
// below infinity.
std::size_t gk_NearestSegment(const gk_Segments& segments, const gkVector<2>& p);
// The same for a tree of these segments and a p of moderate magnitude.
std::size_t gk_NearestSegment(const gk_Segments& segments, const gk_SegmentTree& tree, const gkVector<2>& p);
// The same by cells; none when it is farther away than a few of them.
std::optional<std::size_t> gk_NearestSegment(const gk_Segments& segments, const gk_SegmentCells& cells,
                                             const gkVector<2>& p);

// The vertex whose computed distance to p is least, the first among equals; 0 when no distance is below
// infinity.
std::size_t gk_NearestVertex(const std::vector<gkVector<2>>& points, const gkVector<2>& p);
std::size_t gk_NearestVertex(const std::vector<gkVector<2>>& points, const gk_VertexTree& tree,
                             const gkVector<2>& p);
std::optional<std::size_t> gk_NearestVertex(const gk_Segments& outline, const gk_SegmentCells& cells,
                                            const gkVector<2>& p);

#endif
