// The base record that version-0 archives hold before a contour's or region's own fields.
#ifndef GK_CNTR_LEGACY_BASE_H
#define GK_CNTR_LEGACY_BASE_H

#include "platform/core/object/persistent.h"
#include "platform/core/object/rep_base.h"

// The class that contours once derived from; it has no data. Its record is read and thrown away.
class gkContourBase : public virtual gkPersistent, public virtual gkRepBase {
public:
    // Passes the record through the archive: a version byte, which must be 0, and the gkPersistent record.
    // Never marked as visited, since the record belongs to another object each time.
    void pass(gkArchive& archive);
};

#endif
