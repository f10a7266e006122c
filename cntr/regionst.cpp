#include "cntr/regionst.h"
#include "cntr/one_thread.h"

#include "cntr/index.h"
#include "cntr/search/set_search.h"

#include <utility>

namespace {

std::vector<gkPtrHandle_const<gkRegion>> readOnly(const std::vector<gkPtrHandle<gkRegion>>& regions) {
    return std::vector<gkPtrHandle_const<gkRegion>>(regions.begin(), regions.end());
}

} // namespace

gkRegionSet::Caches::Caches() = default;
gkRegionSet::Caches::Caches(const Caches& other) = default;
gkRegionSet::Caches& gkRegionSet::Caches::operator=(Caches&& other) noexcept = default;
gkRegionSet::Caches::~Caches() = default;

gkRegionSet::gkRegionSet(const std::vector<gkPtrHandle_const<gkRegion>>& regions,
                         gkContourDefs::IntersectionMode mode)
    : regions_(regions) {
    initializePointers();
    gkRegionSet::cleanCacheInfo(); // what this class's own makeDataConsistentWithPoints does
    repair(mode);
}

gkRegionSet::gkRegionSet(const std::vector<gkPtrHandle<gkRegion>>& regions,
                         gkContourDefs::IntersectionMode mode)
    : gkRegionSet(readOnly(regions), mode) {}

gkRegionSet::gkRegionSet(std::initializer_list<gkPtrHandle_const<gkRegion>> regions,
                         gkContourDefs::IntersectionMode mode)
    : gkRegionSet(Regions(regions), mode) {}

gkRegionSet::gkRegionSet(const gkRegionSet& other) : gkPersistent(other), gkRepBase(other) {
    initializePointers();
    gkRegionSet::operator=(other);
}

gkRegionSet& gkRegionSet::operator=(const gkRegionSet& other) {
    const gk_OneThread here(*this);
    if (this == &other) return *this;
    Regions regions(other.regions_);
    Caches caches(other.caches_);
    regions_ = std::move(regions);
    cachedVectorSize_ = other.cachedVectorSize_;
    caches_ = std::move(caches);
    return *this;
}

gkRegionSet::~gkRegionSet() { deletePointers(); }

bool gkRegionSet::operator==(const gkRegionSet& other) const {
    if (regions_.size() != other.regions_.size()) return false;
    for (std::size_t i = 0; i < regions_.size(); ++i) {
        if (!(*regions_[i] == *other.regions_[i])) return false;
    }
    return true;
}

void gkRegionSet::regions(const std::vector<gkPtrHandle_const<gkRegion>>& regions,
                          gkContourDefs::IntersectionMode mode) {
    const gk_OneThread here(*this);
    Regions list(regions);
    cleanCacheInfo();
    regions_ = std::move(list);
    makeDataConsistentWithPoints();
    repair(mode);
}

void gkRegionSet::regions(const std::vector<gkPtrHandle<gkRegion>>& regions,
                          gkContourDefs::IntersectionMode mode) {
    gkRegionSet::regions(readOnly(regions), mode);
}

void gkRegionSet::regions(std::initializer_list<gkPtrHandle_const<gkRegion>> regions,
                          gkContourDefs::IntersectionMode mode) {
    gkRegionSet::regions(Regions(regions), mode);
}

void gkRegionSet::add(const gkPtrHandle_const<gkRegion>& region, gkContourDefs::IntersectionMode mode) {
    const gk_OneThread here(*this);
    cleanCacheInfo();
    regions_.push_back(region);
    makeDataConsistentWithPoints();
    repair(mode);
}

void gkRegionSet::repair(gkContourDefs::IntersectionMode mode) {
    if (mode == gkContourDefs::eOuterHull) {
        outerHull(*this);
    } else if (mode == gkContourDefs::eRegularize) {
        regularize(*this);
    }
}

void gkRegionSet::setRegions(const std::vector<gkPtrHandle_const<gkRegion>>& regions) {
    regions_ = regions;
    caches_.search.reset();
}

void gkRegionSet::cachedVectorSize(long size) {
    const gk_OneThread here(*this);
    cachedVectorSize_ = gk_FittingCachedVectorSize(size);
    mutating();
}

void gkRegionSet::checkEmptyRegionSet() const {
    if (regions_.empty()) throw gkContourDefs::EmptyRegionSet(L"");
}

void gkRegionSet::makeDataConsistentWithPoints() { cleanCacheInfo(); }

void gkRegionSet::makePointsConsistentWithData() { cleanCacheInfo(); }

void gkRegionSet::initializePointers() {
    caches_.encloseRects.clear();
    caches_.search.reset();
}

// The pointer frees what it owned, so to let go is to start anew.
void gkRegionSet::deletePointers() { initializePointers(); }

void gkRegionSet::cleanCacheInfo() {
    const gk_OneThread here(*this);
    mutating();
    deletePointers();
    caches_.centerOfMassWithHoles.valid = false;
    caches_.centerOfMass.valid = false;
    caches_.areaWithHoles = gk_Kept<double>();
    caches_.area = gk_Kept<double>();
    caches_.inertiaWithHoles.valid = false;
    caches_.inertia.valid = false;
    caches_.selfIntersecting.valid = false;
    caches_.regularized.valid = false;
    caches_.outerHull.valid = false;
}

void gkRegionSet::draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const {
    const gk_OneThread here(*this);
    for (const auto& region : regions_) region->draw(tablet, color, layers);
}

void gkRegionSet::forgetHandles() noexcept {
    regions_.clear();
    caches_ = Caches();
}
