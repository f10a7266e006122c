// What each class keeps: one question for every kept result, for the tables of changes.
#ifndef GK_TESTS_SUPPORT_KEPT_RESULTS_H
#define GK_TESTS_SUPPORT_KEPT_RESULTS_H

#include "cntr/regionst.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <functional>
#include <string>
#include <vector>

template <class Shape> struct Kept {
    std::string name;
    std::function<Answer(const Shape&)> ask;
};

// Everything a contour keeps; regions answer these as well.
const std::vector<Kept<gkContour>>& keptOfContours();
// What a region keeps beyond that, and two questions that lean on it.
const std::vector<Kept<gkRegion>>& keptOfRegions();
const std::vector<Kept<gkRegionSet>>& keptOfSets();

Answer repaired(const gkRegion& region, void (gkRegion::*repair)(gkRegion&) const);
Answer repaired(const gkRegionSet& set, void (gkRegionSet::*repair)(gkRegionSet&) const);

#endif
