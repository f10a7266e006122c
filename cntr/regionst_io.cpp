// The region set's archive record, both versions.
#include "cntr/regionst.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"

#include <typeinfo>
#include <utility>

gk_Instantiator gkRegionSet::sExemplar(typeid(gkRegionSet), "gkRegionSet", &gkRegionSet::make);

gkPersistent* gkRegionSet::make() { return new gkRegionSet; }

void gkRegionSet::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 1;
    archive || version;
    // This level's own record, not the override of a derived class, whose record wraps this one.
    gkRegionSet::serialize_(archive, version);
    setVisited(archive);
}

void gkRegionSet::serialize_(gkArchive& archive, unsigned char version) {
    if (version > 1) throw gkArchive::UnknownVersion("cntr/regionst", 479);
    gkPersistent::dispatchSerialize(archive);
    Regions regions;
    if (archive.isSaving()) regions = regions_;
    archive || regions;
    long size = cachedVectorSize_;
    if (version == 1) archive || size; // a record of version 0 leaves the value as it was
    if (size < 0) throw gkArchive::BadValue(L"a region set's cachedVectorSize is negative");
    if (archive.isSaving()) return;
    regions_ = std::move(regions);
    cachedVectorSize_ = static_cast<std::int32_t>(size);
    cleanCacheInfo();
}
