#include "platform/core/object/persistent.h"

#include "platform/core/archive/archive.h"

gkPersistent::~gkPersistent() = default;

void gkPersistent::dispatchSerialize(gkArchive& ar) {
    unsigned char version = 0;
    ar || version;
    if (version != 0) throw gkArchive::UnknownVersion("gkPersistent", 0);
}

void gkPersistent::reInit() {}

void gkPersistent::loadSimple(gkArchive& ar) {
    dispatchSerialize(ar);
    reInit();
}

bool gkPersistent::haveVisited(const gkArchive& ar) const { return ar.isVisited(*this); }

void gkPersistent::setVisited(gkArchive& ar) const { ar.visited(*this, true); }
