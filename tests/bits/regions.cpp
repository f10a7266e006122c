// The region's operations.
#include "cntr/region.h"
#include "tests/bits/operations.h"

namespace {

using bits::Points;
using bits::Record;
using bits::World;

using Handle = gkPtrHandle_const<gkRegion>;

// With a hole in the middle where the outline leaves room for it, and one far away.
gkRegion regionOf(const World& world) {
    gkRegion region(world.points);
    region.label(9);
    const Handle far(new gkRegion(Points{{3e6, 1.0}, {3e6 + 2.0, 1.0}, {3e6, 4.0}}));
    try {
        region.holes({Handle(new gkRegion(world.hole)), far});
    } catch (const gkException&) {
        try {
            region.holes({far});
        } catch (const gkException&) {
            region.holes({}); // too few vertices for any hole
        }
    }
    return region;
}

void addOutline(Answer& answer, const gkRegion& region) {
    answer.add(region.points());
    answer.add(static_cast<long>(region.holes().size()));
    answer.add(static_cast<long>(region.label()));
}

// Both with the holes and without.
template <class Ask> void bothWays(Ask ask) {
    for (const bool considerHoles : {false, true}) ask(considerHoles);
}

void holes(const World& world, Record& record) {
    record.fill([&](Answer& answer) { addOutline(answer, regionOf(world)); });
    gkRegion region(world.points);
    record.fill([&](Answer& answer) {
        region.holes({Handle(new gkRegion(world.other))});
        answer.add(true);
    });
    record.fill([&](Answer&) { region.holes({Handle()}); });
    record.fill([&](Answer&) { region.isClosed(false); });
}

void area(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    bothWays([&](bool holes) { record.value([&] { return region.area(holes); }); });
}

void centerOfMass(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    bothWays([&](bool holes) {
        record.value([&] { return region.centerOfMass(holes); });
        record.value([&] { return region.centerOfMass(holes); });
    });
}

void inertiaMatrix(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    bothWays([&](bool holes) { record.value([&] { return region.inertiaMatrix(holes); }); });
}

void inside(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    for (const gkVector<2>& p : world.probes) {
        bothWays([&](bool holes) { record.value([&] { return region.inside(p, holes); }); });
    }
}

void closestVertexIndex(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    for (const gkVector<2>& p : world.probes) {
        bothWays([&](bool holes) {
            record.fill([&](Answer& answer) {
                long hole = 0;
                answer.add(region.closestVertexIndex(p, holes, hole));
                answer.add(hole);
            });
        });
    }
}

void closestPoint(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    for (const gkVector<2>& p : world.probes) {
        bothWays([&](bool holes) {
            record.value([&] { return region.closestPoint(p, false, holes); });
            record.value([&] { return region.closestPoint(p, true, holes); });
        });
    }
}

void distToPoint(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    for (const gkVector<2>& p : world.probes) {
        bothWays([&](bool holes) {
            record.value([&] { return region.distToPoint(p, false, holes, false); });
            record.value([&] { return region.distToPoint(p, true, holes, true); });
        });
    }
}

void intersections(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    for (const gkLineSeg& seg : world.segments) {
        bothWays([&](bool holes) { record.value([&] { return region.intersections(seg, true, holes); }); });
        record.value([&] { return region.intersections(seg, false); });
    }
    const gkContour other(world.other, true, 0);
    bothWays([&](bool holes) { record.value([&] { return region.intersections(other, holes); }); });
    record.value([&] { return region.intersections(other); });
}

void map(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    for (const gkXform<2>& xform : world.xforms) {
        record.fill([&](Answer& answer) {
            gkRegion mapped;
            region.map(xform, mapped);
            addOutline(answer, mapped);
        });
    }
}

void convexHull(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRegion region = regionOf(world);
        region.convexHull(region);
        addOutline(answer, region);
    });
}

void contourMeasures(const World& world, Record& record) {
    const gkRegion region = regionOf(world);
    record.value([&] { return region.length(); });
    record.value([&] { return region.meanPosition(); });
    record.value([&] { return region.diameter(gkContourDefs::eExact); });
    record.value([&] { return region.isSelfIntersecting(); });
    record.value([&] { return region.encloseRect(world.xforms[1]); });
}

void regularize(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRegion result;
        regionOf(world).regularize(result);
        addOutline(answer, result);
    });
}

void outerHull(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRegion result;
        regionOf(world).outerHull(result);
        addOutline(answer, result);
    });
}

void construction(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        addOutline(answer, gkRegion(gkPolygon(world.points), gkContourDefs::eRegularize));
    });
    record.fill([&](Answer& answer) {
        addOutline(answer, gkRegion(gkContour(world.points, false, 5), gkContourDefs::eOuterHull));
    });
}

} // namespace

bits::Operations bits::regionOperations() {
    return {{"region.holes", &holes},
            {"region.area", &area},
            {"region.centerOfMass", &centerOfMass},
            {"region.inertiaMatrix", &inertiaMatrix},
            {"region.inside", &inside},
            {"region.closestVertexIndex", &closestVertexIndex},
            {"region.closestPoint", &closestPoint},
            {"region.distToPoint", &distToPoint},
            {"region.intersections", &intersections},
            {"region.map", &map},
            {"region.convexHull", &convexHull},
            {"region.contourMeasures", &contourMeasures},
            {"region.regularize", &regularize},
            {"region.outerHull", &outerHull},
            {"region.construction", &construction}};
}
