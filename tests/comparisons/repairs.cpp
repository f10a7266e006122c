// Repair of outlines that cross themselves, and the splice of two that cross each other.
#include "tests/comparisons/operations.h"
#include "tests/comparisons/outlines.h"
#include "tests/gen/places.h"
#include "tests/gen/tangles.h"
#include "tests/oracle/repair.h"
#include "tests/support/repair_access.h"

namespace comparisons {
namespace {

// Every edge in up to four pieces that meet almost on it, so that there are enough segments for an index.
Points inPieces(const Points& points, gen::Random& random) {
    Points list;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const gkVector<2>& from = points[i];
        const gkVector<2> along = points[(i + 1) % points.size()] - from;
        const int pieces = random.integer(1, 4);
        list.push_back(from);
        for (int k = 1; k < pieces; ++k)
            list.push_back(from + along * (k / static_cast<double>(pieces)) + gen::place(random, 2e-6));
    }
    return list;
}

// The plain walk asks for every crossing at every step, so these are small; some are of any kind, and some of
// those large enough for an index.
Outline tangleOf(std::uint64_t seed) {
    gen::Random random(seed);
    if (random.chance(0.125)) return outlineOf(random.next(), kSmall);
    const gen::Kind& kind = gen::tangles()[random.index(gen::tangles().size())];
    Outline outline{kind.name, seed, kind.make(random), true};
    if (outline.points.size() < 40 && random.chance(0.25)) outline.points = inPieces(outline.points, random);
    return outline;
}

template <class Define, class Repair>
Operation onTangles(const std::string& name, Define define, Repair repair) {
    return {name, [=](std::uint64_t seed, Tally& tally) {
                const Outline outline = tangleOf(seed);
                tally.shape(outline.kind, seed, outline.points.size());
                const gkRegion region(outline.points);
                tally.compare(
                    name.c_str(), [&] { return define(outline.points); },
                    [&] {
                        gkRegion result;
                        repair(region, result);
                        return result.points();
                    });
            }};
}

void spliced(std::uint64_t seed, Tally& tally) {
    const Outline one = outlineOf(seed, kSmall);
    gen::Random random(seed + 2);
    tally.shape(one.kind, seed, one.points.size());
    const gkRegion region(one.points);
    for (int i = 0; i < 4; ++i) {
        Points other = outlineOf(random.next(), kSmall).points;
        if (!one.points.empty() && !other.empty() && random.chance(0.75)) {
            const gkVector<2> shift = one.points[random.index(one.points.size())] - other.front();
            for (gkVector<2>& p : other) p = p + shift;
        }
        tally.compare(
            "splice with", [&] { return oracle::splice(one.points, other); },
            [&] {
                gkRegion result;
                splice(region, gkRegion(other), result);
                return result.points();
            },
            other);
    }
}

} // namespace

Operations repairOperations() {
    return {onTangles(
                "region.regularize", [](const Points& points) { return oracle::regularize(points); },
                [](const gkRegion& region, gkRegion& result) { region.regularize(result); }),
            onTangles(
                "region.outerHull", [](const Points& points) { return oracle::outerHull(points); },
                [](const gkRegion& region, gkRegion& result) { region.outerHull(result); }),
            {"region.splice", &spliced}};
}

} // namespace comparisons
