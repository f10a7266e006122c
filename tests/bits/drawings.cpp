// What shapes draw.
#include "ch_core/cntrtmpl.h"
#include "platform/display/recording_tablet.h"
#include "platform/display/svg_tablet.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

void addRecords(Answer& answer, const gkRecordingTablet& tablet) {
    for (const gkRecordingTablet::Record& drawn : tablet.records()) answer.add(drawn.numbers);
}

void contour(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRecordingTablet tablet;
        const gkContour shape(world.points, world.closed, 0);
        shape.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
        addRecords(answer, tablet);
    });
}

void edgelets(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRecordingTablet tablet;
        const gkRegionT<gkEdgelet> shape(world.data, 0);
        shape.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
        addRecords(answer, tablet);
    });
}

// Numbers as text.
void svg(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkSvgTablet tablet(100, 80, 0.7);
        const gkContour shape(world.points, world.closed, 0);
        shape.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
        tablet.drawEllipse({1.5, 2.5}, {0.1, 1.0 / 3.0}, gkRadian(world.angles[3]), gkColor::blue(),
                           gkUITablet::eLabelLayer);
        bits::add(answer, tablet.svg());
    });
}

} // namespace

bits::Operations bits::drawingOperations() {
    return {{"draw.contour", &contour}, {"draw.edgelets", &edgelets}, {"draw.svg", &svg}};
}
