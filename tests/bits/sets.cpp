// The region set's operations.
#include "cntr/regionst.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

using Handle = gkPtrHandle_const<gkRegion>;

std::vector<Handle> regionsOf(const World& world) {
    std::vector<Handle> regions;
    for (const bits::Points& outline : world.set) regions.emplace_back(new gkRegion(outline));
    return regions;
}

void addOutlines(Answer& answer, const gkRegionSet& set) {
    answer.add(static_cast<long>(set.regions().size()));
    for (const Handle& region : set.regions()) answer.add(region->points());
}

void area(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    record.value([&] { return set.area(false); });
    record.value([&] { return set.area(true); });
}

void centerOfMass(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    record.value([&] { return set.centerOfMass(false); });
    record.value([&] { return set.centerOfMass(true); });
    record.value([] { return gkRegionSet().centerOfMass(false); });
}

void inertiaMatrix(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    record.value([&] { return set.inertiaMatrix(false); });
    record.value([&] { return set.inertiaMatrix(true); });
}

void inside(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    for (const gkVector<2>& p : world.probes) record.value([&] { return set.inside(p, true); });
}

void distToPoint(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    for (const gkVector<2>& p : world.probes) {
        record.value([&] { return set.distToPoint(p, false, true, false); });
        record.value([&] { return set.distToPoint(p, true, false, true); });
    }
}

void encloseRect(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    for (const gkXform<2>& xform : world.xforms) record.value([&] { return set.encloseRect(xform); });
}

void isSelfIntersecting(const World& world, Record& record) {
    const gkRegionSet set(regionsOf(world));
    record.value([&] { return set.isSelfIntersecting(); });
}

void regularize(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRegionSet result;
        gkRegionSet(regionsOf(world)).regularize(result);
        addOutlines(answer, result);
    });
}

void outerHull(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkRegionSet result;
        gkRegionSet(regionsOf(world)).outerHull(result);
        addOutlines(answer, result);
    });
}

// The shape itself among the regions, kept as it is.
void addShape(const World& world, Record& record) {
    gkRegionSet set(regionsOf(world));
    record.fill([&](Answer& answer) {
        set.add(Handle(new gkRegion(world.points)), gkContourDefs::eKeepIntersections);
        addOutlines(answer, set);
        answer.add(set.area(true));
    });
    record.value([&] { return set == gkRegionSet(regionsOf(world)); });
}

} // namespace

bits::Operations bits::setOperations() {
    return {{"set.area", &area},
            {"set.centerOfMass", &centerOfMass},
            {"set.inertiaMatrix", &inertiaMatrix},
            {"set.inside", &inside},
            {"set.distToPoint", &distToPoint},
            {"set.encloseRect", &encloseRect},
            {"set.isSelfIntersecting", &isSelfIntersecting},
            {"set.regularize", &regularize},
            {"set.outerHull", &outerHull},
            {"set.add", &addShape}};
}
