// Regions, with and without their holes.
#include "tests/comparisons/asked_contour.h"
#include "tests/comparisons/holed.h"

namespace comparisons {
namespace {

struct AskedRegion {
    AskedRegion(const Holed& holed, std::uint64_t seed)
        : region(*holed.region), plain(holed.plain), questions(plain.outline, seed) {}

    const gkRegion& region;
    const oracle::Region& plain;
    Questions questions;
};

using RegionQuestion = void (*)(AskedRegion&, Tally&);

void inside(AskedRegion& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const bool holes = a.questions.flag();
    tally.compare(
        "inside, considerHoles", [&] { return oracle::inside(a.plain, p, holes); },
        [&] { return a.region.inside(p, holes); }, p, holes);
}

void closestVertex(AskedRegion& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const bool holes = a.questions.flag();
    tally.compare(
        "closestVertexIndex and hole, considerHoles",
        [&](Answer& answer) {
            long hole = 0;
            answer.add(oracle::closestVertexIndex(a.plain, p, holes, hole));
            answer.add(hole);
        },
        [&](Answer& answer) {
            long hole = 0;
            answer.add(a.region.closestVertexIndex(p, holes, hole));
            answer.add(hole);
        },
        p, holes);
}

void closestPoint(AskedRegion& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const bool vertices = a.questions.flag();
    const bool holes = a.questions.flag();
    tally.compare(
        "closestPoint, verticesOnly, considerHoles",
        [&] { return oracle::closestPoint(a.plain, p, vertices, holes); },
        [&] { return a.region.closestPoint(p, vertices, holes); }, p, vertices, holes);
}

void distance(AskedRegion& a, Tally& tally) {
    const gkVector<2> p = a.questions.point();
    const bool vertices = a.questions.flag();
    const bool holes = a.questions.flag();
    const bool zero = a.questions.flag();
    tally.compare(
        "distToPoint, verticesOnly, considerHoles, zeroInside",
        [&] { return oracle::distToPoint(a.plain, p, vertices, holes, zero); },
        [&] { return a.region.distToPoint(p, vertices, holes, zero); }, p, vertices, holes, zero);
}

void crossings(AskedRegion& a, Tally& tally) {
    const gkLineSeg seg = a.questions.segment();
    const bool includeEnds = a.questions.flag();
    const bool holes = a.questions.flag();
    tally.compare(
        "intersections, includeEnds, considerHoles",
        [&] { return oracle::crossingPoints(a.plain, seg, includeEnds, holes); },
        [&] { return a.region.intersections(seg, includeEnds, holes); }, seg, includeEnds, holes);
}

void area(AskedRegion& a, Tally& tally) {
    const bool holes = a.questions.flag();
    tally.compare(
        "area, considerHoles", [&] { return oracle::area(a.plain, holes); },
        [&] { return a.region.area(holes); }, holes);
}

// Asked once: only the first answer with holes is the centre.
void centerOfMass(AskedRegion& a, Tally& tally) {
    const bool holes = a.questions.flag();
    tally.compare(
        "centerOfMass, considerHoles", [&] { return oracle::centroid(a.plain, holes); },
        [&] { return a.region.centerOfMass(holes); }, holes);
}

void inertia(AskedRegion& a, Tally& tally) {
    const bool holes = a.questions.flag();
    tally.compare(
        "inertiaMatrix, considerHoles", [&] { return oracle::inertiaMatrix(a.plain, holes); },
        [&] { return a.region.inertiaMatrix(holes); }, holes);
}

Operation onRegions(const std::string& name, const Sizes& sizes, int times,
                    const std::vector<RegionQuestion>& questions) {
    return {name, [=](std::uint64_t seed, Tally& tally) {
                const Outline outline = outlineOf(seed, sizes);
                gen::Random random(seed + 2);
                const Holed holed = withHoles(outline.points, holesFor(outline.points, random));
                tally.shape(outline.kind, seed, outline.points.size());
                AskedRegion asked(holed, seed);
                for (int i = 0; i < times; ++i) questions[random.index(questions.size())](asked, tally);
            }};
}

// Whether a hole is accepted, and which error refuses it.
void acceptedHole(std::uint64_t seed, Tally& tally) {
    const Outline outline = outlineOf(seed, kQuadratic);
    gen::Random random(seed + 2);
    tally.shape(outline.kind, seed, outline.points.size());
    for (const Holed& hole : holesFor(outline.points, random)) {
        tally.compare(
            "holes",
            [&] {
                const Points met = oracle::crossingsWithContour(outline.points, true, hole.plain.outline, true);
                if (!met.empty()) throw oracle::Refusal{"BadParams"};
                return true;
            },
            [&] {
                gkRegion(outline.points).holes({hole.region});
                return true;
            },
            hole.plain.outline);
    }
}

} // namespace

Operations regionOperations() {
    return {
        {"region.holes", &acceptedHole},
        onRegions("region.inside", kMiddling, 24, {&inside}),
        onRegions("region.closestVertex", kMiddling, 24, {&closestVertex}),
        onRegions("region.closestPoint", kMiddling, 24, {&closestPoint}),
        onRegions("region.distance", kMiddling, 24, {&distance}),
        onRegions("region.crossings", kMiddling, 24, {&crossings}),
        onRegions("region.area", kQuadratic, 2, {&area}),
        onRegions("region.centerOfMass", kQuadratic, 1, {&centerOfMass}),
        onRegions("region.inertia", kQuadratic, 2, {&inertia}),
        onRegions("region.anyOrder", kMiddling, 30,
                  {&inside, &inside, &closestVertex, &closestPoint, &distance, &crossings, &area, &inertia})};
}

} // namespace comparisons
