// Two regions spliced into one outline, and the one merging pass over a set.
#include "cntr/region_merge.h"
#include "cntr/regionst.h"
#include "cntr/splice.h"
#include "tests/oracle/repair.h"
#include "tests/support/repair_access.h"
#include "tests/support/shapes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using Shared = gkPtrHandle_const<gkRegion>;

Shared shared(const Points& vertices) { return Shared(new gkRegion(vertices)); }
Shared shared(const std::string& text) { return shared(points(text)); }

Points spliced(const std::string& one, const std::string& other) {
    gkRegion result;
    splice(gkRegion(points(one)), gkRegion(points(other)), result);
    return result.points();
}

std::wstring refusal(const std::string& one, const std::string& other) {
    try {
        spliced(one, other);
    } catch (const gkContourDefs::BadParams& refused) {
        return refused.message();
    }
    return L"spliced";
}

gkRegionSet outerHull(const gkRegionSet& set) {
    gkRegionSet result;
    set.outerHull(result);
    return result;
}

const char* const kSquare = "0 0, 4 0, 4 4, 0 4";
const char* const kAcross = "2 2, 6 2, 6 6, 2 6"; // meets it in (4, 2) and (2, 4)

} // namespace

TEST(RegionSplice, OfDisjointRegionsIsRefused) {
    EXPECT_EQ(L"spliced regions do not intersect", refusal(kSquare, "9 0, 12 0, 9 3"));
}

TEST(RegionSplice, OfARegionInsideAnotherIsRefused) {
    EXPECT_EQ(L"spliced regions do not intersect", refusal(kSquare, "1 1, 2 1, 1 2"));
}

TEST(RegionSplice, PassesTwiceThroughTheFirstCrossingAndRoundBoth) {
    const Points expected = points("4 2, 4 4, 0 4, 0 0, 4 0, 4 2, 6 2, 6 6, 2 6, 2 2");
    EXPECT_THAT(spliced(kSquare, kAcross), ElementsAreArray(expected));
    EXPECT_EQ(4u + 4u + 2u, expected.size());
}

TEST(RegionSplice, TakesTheFirstEdgeFromTheClosingOneOn) {
    // The closing edge of the first, from (2, 4) to (2, -4), meets the square in (2, 4) and (2, 0).
    const Points result = spliced("2 -4, 9 -4, 9 5, 2 5", kSquare);
    EXPECT_EQ(gkVector<2>(2, 4), result[0]);
    EXPECT_EQ(gkVector<2>(2, -4), result[1]); // the end of the closing edge
    EXPECT_EQ(gkVector<2>(2, 4), result[5]);
    EXPECT_EQ(gkVector<2>(0, 4), result[6]); // the end of the square's upper edge
}

TEST(RegionSplice, PassesOverAnEdgeOfLengthZeroButKeepsItsVertex) {
    EXPECT_THAT(spliced("4 0, 4 0, 4 4, 0 4, 0 0", kAcross),
                ElementsAreArray(points("4 2, 4 4, 0 4, 0 0, 4 0, 4 0, 4 2, 6 2, 6 6, 2 6, 2 2")));
}

TEST(RegionSplice, HasNoHolesAndLabelZero) {
    gkRegion one(points(kSquare));
    one.holes({shared("1 1, 1.5 1, 1 1.5")});
    one.label(7);
    gkRegion result(one);
    splice(one, gkRegion(points(kAcross)), result);
    EXPECT_TRUE(result.holes().empty());
    EXPECT_EQ(0u, result.label());
}

TEST(RegionSplice, OfPlainVerticesRunsOnFromTheEdgesEnds) {
    EXPECT_THAT(gk_Spliced({9, 9}, points("0 0, 1 0, 2 0"), 2, points("5 5, 6 6"), 0),
                ElementsAreArray(points("9 9, 2 0, 0 0, 1 0, 9 9, 5 5, 6 6")));
}

// A corner 0.8e-6 before a slanted edge. The corner's two long edges, run on, meet the slanted one 1.1e-6 away,
// too far to count. The edge between the corner's two vertices, one last place long, points straight at it: it
// counts when the set asks for crossings, but the splice passes over edges that short.
TEST(RegionSplice, OfASetCanMeetTooLittleToBeSpliced) {
    const double at = 2.0 + 0.8e-6 * 0.7071067811865476;
    const Points wedge = {{at, at}, {above(at), above(at)}, {3.0, above(at)}, {at, 3.0}};
    const gkRegionSet set({shared("0 0, 4 0, 0 4"), shared(wedge)});
    EXPECT_TRUE(set.isSelfIntersecting());
    for (int i = 0; i < 2; ++i) {
        try {
            outerHull(set);
            ADD_FAILURE() << "merged";
        } catch (const gkContourDefs::BadParams& refused) {
            EXPECT_EQ(L"spliced regions do not intersect", refused.message());
        }
    }
}

