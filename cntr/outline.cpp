#include "cntr/outline.h"

#include "cntr/index.h"
#include "cntr/measures.h"

#include <utility>

gk_Outline::gk_Outline(std::vector<gkVector<2>> points)
    : points_(std::move(points)), size_(gk_SizeAsLoop(points_.size())) {}

gk_Outline::gk_Outline(std::vector<gkVector<2>> points, const gkRect& box, const gk_OutlineSearch& search)
    : points_(std::move(points)), size_(gk_SizeAsLoop(points_.size())), box_(box), search_(search) {}

const gkRect& gk_Outline::box() {
    if (!box_) box_ = search_.encloseRect(points_, gkXform<2>());
    return *box_;
}

double gk_Outline::rayLength() {
    if (!rayLength_) rayLength_ = 2.0 * gk_CircleAroundFirst(points_).radius();
    return *rayLength_;
}

void gk_Outline::gatherCloseSegments(double margin) { close_ = search_.closeSegments(segments(), margin); }

template <class Visit>
void gk_Outline::visitCrossingsClose(long segment, const gk_CrossingTest& query, Visit visit) const {
    const gk_Segments outline = segments();
    close_->visitAround(static_cast<std::size_t>(segment), [&](std::size_t k) {
        gkVector<2> point;
        if (query.crosses(outline.first(k), outline.second(k), point))
            visit(gk_Crossing{point, gk_IndexAs<int>(k)});
    });
}

std::optional<gk_Crossing> gk_Outline::firstCrossingBeside(long segment, const gkLineSeg& seg,
                                                           bool includeEnds) {
    const gk_CrossingTest query(seg, includeEnds);
    if (!gk_Box::of(box()).overlaps(query.box())) return std::nullopt;
    std::vector<gk_Crossing> found;
    if (close_) {
        visitCrossingsClose(segment, query, [&](const gk_Crossing& crossing) { found.push_back(crossing); });
    } else {
        found = search_.crossings(segments(), query);
    }
    if (found.empty()) return std::nullopt;
    return gk_FirstAlong(seg, found);
}

bool gk_Outline::hasCrossingsBeside(long segment, const gkLineSeg& seg, bool includeEnds, std::size_t count) {
    const gk_CrossingTest query(seg, includeEnds);
    if (!gk_Box::of(box()).overlaps(query.box())) return count == 0;
    if (!close_) return search_.countCrossings(segments(), query, count + 1) == count;
    std::size_t found = 0;
    visitCrossingsClose(segment, query, [&](const gk_Crossing&) { ++found; });
    return found == count;
}

void gk_Outline::gatherAhead() {
    if (!expected_) return;
    if (!ahead_) ahead_ = search_.raysAhead(segments(), rayLength());
    if (ahead_) ahead_->gather(segments(), *expected_);
    expected_.reset();
}

bool gk_Outline::seesOutside(const gkVector<2>& point, gk_RaysMet& met) {
    if (!box().within(point)) return true;
    gatherAhead();
    if (ahead_ && ahead_->bothMeet(segments(), point, met)) return false;
    return search_.seesOutside(segments(), point, rayLength(), met);
}

bool gk_Outline::inside(const gkVector<2>& point) {
    gk_Inside known = search_.insideByScan(segments(), point);
    if (!box().within(point)) return false;
    if (known == gk_Inside::eUnknown) known = search_.insideByCells(segments(), point, rayLength());
    if (known != gk_Inside::eUnknown) return known == gk_Inside::eInside;
    return search_.insideCount(segments(), point, rayLength(), false) % 2 == 1;
}
