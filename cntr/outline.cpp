#include "cntr/outline.h"

#include "cntr/contour_defs.h"
#include "cntr/index.h"
#include "cntr/measures.h"

#include <utility>

gk_Outline::gk_Outline(std::vector<gkVector<2>> points)
    : points_(std::move(points)), size_(gk_SizeAsLoop(points_.size())) {}

gk_Outline::gk_Outline(std::vector<gkVector<2>> points, const gkRect& box, const gk_OutlineSearch& search)
    : points_(std::move(points)), size_(gk_SizeAsLoop(points_.size())), box_(box), search_(search) {}

void gk_Outline::check() const {
    if (points_.size() < 2) throw gkContourDefs::EmptyContour(L"");
}

const gkRect& gk_Outline::box() {
    if (!box_) box_ = search_.encloseRect(points_, gkXform<2>());
    return *box_;
}

double gk_Outline::rayLength() {
    if (!rayLength_) rayLength_ = 2.0 * gk_CircleAroundFirst(points_).radius();
    return *rayLength_;
}

std::vector<gk_Crossing> gk_Outline::crossings(const gkLineSeg& seg, bool includeEnds) {
    check();
    const gk_CrossingTest query(seg, includeEnds);
    if (!gk_Box::of(box()).overlaps(query.box())) return {};
    std::vector<gk_Crossing> found = search_.crossings(segments(), query);
    gk_OrderAlong(seg, found);
    return found;
}

void gk_Outline::gatherCloseSegments(double margin) {
    check();
    close_ = search_.closeSegments(segments(), margin);
}

std::vector<gk_Crossing> gk_Outline::unorderedBeside(long segment, const gk_CrossingTest& query) {
    std::vector<gk_Crossing> found;
    if (!gk_Box::of(box()).overlaps(query.box())) return found;
    const gk_Segments outline = segments();
    if (!close_) return search_.crossings(outline, query);
    close_->visitAround(static_cast<std::size_t>(segment), [&](std::size_t k) {
        gkVector<2> point;
        if (query.crosses(outline.first(k), outline.second(k), point))
            found.push_back({point, gk_IndexAs<int>(k)});
    });
    return found;
}

std::vector<gk_Crossing> gk_Outline::crossingsBeside(long segment, const gkLineSeg& seg, bool includeEnds) {
    std::vector<gk_Crossing> found = unorderedBeside(segment, gk_CrossingTest(seg, includeEnds));
    gk_OrderAlong(seg, found);
    return found;
}

std::size_t gk_Outline::crossingCountBeside(long segment, const gkLineSeg& seg, bool includeEnds) {
    return unorderedBeside(segment, gk_CrossingTest(seg, includeEnds)).size();
}

std::vector<int> gk_Outline::near(const gkVector<2>& p, double tolerance) {
    check();
    return search_.verticesWithin(points_, p, tolerance);
}

long gk_Outline::insideCount(const gkVector<2>& point, bool bothWays) {
    check();
    if (!box().within(point)) return 0;
    return search_.insideCount(segments(), point, rayLength(), bothWays);
}

bool gk_Outline::seesOutside(const gkVector<2>& point, gk_RaysMet& met) {
    check();
    if (!box().within(point)) return true;
    return search_.seesOutside(segments(), point, rayLength(), met);
}

bool gk_Outline::inside(const gkVector<2>& point) {
    check();
    gk_Inside known = search_.insideByScan(segments(), point);
    if (!box().within(point)) return false;
    if (known == gk_Inside::eUnknown) known = search_.insideByCells(segments(), point, rayLength());
    return known != gk_Inside::eUnknown ? known == gk_Inside::eInside : insideCount(point, false) % 2 == 1;
}
