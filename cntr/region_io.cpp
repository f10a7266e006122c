// The region's archive record, both versions.
#include "cntr/legacy_base.h"
#include "cntr/region.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"

#include <typeinfo>
#include <utility>

gk_Instantiator gkRegion::sExemplar(typeid(gkRegion), "gkRegion", &gkRegion::make);

gkPersistent* gkRegion::make() { return new gkRegion; }

void gkRegion::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 1;
    archive || version;
    // This level's own record, not the override of a derived class, whose record wraps this one.
    gkRegion::serialize_(archive, version);
    setVisited(archive);
}

void gkRegion::serialize_(gkArchive& archive, unsigned char version) {
    if (version > 1) throw gkArchive::UnknownVersion("cntr/region", 819);
    if (version == 0) {
        passVersion0(archive);
    } else {
        gkContour::dispatchSerialize(archive);
        if (archive.isSaving()) {
            archive || holes_;
        } else {
            Holes holes;
            archive || holes;
            holes_ = std::move(holes);
        }
    }
    if (archive.isLoading()) cleanCacheInfo();
}

// Regions of old knew neither holes nor label, and kept no closed flag: the outline's own flag becomes false,
// while the region says closed all the same.
void gkRegion::passVersion0(gkArchive& archive) {
    gkContourBase().pass(archive);
    std::vector<gkVector<2>> vertices(points());
    unsigned char unused = 0;
    long size = cachedVectorSize();
    archive || vertices;
    archive || unused;
    archive || size;
    if (archive.isSaving()) return;
    if (size < 0) throw gkArchive::BadValue(L"a region's cachedVectorSize is negative");
    setPoints(vertices);
    gkContour::isClosed(false);
    label(0);
    cachedVectorSize(size);
    holes_.clear();
}
