#include "cntr/regionst.h"
#include "tests/fuzz/repair_laws.h"
#include "tests/fuzz/target.h"
#include "tests/oracle/repair.h"
#include "tests/support/answer.h"

#include <algorithm>

namespace {

using Set = std::vector<fuzz::Points>;

// Of each member: the plain definitions take the third power of all vertices, and two members together are
// still more than the 48 from which on an index answers.
constexpr std::size_t kMostOfMember = 24;

Set membersFrom(const std::uint8_t* data, std::size_t size) {
    Set outlines = fuzz::outlinesFrom(data, size);
    for (fuzz::Points& points : outlines) points.resize(std::min(points.size(), kMostOfMember));
    return outlines;
}

gkRegionSet setOf(const Set& outlines) {
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const fuzz::Points& points : outlines) regions.emplace_back(new gkRegion(points));
    return gkRegionSet(regions);
}

Answer repaired(const gkRegionSet& set, bool outerHull) {
    return answer([&] {
        gkRegionSet result;
        outerHull ? set.outerHull(result) : set.regularize(result);
        fuzz::demand(result.regions().size() <= set.regions().size(), "merging makes no regions");
        Set all;
        for (const auto& region : result.regions()) all.push_back(region->points());
        return all;
    });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Set outlines = membersFrom(data, size);
    fuzz::demandEqual(answer([&] { return oracle::isSelfIntersecting(outlines); }),
                      answer([&] { return setOf(outlines).isSelfIntersecting(); }), "isSelfIntersecting");
    for (const bool outerHull : {false, true}) {
        const Answer plain =
            answer([&] { return outerHull ? oracle::outerHull(outlines) : oracle::regularize(outlines); });
        const gkRegionSet set = setOf(outlines);
        fuzz::demandEqual(plain, repaired(set, outerHull), "the repaired set");
        // After an error a set keeps what it had found by then, and goes by that.
        if (plain.error.empty())
            fuzz::demandEqual(plain, repaired(set, outerHull), "the repaired set, asked again");
    }
    return 0;
}
