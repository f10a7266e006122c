#include "cntr/contour.h"
#include "cntr/index.h"
#include "cntr/measures.h"
#include "cntr/one_thread.h"
#include "cntr/region.h"
#include "cntr/search/nearest.h"
#include "cntr/search/outline_search.h"
#include "cntr/segment_cache.h"

gk_OutlineSearch& gkContour::search() const { return caches_.search.made(); }

void gkContour::computeLineSegs() const {
    const gk_OneThread here(*this);
    gk_SegmentCache& segments = caches_.segments.made();
    if (segments.computed) return;
    segments.build(value_.points, isClosed());
    mutating();
}

const std::vector<gkLineSeg>& gkContour::lineSegs() const {
    computeLineSegs();
    return caches_.segments.get()->segments;
}

const std::vector<bool>& gkContour::validLine() const {
    computeLineSegs();
    return caches_.segments.get()->validLine;
}

gkVector<2> gkContour::closestPoint(const gkVector<2>& p, bool verticesOnly) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    if (verticesOnly) return value_.points[static_cast<std::size_t>(gkContour::closestVertexIndex(p))];
    return search().nearestPoint(gk_Segments(value_.points, isClosed()), p);
}

long gkContour::closestVertexIndex(const gkVector<2>& p) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    return gk_IndexAs<long>(gk_OutlineSearch::isNeededFor(value_.points)
                                ? search().nearestVertex(value_.points, isClosed(), p)
                                : gk_NearestVertex(value_.points, p));
}

double gkContour::distToPoint(const gkVector<2>& p, bool verticesOnly) const {
    return p.distance(closestPoint(p, verticesOnly));
}

std::vector<int> gkContour::vertexIndex(const gkVector<2>& p, double tolerance) const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    if (!search().holdsCells(tolerance)) mutating();
    return search().verticesWithin(value_.points, p, tolerance);
}

double gkContour::medianFeatureSize() const {
    const gk_OneThread here(*this);
    checkEmptyContour();
    gk_Kept<double>& kept = caches_.rare.made().medianFeatureSize;
    if (!kept.valid) {
        kept.value = gk_MedianSegmentLength(value_.points, isClosed());
        kept.valid = true;
        mutating();
    }
    return kept.value;
}
