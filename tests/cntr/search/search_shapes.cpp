#include "tests/cntr/search/search_shapes.h"

#include "tests/gen/large.h"

namespace search {

std::vector<Shape> largeShapes(std::uint64_t seed) {
    gen::Random random(seed);
    const int count = random.integer(100, 700);
    std::vector<Shape> shapes;
    for (const gen::LargeKind& kind : gen::largeKinds())
        shapes.push_back({kind.name, kind.make(random, count)});
    return shapes;
}

} // namespace search