namespace {

// Items named by letters; which pairs cross is listed.
std::vector<std::string> merged(std::vector<std::string> list, const std::vector<std::string>& crossing) {
    gk_MergeInOnePass(
        list,
        [&](const std::string& a, const std::string& b) {
            for (const std::string& pair : crossing) {
                const auto holds = [&](const std::string& item, char letter) {
                    return item.find(letter) != std::string::npos;
                };
                if ((holds(a, pair[0]) && holds(b, pair[1])) || (holds(a, pair[1]) && holds(b, pair[0])))
                    return true;
            }
            return false;
        },
        [](const std::string& a, const std::string& b) { return a + b; });
    return list;
}

} // namespace

TEST(RegionMerging, PutsTheLastRegionIntoTheFreePlace) {
    EXPECT_THAT(merged({"A", "B", "D"}, {"AD"}), ElementsAre("AD", "B"));
}

TEST(RegionMerging, DoesNotAskTheMovedRegionAgain) {
    EXPECT_THAT(merged({"A", "B", "D"}, {"AB", "AD"}), ElementsAre("AB", "D"));
}

TEST(RegionMerging, AsksTheMovedRegionOnlyAgainstLaterPlaces) {
    EXPECT_THAT(merged({"A", "B", "C", "D"}, {"AB", "AD", "DC"}), ElementsAre("AB", "DC"));
}

TEST(RegionMerging, OfACompleteGroupLeavesEverySecondOne) {
    EXPECT_THAT(merged({"A", "B", "C", "D", "E"}, {"AB", "AC", "AD", "AE", "BC", "BD", "BE", "CD", "CE", "DE"}),
                ElementsAre("ABC", "ED"));
}

TEST(RegionMerging, OfAChainOfThreeStaysPartlyUndone) {
    const gkRegionSet chain(
        {shared("3 0, 7 0, 7 4, 3 4"), shared("0 1, 4 1, 4 3, 0 3"), shared("6 1, 9 1, 9 3, 6 3")});
    const auto left = outerHull(chain).regions();
    ASSERT_EQ(2u, left.size());
    EXPECT_EQ(points("6 1, 9 1, 9 3, 6 3"), left[1]->points());
    EXPECT_TRUE(outerHull(chain).isSelfIntersecting());
    EXPECT_EQ(1u, outerHull(outerHull(chain)).regions().size()); // a second repair goes on
}

TEST(RegionSetRepair, OfDisjointSquaresSharesTheSameRegions) {
    const gkRegionSet set({shared(kSquare), shared("9 0, 12 0, 12 3, 9 3")});
    const auto same = outerHull(set).regions();
    ASSERT_EQ(2u, same.size());
    for (std::size_t i = 0; i < 2; ++i) EXPECT_EQ(&*set.regions()[i], &*same[i]);
}

TEST(RegionSetRepair, OfASingleCrossedRegionHoldsItsRepair) {
    const Points eight = points("0 0, 0 2, 4 0, 4 2");
    const gkRegionSet set({shared(eight)});
    ASSERT_EQ(1u, outerHull(set).regions().size());
    EXPECT_EQ(oracle::outerHull(eight), outerHull(set).regions()[0]->points());
    gkRegionSet regular;
    set.regularize(regular);
    EXPECT_EQ(oracle::regularize(eight), regular.regions()[0]->points());
}

namespace {

// All vertices of a square from each start, in both directions.
std::vector<Points> everyWayRound(const Points& square) {
    std::vector<Points> all;
    for (std::ptrdiff_t start = 0; start < 4; ++start) {
        Points turned = square;
        std::rotate(turned.begin(), turned.begin() + start, turned.end());
        all.push_back(turned);
        std::reverse(turned.begin() + 1, turned.end());
        all.push_back(turned);
    }
    return all;
}

} // namespace

// The even-odd filling of two squares of 16 that share 4 is 24, their union 28. Which comes out depends on the
// order of the vertices: nothing else differs between the 64 sets.
TEST(RegionSetRepair, OfTwoSquaresIsTheUnionOrTheEvenOddFillingByTheOrderOfTheVertices) {
    std::map<double, int> sets;
    for (const Points& one : everyWayRound(points(kSquare))) {
        for (const Points& other : everyWayRound(points(kAcross))) {
            const gkRegionSet repaired = outerHull(gkRegionSet({shared(one), shared(other)}));
            ASSERT_EQ(1u, repaired.regions().size());
            EXPECT_EQ(oracle::outerHull(std::vector<Points>{one, other})[0], repaired.regions()[0]->points());
            ++sets[repaired.area(false)];
        }
    }
    EXPECT_EQ((std::map<double, int>{{24.0, 32}, {28.0, 32}}), sets);
}
