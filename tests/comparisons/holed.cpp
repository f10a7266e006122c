#include "tests/comparisons/holed.h"

namespace comparisons {
namespace {

Points shrunk(const Points& points, const gkVector<2>& towards, double factor) {
    Points list;
    for (const gkVector<2>& p : points) list.push_back(towards + (p - towards) * factor);
    return list;
}

gkVector<2> meanOf(const Points& points) {
    gkVector<2> sum(0.0, 0.0);
    for (const gkVector<2>& p : points) sum += p;
    return sum / static_cast<double>(points.size());
}

} // namespace

Holed withoutHoles(const Points& points) { return {Shared(new gkRegion(points)), {points, {}}}; }

std::vector<Holed> holesFor(const Points& points, gen::Random& random) {
    std::vector<Holed> holes;
    if (points.empty()) return holes;
    const gkVector<2> middle = meanOf(points);
    for (int i = random.integer(0, 3); i > 0; --i) {
        const gkVector<2> aim = random.chance(0.5) ? middle : points[random.index(points.size())];
        const gkVector<2> towards = (middle + aim) / 2.0;
        const Points outline = shrunk(points, towards, random.between(0.05, 0.5));
        holes.push_back(random.chance(0.3)
                            ? withHoles(outline, {withoutHoles(shrunk(outline, meanOf(outline), 0.3))})
                            : withoutHoles(outline));
    }
    if (random.chance(0.2)) holes.push_back(withoutHoles(outlineOf(random.next(), kSmall).points));
    return holes;
}

Holed withHoles(const Points& points, const std::vector<Holed>& holes) {
    Holed result = withoutHoles(points);
    Holes accepted;
    for (const Holed& hole : holes) {
        try {
            gkRegion(points).holes({hole.region});
        } catch (const gkContourDefs::Errors&) {
            continue;
        }
        accepted.push_back(hole.region);
        result.plain.holes.push_back(hole.plain);
    }
    result.region->holes(accepted);
    return result;
}

} // namespace comparisons
