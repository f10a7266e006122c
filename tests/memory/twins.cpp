#include "tests/memory/twins.h"

namespace memory {

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
