#include "tests/fuzz/repair_laws.h"

#include "cntr/region.h"
#include "tests/fuzz/target.h"
#include "tests/oracle/crossings.h"
#include "tests/oracle/repair.h"
#include "tests/support/answer.h"

#include <sstream>

namespace {

Answer repaired(const gkRegion& region, bool outerHull) {
    return answer([&] {
        gkRegion result;
        outerHull ? region.outerHull(result) : region.regularize(result);
        fuzz::demand(result.isClosed(), "a repaired region is closed");
        if (region.isSelfIntersecting())
            fuzz::demand(result.holes().empty() && result.label() == 0,
                         "a repaired region has no holes and label 0");
        return result.points();
    });
}

} // namespace

namespace fuzz {

void demandEqual(const Answer& plain, const Answer& ours, const std::string& what) {
    if (plain == ours) return;
    std::ostringstream law;
    law << what << "\n  plain: " << plain << "\n  ours:  " << ours;
    demand(false, law.str());
}

void demandRepair(const Points& points, bool outerHull) {
    gkRegion region(points);
    region.label(7);
    demandEqual(answer([&] { return oracle::isSelfIntersecting(points, true); }),
                answer([&] { return region.isSelfIntersecting(); }), "isSelfIntersecting");
    const Answer plain =
        answer([&] { return outerHull ? oracle::outerHull(points) : oracle::regularize(points); });
    demandEqual(plain, repaired(region, outerHull), "the repair");
    demandEqual(plain, repaired(region, outerHull), "the repair, asked again");
}

} // namespace fuzz
