#include "cntr/region.h"
#include "cntr/one_thread.h"

#include <utility>

gkRegion::gkRegion(const std::vector<gkVector<2>>& vertices, gkContourDefs::IntersectionMode mode)
    : gkContour(vertices, true, 0) {
    initialize(mode);
}

gkRegion::gkRegion(const gkPolygon& polygon, gkContourDefs::IntersectionMode mode) : gkContour(polygon, 0) {
    initialize(mode);
}

gkRegion::gkRegion(const gkContour& contour, gkContourDefs::IntersectionMode mode) : gkContour(contour) {
    initialize(mode);
}

gkRegion::gkRegion(const gkRegion& other)
    : gkPersistent(other), gkRepBase(other), gkContour(std::vector<gkVector<2>>(), true, 0), caches_() {
    initializePointers();
    gkRegion::operator=(other);
}

// Both hooks are called as this class's own: a derived class's data do not exist yet.
void gkRegion::initialize(gkContourDefs::IntersectionMode mode) {
    initializePointers();
    gkRegion::cleanCacheInfo();
    gkContour::makeDataConsistentWithPoints();
    if (mode == gkContourDefs::eOuterHull) {
        outerHull(*this);
    } else if (mode == gkContourDefs::eRegularize) {
        regularize(*this);
    }
}

gkRegion& gkRegion::operator=(const gkRegion& other) {
    const gk_OneThread here(*this);
    if (this == &other) return *this;
    Holes holes(other.holes_);
    Caches caches(other.caches_);
    gkContour::operator=(other);
    holes_ = std::move(holes);
    caches_ = std::move(caches);
    return *this;
}

gkRegion::~gkRegion() { deletePointers(); }

bool gkRegion::operator==(const gkRegion& other) const { return gkContour::operator==(other); }

void gkRegion::checkHole(const gkRegion& hole) const {
    if (!intersections(static_cast<const gkContour&>(hole), false).empty()) {
        throw gkContourDefs::BadParams(L"holes cannot intersect region");
    }
}

void gkRegion::holes(const std::vector<gkPtrHandle_const<gkRegion>>& holes) {
    const gk_OneThread here(*this);
    Holes accepted(holes);
    cleanCacheInfo();
    makeDataConsistentWithPoints();
    for (const auto& hole : accepted) checkHole(*hole);
    holes_ = std::move(accepted);
}

void gkRegion::holes(const std::vector<gkPtrHandle<gkRegion>>& holes) {
    gkRegion::holes(Holes(holes.begin(), holes.end()));
}

void gkRegion::holes(std::initializer_list<gkPtrHandle_const<gkRegion>> holes) {
    gkRegion::holes(Holes(holes));
}

bool gkRegion::isClosed() const { return true; }

void gkRegion::isClosed(bool closed) {
    if (!closed) throw gkContourDefs::RegionCannotBeSetOpen(L"");
}

void gkRegion::map(const gkXform<2>& xform, gkRegion& result) const {
    const gk_OneThread here(*this);
    std::vector<gkVector<2>> mapped;
    mapped.reserve(points().size());
    for (const gkVector<2>& point : points()) mapped.push_back(xform * point);
    const unsigned long kept = label(); // `result` may be this region
    result = gkRegion(mapped);
    result.label(kept);
}

void gkRegion::draw(gkUITablet&, const gkColor&, const gkUITablet::Layers&) const {}

void gkRegion::checkEmptyContour() const {
    if (points().size() < 3) throw gkContourDefs::EmptyContour(L"");
}

void gkRegion::cleanCacheInfo() {
    const gk_OneThread here(*this);
    gkContour::cleanCacheInfo();
    caches_.area = gk_Kept<double>();
    Rare* const rare = caches_.rare.get();
    if (rare == nullptr) return;
    rare->centerOfMassWithHoles.valid = false;
    rare->centerOfMass.valid = false;
    rare->areaWithHoles = gk_Kept<double>();
    rare->inertiaWithHoles.valid = false;
    rare->inertia.valid = false;
    rare->regularized.valid = false;
    rare->outerHull.valid = false;
}

void gkRegion::forgetHandles() noexcept {
    holes_.clear();
    caches_ = Caches();
}
