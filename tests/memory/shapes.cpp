#include "tests/memory/shapes.h"

#include "tests/gen/random.h"

namespace memory {

Points star(int count, const gkVector<2>& center) {
    gen::Random random(7);
    Points points;
    for (int i = 0; i < count; ++i)
        points.push_back(center + gkVector<2>(40.0 + random.unit(), gkRadian(6.283185307179586 * i / count)));
    return points;
}

Points eight(int count) {
    Points points;
    for (int i = 0; i < count; ++i) {
        const double t = 6.283185307179586 * (i + 0.25) / count;
        points.emplace_back(30.0 * gkVector<2>(1.0, gkRadian(t)).y(),
                            20.0 * gkVector<2>(1.0, gkRadian(2.0 * t)).y());
    }
    return points;
}

void expectAnswersOfATwin(const gkContour& contour) {
    gkContour twin(contour.points(), contour.isClosed(), contour.label());
    twin.cachedVectorSize(contour.cachedVectorSize());
    expectEqualAnswers<gkContour, gkContour>(keptOfContours(), twin, contour);
}

void expectAnswersOfATwin(const gkRegion& region) {
    gkRegion twin(region.points());
    twin.holes(region.holes());
    twin.label(region.label());
    expectEqualAnswers<gkContour, gkContour>(keptOfContours(), twin, region);
    expectEqualAnswers<gkRegion, gkRegion>(keptOfRegions(), twin, region);
}

void expectAnswersOfATwin(const gkRegionSet& set) {
    const gkRegionSet twin(set.regions());
    expectEqualAnswers<gkRegionSet, gkRegionSet>(keptOfSets(), twin, set);
}

} // namespace memory
