#include "cntr/contour.h"
#include "cntr/crossings.h"
#include "cntr/one_thread.h"
#include "cntr/search/outline_search.h"

#include <algorithm>

std::vector<gkVector<2>> gkContour::intersections(const gkLineSeg& seg, std::vector<int>& segIndices,
                                                  bool includeEnds) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    segIndices.clear();
    const gk_CrossingTest query(seg, includeEnds);
    // Asked like any caller asks, kept box included: a box kept for a transform with another element (1,1) is
    // used.
    if (!gk_Box::of(encloseRect(gkXform<2>())).overlaps(query.box())) return {};
    std::vector<gk_Crossing> crossings = search().crossings(gk_Segments(value_.points, isClosed()), query);
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
    const gk_OneThread here(*this);
    checkEmptyContour();
    const gk_Segments outline(value_.points, isClosed());
    const gk_Segments queries(other.value_.points, other.isClosed());
    std::vector<gkVector<2>> points;
    std::vector<int> segIndices;
    for (std::size_t begin = 0; begin < queries.size(); begin += gk_SegmentTree::kRun) {
        const gk_SegmentTree::Range run{begin, std::min(begin + gk_SegmentTree::kRun, queries.size())};
        if (begin > 0 && !search().mayCross(outline, gk_RunBox(queries, run))) continue;
        for (std::size_t k = run.begin; k < run.end; ++k) {
            const std::vector<gkVector<2>> found =
                intersections(gkLineSeg(queries.first(k), queries.second(k)), segIndices, true);
            points.insert(points.end(), found.begin(), found.end());
        }
    }
    return points;
}

bool gkContour::isSelfIntersecting() const {
    const gk_OneThread here(*this);
    if (value_.points.size() < 2)
        return false; // a lone NaN vertex is unequal to itself and would pass for a segment
    if (caches_.selfIntersecting.valid) return caches_.selfIntersecting.value;
    const gk_Segments outline(value_.points, isClosed());
    caches_.selfIntersecting.value = search().crossesItself(outline, gk_Box::of(encloseRect(gkXform<2>())));
    caches_.selfIntersecting.valid = true;
    mutating();
    return caches_.selfIntersecting.value;
}
