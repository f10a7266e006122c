#include "cntr/contour.h"
#include "cntr/crossings.h"
#include "cntr/segment_cache.h"
#include "cntr/segment_walk.h"
#include "cntr/vertex_grid.h"

std::vector<gkVector<2>> gkContour::intersections(const gkLineSeg& seg, std::vector<int>& segIndices,
                                                  bool includeEnds) const {
    checkEmptyContour();
    segIndices.clear();
    // Asked like any caller asks, kept box included: a box kept for a transform with another element (1,1) is
    // used.
    if (!encloseRect(gkXform<2>()).overlaps(gk_SegmentBox(seg.p1(), seg.p2()))) return {};
    computeLineSegs();
    std::vector<gk_Crossing> crossings = gk_Crossings(*caches_.segments.get(), seg, includeEnds);
    gk_OrderAlong(seg, crossings);
    std::vector<gkVector<2>> points;
    points.reserve(crossings.size());
    segIndices.reserve(crossings.size());
    for (const gk_Crossing& crossing : crossings) {
        points.push_back(crossing.point);
        segIndices.push_back(crossing.segment);
    }
    return points;
}

std::vector<gkVector<2>> gkContour::intersections(const gkLineSeg& seg, bool includeEnds) const {
    std::vector<int> segIndices;
    return intersections(seg, segIndices, includeEnds);
}

std::vector<gkVector<2>> gkContour::intersections(const gkContour& other) const {
    checkEmptyContour();
    std::vector<gkVector<2>> points;
    gk_WalkSegments(other.value_.points, other.isClosed(), [&](const gkVector<2>& p1, const gkVector<2>& p2) {
        const std::vector<gkVector<2>> found = intersections(gkLineSeg(p1, p2), true);
        points.insert(points.end(), found.begin(), found.end());
    });
    return points;
}

bool gkContour::isSelfIntersecting() const {
    if (value_.points.size() < 2)
        return false; // a lone NaN vertex is unequal to itself and would pass for a segment
    if (caches_.selfIntersecting.valid) return caches_.selfIntersecting.value;
    computeLineSegs();
    const gk_SegmentCache& segments = *caches_.segments.get();
    bool crossing = false;
    for (std::size_t k = 0; k < segments.segments.size() && !crossing; ++k) {
        crossing = segments.validLine[k] && !intersections(segments.segments[k], false).empty();
    }
    caches_.selfIntersecting.value = crossing;
    caches_.selfIntersecting.valid = true;
    mutating();
    return crossing;
}
