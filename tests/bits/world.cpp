// Compiled with the library's own options whatever the operations are compiled with: it computes.
#include "tests/bits/world.h"

#include "platform/core/transform/rigid.h"
#include "tests/gen/places.h"
#include "tests/gen/probes.h"
#include "tests/gen/tangles.h"

#include <algorithm>

namespace {

using bits::Points;
using gen::Random;

// Hundreds of vertices, and many crossings.
Points manyStars(Random& random) {
    Points points;
    for (int i = random.integer(4, 16); i > 0; --i) {
        for (const gkVector<2>& p : gen::star(random)) points.push_back(p);
    }
    return points;
}

// A long way around, without crossings.
Points manyTeeth(Random& random) {
    Points points;
    for (int i = 0; i < 8; ++i) {
        const double x = 600.0 * i;
        for (const gkVector<2>& p : gen::latticeOutline(random)) points.push_back(p + gkVector<2>(x, 0.0));
    }
    return points;
}

const std::vector<gen::Kind>& kinds() {
    static const std::vector<gen::Kind> list = [] {
        std::vector<gen::Kind> all = gen::kinds();
        all.insert(all.end(), gen::tangles().begin(), gen::tangles().end());
        all.push_back({"many stars", &manyStars, true});
        all.push_back({"many teeth", &manyTeeth, true});
        return all;
    }();
    return list;
}

gkVector<2> middle(const Points& points) {
    if (points.empty()) return gkVector<2>(0.0, 0.0);
    gkVector<2> low = points.front();
    gkVector<2> high = low;
    for (const gkVector<2>& p : points) {
        low = gkVector<2>(std::min(low.x(), p.x()), std::min(low.y(), p.y()));
        high = gkVector<2>(std::max(high.x(), p.x()), std::max(high.y(), p.y()));
    }
    return (low + high) / 2.0;
}

// Every second or third of them, from the first on.
template <class T> std::vector<T> thinned(const std::vector<T>& all, std::size_t step) {
    std::vector<T> list;
    for (std::size_t i = 0; i < all.size(); i += step) list.push_back(all[i]);
    return list;
}

std::vector<gkXform<2>> transforms(Random& random) {
    const gkRadian angle(random.between(-7.0, 7.0));
    const gkMatrix<2> flat(1.0, 2.0, 2.0, 4.0);
    return {gkXform<2>(), gkXform<2>(gkMatrix<2>(1.0, 0.5, -0.25, 2.0), {3.0, -1.0}),
            gk2Rigid(angle, gen::place(random, 100.0)).xform(), gkXform<2>(flat, {0.0, 0.0})};
}

std::vector<gkEdgelet> edgelets(const Points& points, Random& random) {
    std::vector<gkEdgelet> data;
    for (const gkVector<2>& p : points) {
        const auto magnitude = static_cast<unsigned short>(random.integer(0, 65535));
        data.emplace_back(p, magnitude, gkAngle8(static_cast<unsigned char>(random.integer(0, 255))));
    }
    return data;
}

} // namespace

namespace bits {

World world(std::size_t index) {
    const std::size_t block = index / kShapesInBlock;
    const gen::Kind& kind = kinds()[block % kinds().size()];
    World world;
    world.index = index;
    world.kind = kind.name;
    world.seed = 1 + block / kinds().size() * kShapesInBlock + index % kShapesInBlock;
    world.closed = world.seed % 3 != 0;
    world.points = gen::shape(kind, world.seed);
    const gkVector<2> center = middle(world.points);
    for (const gkVector<2>& p : world.points) {
        const gkVector<2> half = (p - center) / 2.0;
        world.hole.push_back(center + half);
    }
    Random random(index + 1);
    world.other = gen::star(random);
    world.set = gen::shapes(gen::setKinds()[index % gen::setKinds().size()], index + 1);
    world.probes = thinned(gen::probes(world.points, world.seed), 3);
    world.segments = thinned(gen::querySegments(world.points, world.seed), 3);
    world.tolerances = gen::tolerances(world.points);
    world.xforms = transforms(random);
    world.angles = {0.0, 1.5707963267948966, -3.141592653589793, random.between(-10.0, 10.0),
                    random.between(-1e6, 1e6)};
    world.data = edgelets(world.points, random);
    return world;
}

} // namespace bits
