#include "tests/comparisons/outlines.h"

#include "tests/gen/large.h"
#include "tests/gen/places.h"
#include "tests/gen/tangles.h"

#include <limits>

namespace comparisons {
namespace {

using gen::Random;

// Where the library changes its ways: groups of 8 and 16, crossings to sort, outlines that get trees, runs,
// rings of outer vertices, cells and an order by counting. Most are private to their sources; tests/cntr/search
// reaches each way by itself, so a threshold that has moved is missed here only.
constexpr std::size_t kThresholds[] = {8, 16, 24, 32, 48, 64, 128, 256, 512, 2048, 16384, 65536};

std::size_t sizeBesideThreshold(Random& random, const Sizes& sizes) {
    for (;;) {
        const std::size_t size = kThresholds[random.index(std::size(kThresholds))];
        if (size > sizes.most || random.index(size) >= sizes.even) continue;
        return size + random.index(3) - 1;
    }
}

// One coordinate that no outline should have, or one that is equal to another but for its sign.
void spoilOne(Points& points, Random& random) {
    const double values[] = {std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(),
                             1e150,
                             -1e300,
                             1e-200,
                             5e-324,
                             0.0,
                             -0.0};
    gkVector<2>& p = points[random.index(points.size())];
    const double value = values[random.index(std::size(values))];
    p = random.chance(0.5) ? gkVector<2>(value, p.y()) : gkVector<2>(p.x(), value);
}

// Beyond and just within the magnitudes for which bounds hold, and where 1e-6 is much or nothing.
void resize(Points& points, Random& random) {
    const double factors[] = {1e-160, 1e-142, 1e-136, 1e-9, 1e-6, 1e4, 1e9, 1e134, 1e138, 1e150};
    const double factor = factors[random.index(std::size(factors))];
    for (gkVector<2>& p : points) p = p * factor;
}

void besideThreshold(Outline& outline, Random& random, const Sizes& sizes) {
    const gen::LargeKind& kind = gen::largeKinds()[random.index(gen::largeKinds().size())];
    const std::size_t size = sizeBesideThreshold(random, sizes);
    outline.kind = kind.name;
    outline.points = gen::exactly(kind, random, static_cast<int>(size));
    if (random.chance(0.1)) resize(outline.points, random);
    if (random.chance(0.1)) spoilOne(outline.points, random);
}

} // namespace

Outline outlineOf(std::uint64_t seed, const Sizes& sizes) {
    Random random(seed);
    Outline outline;
    outline.seed = seed;
    outline.closed = random.chance(0.6);
    if (random.chance(sizes.share)) {
        besideThreshold(outline, random, sizes);
        return outline;
    }
    const std::size_t plain = gen::kinds().size();
    const std::size_t index = random.index(plain + gen::tangles().size());
    const gen::Kind& kind = index < plain ? gen::kinds()[index] : gen::tangles()[index - plain];
    outline.kind = kind.name;
    outline.points = kind.make(random);
    return outline;
}

} // namespace comparisons
