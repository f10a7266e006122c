// A closed outline as plain vertices with the queries that its repair asks of it.
#ifndef GK_CNTR_OUTLINE_H
#define GK_CNTR_OUTLINE_H

#include "cntr/crossings.h"
#include "cntr/search/close_segments.h"
#include "cntr/search/outline_search.h"
#include "platform/core/shapes/rect.h"

#include <optional>
#include <utility>
#include <vector>

// wrap(a, m) of the repair's index arithmetic: one correction in each direction, not a modulo.
inline long gk_WrapOnce(long a, long m) {
    if (a < 0) a += m;
    if (a >= m) a -= m;
    return a;
}

// Answers as a region of these vertices would, of which there must be at least 2: repair makes nothing of
// fewer. The constructors throw BadParams for more than 2^30 - 1.
class gk_Outline {
public:
    explicit gk_Outline(std::vector<gkVector<2>> points);
    // With the box that the owner of the vertices keeps, which need not be their own, and with what it has
    // found out about them as a closed outline.
    gk_Outline(std::vector<gkVector<2>> points, const gkRect& box, const gk_OutlineSearch& search);

    // The vertices, which it has no more.
    std::vector<gkVector<2>> takePoints() { return std::move(points_); }
    long size() const { return size_; }
    const gkVector<2>& operator[](long index) const { return points_[static_cast<std::size_t>(index)]; }
    // The vertex at an index that may run up to once past either end.
    const gkVector<2>& wrapped(long index) const { return (*this)[gk_WrapOnce(index, size())]; }

    // Finds at once what is close to each segment, for many questions about places beside segments: those that
    // name a segment are then quick. Their query must lie within `margin` of that segment's box.
    void gatherCloseSegments(double margin);
    // The first crossing along a segment, if any.
    std::optional<gk_Crossing> firstCrossingBeside(long segment, const gkLineSeg& seg, bool includeEnds);
    // Whether there are just so many crossings.
    bool hasCrossingsBeside(long segment, const gkLineSeg& seg, bool includeEnds, std::size_t count);
    // Whether it is known that the whole segment is crossed by none.
    bool isUncrossed(long segment) const {
        return close_ && close_->hasNone(static_cast<std::size_t>(segment));
    }

    // The next questions seesOutside(), if there are any, are about places in the box.
    void expectPlaces(const gk_Box& places) { expected_ = places; }
    // Whether a ray or its opposite leaves without a crossing. `met` names segments to try first and receives
    // those that the rays met.
    bool seesOutside(const gkVector<2>& point, gk_RaysMet& met);
    // Whether a ray leaves with an odd number of crossings.
    bool inside(const gkVector<2>& point);

private:
    template <class Visit>
    void visitCrossingsClose(long segment, const gk_CrossingTest& query, Visit visit) const;
    void gatherAhead();
    const gkRect& box();
    double rayLength();
    gk_Segments segments() const { return gk_Segments(points_, true); }

    std::vector<gkVector<2>> points_;
    long size_;
    std::optional<gkRect> box_;
    std::optional<double> rayLength_;
    gk_OutlineSearch search_;
    std::optional<gk_CloseSegments> close_;
    std::optional<gk_Box> expected_;
    std::optional<gk_RaysAhead> ahead_;
};

#endif
