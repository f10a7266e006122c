// Sets of many small regions.
#include "tests/gen/places.h"
#include "tests/instructions/shapes.h"

namespace instructions {
namespace {

std::function<void()> queries() {
    auto set = std::make_shared<gkRegionSet>(rows(400, 25.0));
    return [=] {
        gen::Random random(5);
        set->isSelfIntersecting();
        for (int i = 0; i < 2000; ++i) {
            const gkVector<2> p = gen::placeBetween(random, {-20.0, -20.0}, {520.0, 520.0});
            set->inside(p, true);
            set->distToPoint(p, false, true, true);
        }
    };
}

std::function<void()> merge() {
    auto set = std::make_shared<gkRegionSet>(rows(40, 15.0));
    return [=] {
        gkRegionSet merged;
        set->outerHull(merged);
    };
}

} // namespace

Workloads setWorkloads() { return {{"set queries", &queries}, {"merge", &merge}}; }

} // namespace instructions
