// The operations that edgelets bring.
#include "ch_core/cntrtmpl.h"
#include "platform/core/transform/xform_linear.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

using Contour = gkContourT<gkEdgelet>;
using Region = gkRegionT<gkEdgelet>;
using Set = gkRegionSetT<gkEdgelet>;
using Transform = gkPtrHandle_const<gk2XformBase>;

void add(Answer& answer, const std::vector<gkEdgelet>& data) {
    answer.add(static_cast<long>(data.size()));
    for (const gkEdgelet& edgelet : data) {
        answer.add(edgelet.position());
        answer.add(static_cast<int>(edgelet.magnitude()));
        answer.add(static_cast<int>(edgelet.angle().toByte()));
    }
}

// Calls ask(transform) for every transform and for none.
template <class Ask> void everyTransform(const World& world, Ask ask) {
    ask(Transform());
    for (const gkXform<2>& xform : world.xforms) ask(Transform(new gk2XformLinear(xform)));
}

void pointsFromData(const World& world, Record& record) {
    everyTransform(world, [&](const Transform& transform) {
        record.fill([&](Answer& answer) {
            const Contour contour(world.data, transform);
            answer.add(contour.points());
            add(answer, contour.data());
        });
    });
}

void dataFromPoints(const World& world, Record& record) {
    everyTransform(world, [&](const Transform& transform) {
        record.fill([&](Answer& answer) {
            Contour contour(std::vector<gkEdgelet>(), transform);
            contour.points(world.points);
            add(answer, contour.data());
            contour.data(std::vector<gkEdgelet>(contour.data()));
            answer.add(contour.points());
        });
    });
}

void datumAndPoint(const World& world, Record& record) {
    everyTransform(world, [&](const Transform& transform) {
        Contour contour(std::vector<gkEdgelet>(), transform);
        for (const gkVector<2>& p : world.probes) {
            record.value([&] { return contour.datum(p).position(); });
            record.value([&] { return contour.point(gkEdgelet(p, 1, gkAngle8(2))); });
        }
    });
    record.value([] { return Contour().datum({1.0, 2.0}).position(); });
}

void regionMeasures(const World& world, Record& record) {
    everyTransform(world, [&](Transform transform) {
        record.fill([&](Answer& answer) {
            const Region region(world.data, transform, 4);
            answer.add(region.points());
            answer.add(region.area(true));
            answer.add(region.centerOfMass(true));
            answer.add(region.inertiaMatrix(false));
            answer.add(region.length());
        });
    });
}

void setMeasures(const World& world, Record& record) {
    Transform transform(new gk2XformLinear(world.xforms[1]));
    const gkPtrHandle_const<Region> one(new Region(world.data, 1));
    const gkPtrHandle_const<Region> other(new Region(world.data, transform, 2));
    const Set set(Set::Regions{one, other});
    record.value([&] { return set.area(true); });
    record.value([&] { return set.centerOfMass(true); });
    record.value([&] { return set.inertiaMatrix(true); });
    record.value([&] { return set == Set(Set::Regions{other, one}); });
}

void refusals(const World& world, Record& record) {
    const Contour contour(world.data);
    Contour mapped;
    record.fill([&](Answer&) { contour.mapT(world.xforms[1], mapped); });
    Set set;
    record.fill([&](Answer&) {
        set.add(gkPtrHandle_const<gkRegion>(new gkRegion(world.points)), gkContourDefs::eKeepIntersections);
    });
    record.value([&] { return static_cast<long>(set.regionsT().size()); });
}

} // namespace

bits::Operations bits::edgeletOperations() {
    return {{"edgelet.pointsFromData", &pointsFromData}, {"edgelet.dataFromPoints", &dataFromPoints},
            {"edgelet.datumAndPoint", &datumAndPoint},   {"edgelet.regionMeasures", &regionMeasures},
            {"edgelet.setMeasures", &setMeasures},       {"edgelet.refusals", &refusals}};
}
