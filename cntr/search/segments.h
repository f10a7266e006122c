// The segments of an outline by number, read straight from its vertices.
#ifndef GK_CNTR_SEARCH_SEGMENTS_H
#define GK_CNTR_SEARCH_SEGMENTS_H

#include "cntr/segment_walk.h"

// Numbered as gk_WalkSegments visits them. Refers to the vertices, so it lives no longer than they do.
class gk_Segments {
public:
    gk_Segments(const std::vector<gkVector<2>>& points, bool closed)
        : points_(points.data()), vertexCount_(points.size()), size_(gk_SegmentCount(points, closed)),
          closed_(closed) {}

    std::size_t size() const { return size_; }
    const gkVector<2>& first(std::size_t k) const {
        if (!closed_) return points_[k];
        return points_[k == 0 ? vertexCount_ - 1 : k - 1];
    }
    const gkVector<2>& second(std::size_t k) const { return points_[closed_ ? k : k + 1]; }

    std::size_t vertexCount() const { return vertexCount_; }
    const gkVector<2>& vertex(std::size_t i) const { return points_[i]; }
    bool closed() const { return closed_; }

private:
    const gkVector<2>* points_;
    std::size_t vertexCount_;
    std::size_t size_;
    bool closed_;
};

#endif
