// Laws of the repair of a set, over random sets of many kinds. Oracle: tests/oracle/repair.h.
#include "cntr/regionst.h"
#include "tests/gen/tangles.h"
#include "tests/oracle/crossings.h"
#include "tests/oracle/repair.h"
#include "tests/support/answer.h"
#include "tests/support/repair_rounds.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Set = std::vector<Points>;

gkRegionSet regionSet(const Set& given) {
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const Points& points : given) regions.emplace_back(new gkRegion(points));
    return gkRegionSet(regions);
}

Set pointsOf(const gkRegionSet& set) {
    Set all;
    for (const auto& region : set.regions()) all.push_back(region->points());
    return all;
}

Answer repaired(const Set& given, bool outerHull) {
    return answer([&] {
        gkRegionSet result;
        const gkRegionSet set = regionSet(given);
        outerHull ? set.outerHull(result) : set.regularize(result);
        return pointsOf(result);
    });
}

template <class Check> void eachSet(std::uint64_t standard, Check check) {
    for (const gen::SetKind& kind : gen::setKinds()) {
        for (std::uint64_t seed = 1; seed <= repairRounds(standard); ++seed) {
            const Set given = gen::shapes(kind, seed);
            SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed));
            check(given);
            if (testing::Test::HasFailure()) return;
        }
    }
}

// How far from the given edges a point can lie: each merge starts an outline at a point up to 1e-6 off, whose
// edges may be crossed again; the last 2e-6 are the walk's. The rest is for rounding, with coordinates below
// 1000.
double slackOf(const Set& given) { return 1e-6 * (static_cast<double>(given.size()) + 1.0) + 1e-11; }

bool isVertex(const Set& given, const gkVector<2>& p) {
    for (const Points& points : given) {
        if (std::find(points.begin(), points.end(), p) != points.end()) return true;
    }
    return false;
}

bool isCrossing(const Set& given, const gkVector<2>& p) {
    int near = 0;
    for (const Points& points : given) {
        for (const gkLineSeg& edge : oracle::segments(points, true)) {
            if (edge.distToPoint(p) < slackOf(given)) ++near;
        }
    }
    return near >= 2;
}

gkRect boxAround(const Set& given) {
    gkRect box = oracle::pointBox(given[0][0]);
    const gkVector<2> margin(slackOf(given), slackOf(given));
    for (const Points& points : given) {
        for (const gkVector<2>& p : points) {
            box = box.enclose(oracle::pointBox(p - margin)).enclose(oracle::pointBox(p + margin));
        }
    }
    return box;
}

} // namespace

TEST(RegionSetRepairLaws, RegularizeEqualsThePlainOneToTheBit) {
    eachSet(1500, [](const Set& given) {
        EXPECT_EQ(answer([&] { return oracle::regularize(given); }), repaired(given, false));
    });
}

TEST(RegionSetRepairLaws, OuterHullEqualsThePlainOneToTheBit) {
    eachSet(1500, [](const Set& given) {
        EXPECT_EQ(answer([&] { return oracle::outerHull(given); }), repaired(given, true));
    });
}

TEST(RegionSetRepairLaws, VerticesAreVerticesOrCrossingsOfTheInputWithinItsBox) {
    eachSet(1500, [](const Set& given) {
        for (const bool outerHull : {false, true}) {
            const gkRegionSet set = regionSet(given);
            gkRegionSet result;
            try {
                outerHull ? set.outerHull(result) : set.regularize(result);
            } catch (...) {
                currentError(); // throws on what no repair may throw
                continue;
            }
            for (const Points& points : pointsOf(result)) {
                for (const gkVector<2>& p : points) {
                    EXPECT_TRUE(isVertex(given, p) || isCrossing(given, p)) << p;
                    EXPECT_TRUE(boxAround(given).within(p)) << p;
                }
            }
        }
    });
}

TEST(RegionSetRepairLaws, ASetThatDoesNotCrossItselfComesBackWithTheSameRegions) {
    eachSet(1500, [](const Set& given) {
        const gkRegionSet set = regionSet(given);
        if (oracle::isSelfIntersecting(given)) return;
        for (const bool outerHull : {false, true}) {
            gkRegionSet result;
            outerHull ? set.outerHull(result) : set.regularize(result);
            ASSERT_EQ(set.regions().size(), result.regions().size());
            for (std::size_t i = 0; i < given.size(); ++i) EXPECT_EQ(&*set.regions()[i], &*result.regions()[i]);
        }
    });
}
