// The contour's archive record, both versions, and its drawing.
#include "cntr/contour.h"
#include "cntr/legacy_base.h"
#include "cntr/one_thread.h"
#include "cntr/segment_walk.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"

#include <typeinfo>
#include <utility>

gk_Instantiator gkContour::sExemplar(typeid(gkContour), "gkContour", &gkContour::make);

gkPersistent* gkContour::make() { return new gkContour(std::vector<gkVector<2>>(), true, 0); }

void gkContour::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 1;
    archive || version;
    // This level's own record, not the override of a derived class, whose record wraps this one.
    gkContour::serialize_(archive, version);
    setVisited(archive);
}

void gkContour::serialize_(gkArchive& archive, unsigned char version) {
    if (version > 1) throw gkArchive::UnknownVersion("cntr/contour", version);
    if (version == 0) {
        gkContourBase().pass(archive);
    } else {
        gkPersistent::dispatchSerialize(archive);
    }
    if (archive.isSaving()) {
        passValue(archive, value_, version);
        return;
    }
    // Read aside, so that a record that breaks off leaves vertices and kept results as they were.
    Value loaded;
    passValue(archive, loaded, version);
    value_ = std::move(loaded);
    cleanCacheInfo();
}

void gkContour::passValue(gkArchive& archive, Value& value, unsigned char version) {
    unsigned long label = value.label;
    long cachedVectorSize = value.cachedVectorSize;
    if (version == 0) {
        unsigned char unused = 0;
        archive || value.points;
        archive || unused;
        archive || cachedVectorSize;
        archive || value.closed;
        label = 0;
    } else {
        archive || label;
        archive || value.closed;
        archive || value.points;
        archive || cachedVectorSize;
    }
    if (cachedVectorSize < 0) throw gkArchive::BadValue(L"a contour's cachedVectorSize is negative");
    value.label = static_cast<std::uint32_t>(label);
    value.cachedVectorSize = static_cast<std::int32_t>(cachedVectorSize);
}

void gkContour::draw(gkUITablet& tablet, gkContourDefs::DrawMode, const gkColor& color,
                     const gkUITablet::Layers& layer) const {
    const gk_OneThread here(*this);
    gk_WalkSegments(value_.points, isClosed(), [&](const gkVector<2>& from, const gkVector<2>& to) {
        tablet.drawLineSeg(gkPair<double>(from.x(), from.y()), gkPair<double>(to.x(), to.y()), color, layer);
    });
}
