#include "cntr/region.h"

#include "cntr/segment_cache.h"
#include "cntr/vertex_grid.h"

gkRegion::gkRegion(const std::vector<gkVector<2>>& vertices) : gkContour(vertices, true, 0) {}

gkRegion::gkRegion(const gkRegion& other) : gkPersistent(other), gkRepBase(other), gkContour() {
    gkContour::operator=(other);
}

gkRegion& gkRegion::operator=(const gkRegion& other) {
    gkContour::operator=(other);
    return *this;
}

gkRegion::~gkRegion() = default;

bool gkRegion::isClosed() const { return true; }

void gkRegion::isClosed(bool closed) {
    if (!closed) throw gkContourDefs::RegionCannotBeSetOpen(L"");
}
