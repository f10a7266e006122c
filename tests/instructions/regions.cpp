// Regions: containment, repair, archives, and many small ones.
#include "platform/core/archive/archive_memory.h"
#include "tests/gen/places.h"
#include "tests/instructions/shapes.h"

namespace instructions {
namespace {

struct Asked {
    std::unique_ptr<gkRegion> region;
    Points probes;
};

std::function<void()> inside(const std::vector<Points>& outlines, int copies, int questions) {
    auto list = std::make_shared<std::vector<Asked>>();
    for (std::unique_ptr<gkRegion>& region : regions(outlines, copies)) {
        Points probes = pointsIn(region->points(), questions);
        list->push_back({std::move(region), std::move(probes)});
    }
    return [=] {
        for (const Asked& asked : *list) {
            for (const gkVector<2>& p : asked.probes) asked.region->inside(p, true);
        }
    };
}

std::function<void()> repair() {
    auto list = std::make_shared<Fresh<gkRegion>>(regions({outline(Kind::eLissajous, 2000)}, 2));
    return [=] {
        gkRegion result;
        list->front()->regularize(result);
        list->back()->outerHull(result);
    };
}

std::function<void()> archives() {
    auto list = std::make_shared<Fresh<gkRegion>>(regions(simpleOutlines(20000), 1));
    return [=] {
        for (const auto& region : *list) {
            gkArchiveMemory to;
            to || *region;
            to.finish();
            gkArchiveMemory from(to.bytes());
            gkRegion read;
            from || read;
            from.finish();
        }
    };
}

std::function<void()> smallRegions() {
    gen::Random random(4);
    auto outlines = std::make_shared<std::vector<Points>>();
    for (int i = 0; i < 3000; ++i) {
        Points points;
        const gkVector<2> center = gen::place(random, 500.0);
        for (int k = 0; k < 20; ++k)
            points.push_back(center + gkVector<2>(random.between(5.0, 9.0), gkRadian(0.3141592653589793 * k)));
        outlines->push_back(points);
    }
    return [=] {
        for (const Points& points : *outlines) {
            const gkRegion region(points);
            region.area(false);
            region.encloseRect(gkXform<2>());
            region.inside((points[0] + points[9]) / 2.0, false);
        }
    };
}

} // namespace

Workloads regionWorkloads() {
    return {{"inside, fresh", [] { return inside(simpleOutlines(1000), 20, 1); }},
            {"inside, repeated", [] { return inside(simpleOutlines(4000), 1, 3000); }},
            {"repair", &repair},
            {"archive", &archives},
            {"small regions", &smallRegions}};
}

} // namespace instructions
