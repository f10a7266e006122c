// Laws of the repair of one outline, over random outlines of many kinds. Oracle: tests/oracle/repair.h.
#include "cntr/region.h"
#include "tests/gen/each.h"
#include "tests/gen/tangles.h"
#include "tests/oracle/crossings.h"
#include "tests/oracle/repair.h"
#include "tests/support/answer.h"
#include "tests/support/repair_rounds.h"
#include "tests/support/shapes.h"

#include <algorithm>

namespace {

// A crossing point lies within 1e-6 of one edge and, as the walk may come from another crossing point, within
// twice that of the other one. The rest is for rounding, with coordinates below 100.
constexpr double kOffEdge = 1e-6;
constexpr double kRounding = 1e-12;

template <class Check> void eachTangle(std::uint64_t standard, Check check) {
    for (const gen::Kind& kind : gen::tangles()) {
        for (std::uint64_t seed = 1; seed <= repairRounds(standard); ++seed) {
            const Points given = gen::shape(kind, seed);
            if (!oracle::isSelfIntersecting(given, true)) continue;
            SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed));
            check(given);
            if (testing::Test::HasFailure()) return;
        }
    }
}

// Vertices of the repaired outline, or the error.
Answer repaired(const Points& given, bool outerHull) {
    return answer([&] {
        gkRegion result;
        const gkRegion region(given);
        outerHull ? region.outerHull(result) : region.regularize(result);
        return result.points();
    });
}

bool isVertex(const Points& given, const gkVector<2>& p) {
    return std::find(given.begin(), given.end(), p) != given.end();
}

bool isCrossing(const Points& given, const gkVector<2>& p) {
    int near = 0;
    for (const gkLineSeg& edge : oracle::segments(given, true)) {
        if (edge.distToPoint(p) < 2.0 * kOffEdge + kRounding) ++near;
    }
    return near >= 2;
}

void expectVerticesAndCrossingsOnly(const Points& given, const Points& result) {
    for (const gkVector<2>& p : result) EXPECT_TRUE(isVertex(given, p) || isCrossing(given, p)) << p;
}

void expectWithinTheBox(const Points& given, const Points& result) {
    const gkRect box = oracle::encloseRect(given, gkXform<2>());
    const gkVector<2> margin(kOffEdge + kRounding, kOffEdge + kRounding);
    const gkRect around = oracle::pointBox(box.ul() - margin).enclose(oracle::pointBox(box.lr() + margin));
    for (const gkVector<2>& p : result) EXPECT_TRUE(around.within(p)) << p;
}

// The repairs that the region does not refuse; a refusal has been compared with the oracle's.
template <class Check> void eachRepaired(std::uint64_t standard, Check check) {
    eachTangle(standard, [&](const Points& given) {
        const gkRegion region(given);
        for (const bool outerHull : {false, true}) {
            gkRegion result;
            try {
                outerHull ? region.outerHull(result) : region.regularize(result);
            } catch (...) {
                currentError(); // throws on what no repair may throw
                continue;
            }
            check(given, result);
        }
    });
}

// The shape, with a hole far away (allowed) and a label.
gkRegion dressed(const Points& given) {
    gkRegion region(given);
    region.holes({gkPtrHandle<gkRegion>(new gkRegion({{5e3, 5e3}, {5001.0, 5e3}, {5e3, 5001.0}}))});
    region.label(42);
    return region;
}

} // namespace

TEST(RegionRepairLaws, RegularizeEqualsThePlainWalkToTheBit) {
    eachTangle(1300, [](const Points& given) {
        EXPECT_EQ(answer([&] { return oracle::regularize(given); }), repaired(given, false));
    });
}

TEST(RegionRepairLaws, OuterHullEqualsThePlainOneToTheBit) {
    eachTangle(1300, [](const Points& given) {
        EXPECT_EQ(answer([&] { return oracle::outerHull(given); }), repaired(given, true));
    });
}

TEST(RegionRepairLaws, EveryVertexIsAVertexOrACrossingPointOfTheInput) {
    eachRepaired(1300, [](const Points& given, const gkRegion& result) {
        expectVerticesAndCrossingsOnly(given, result.points());
    });
}

TEST(RegionRepairLaws, TheBoxLiesWithinTheBoxOfTheInput) {
    eachRepaired(
        260, [](const Points& given, const gkRegion& result) { expectWithinTheBox(given, result.points()); });
}

TEST(RegionRepairLaws, TheResultDoesNotCrossItself) {
    eachRepaired(1300,
                 [](const Points&, const gkRegion& result) { EXPECT_FALSE(result.isSelfIntersecting()); });
}

TEST(RegionRepairLaws, TheResultHasNoHolesAndLabelZero) {
    eachRepaired(300, [](const Points& given, const gkRegion& plain) {
        const gkRegion region = dressed(given);
        gkRegion result = region;
        region.regularize(result);
        EXPECT_TRUE(result.holes().empty());
        EXPECT_EQ(0u, result.label());
        EXPECT_TRUE(plain.holes().empty());
        EXPECT_EQ(0u, plain.label());
    });
}

TEST(RegionRepairLaws, AShapeThatDoesNotCrossItselfComesBackUntouched) {
    for (const gen::Kind& kind : gen::kinds()) {
        for (std::uint64_t seed = 1; seed <= repairRounds(400); ++seed) {
            const Points given = gen::shape(kind, seed);
            if (given.size() < 2 || oracle::isSelfIntersecting(given, true)) continue;
            SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed));
            gkRegion region(given);
            const gkPtrHandle<gkRegion> hole(new gkRegion({{5e3, 5e3}, {5001.0, 5e3}, {5e3, 5001.0}}));
            try {
                region.holes({hole});
            } catch (const gkContourDefs::BadParams&) {
                continue; // the far shape reaches that far
            }
            region.label(42);
            for (const bool outerHull : {false, true}) {
                gkRegion result;
                outerHull ? region.outerHull(result) : region.regularize(result);
                EXPECT_EQ(answer([&] { return given; }), answer([&] { return result.points(); }));
                ASSERT_EQ(1u, result.holes().size());
                EXPECT_EQ(&*hole, &*result.holes()[0]);
                EXPECT_EQ(42u, result.label());
            }
        }
    }
}
