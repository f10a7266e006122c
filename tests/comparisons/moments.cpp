// Areas, centroids and second moments of plain vertices.
#include "cntr/moments.h"
#include "tests/comparisons/operations.h"
#include "tests/comparisons/outlines.h"
#include "tests/oracle/inertia.h"

namespace comparisons {
namespace {

template <class Compare> Operation onPoints(const std::string& name, Compare compare) {
    return {name, [=](std::uint64_t seed, Tally& tally) {
                const Outline outline = outlineOf(seed, kLinear);
                tally.shape(outline.kind, seed, outline.points.size());
                compare(outline.points, tally);
            }};
}

void area(const Points& points, Tally& tally) {
    tally.compare(
        "gf_Area", [&] { return oracle::area(points); }, [&] { return gf_Area(points); });
}

void centroid(const Points& points, Tally& tally) {
    tally.compare(
        "gf_CenterOfMass", [&] { return oracle::centroid(points); }, [&] { return gf_CenterOfMass(points); });
}

void inertia(const Points& points, Tally& tally) {
    tally.compare(
        "gf_InertiaDataPolygon",
        [&](Answer& answer) {
            const oracle::Inertia m = oracle::polygonInertia(points);
            answer.add(m.area);
            answer.add(m.center);
            answer.add(gkMatrix<2>(m.xx, m.xy, m.xy, m.yy));
        },
        [&](Answer& answer) {
            const gk_InertiaData data = gf_InertiaDataPolygon(points);
            answer.add(data.area());
            answer.add(data.centerOfMass());
            answer.add(data.inertiaMatrix());
        });
}

} // namespace

Operations momentOperations() {
    return {onPoints("moments.area", &area), onPoints("moments.centroid", &centroid),
            onPoints("moments.inertia", &inertia)};
}

} // namespace comparisons
