#include "cntr/legacy_base.h"

#include "platform/core/archive/archive.h"

void gkContourBase::pass(gkArchive& archive) {
    unsigned char version = 0;
    archive || version;
    if (version != 0) throw gkArchive::UnknownVersion("gkContourBase", 0);
    gkPersistent::dispatchSerialize(archive);
}
