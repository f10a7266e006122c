// Region sets: construction, the list, copies, equality and drawing.
#include "platform/core/object/errors.h"
#include "platform/display/recording_tablet.h"
#include "tests/support/region_sets.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

const auto kKeep = gkContourDefs::eKeepIntersections;

// A region that shows when it was drawn: a point at its first vertex.
class DrawnRegion : public gkRegion {
public:
    explicit DrawnRegion(const Points& vertices) : gkContour(vertices, true, 0), gkRegion(vertices) {}
    void draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const override {
        tablet.drawPoint(gkPair<double>(points()[0].x(), points()[0].y()), color, layers);
    }
};

// Two that overlap: their repaired set has one region.
std::vector<Shared> overlapping() { return {sharedSquare(0, 0, 4), sharedSquare(2, 2, 4)}; }

Holes readOnly(const std::vector<Shared>& regions) { return Holes(regions.begin(), regions.end()); }

} // namespace

TEST(RegionSetCore, DefaultIsEmpty) {
    const gkRegionSet set;
    EXPECT_TRUE(set.regions().empty());
    EXPECT_EQ(3, set.cachedVectorSize());
    EXPECT_EQ(0.0, set.area(false));
    EXPECT_EQ(0.0, set.area(true));
    EXPECT_FALSE(set.inside({0, 0}, false));
    EXPECT_THROW(set.centerOfMass(false), gkContourDefs::EmptyRegionSet);
}

TEST(RegionSetCore, EmptyBracesMeanTheEmptySet) {
    EXPECT_TRUE(gkRegionSet({}, gkContourDefs::eOuterHull).regions().empty());
    EXPECT_TRUE(gkRegionSet({}, kKeep).regions().empty());
    gkRegionSet set({sharedSquare(0, 0, 1)});
    EXPECT_EQ(1u, set.regions().size());
    set.regions({}, gkContourDefs::eRegularize);
    EXPECT_TRUE(set.regions().empty());
}

TEST(RegionSetCore, HoldsTheRegionsItIsGivenInOrder) {
    const Shared a = sharedSquare(0, 0, 1);
    const Shared b = sharedSquare(5, 5, 1);
    const gkRegionSet sets[] = {gkRegionSet(Holes{a, b}), gkRegionSet(std::vector<Shared>{a, b}, kKeep),
                                gkRegionSet({a, b}, kKeep)};
    for (const gkRegionSet& set : sets) {
        ASSERT_EQ(2u, set.regions().size());
        EXPECT_EQ(a, set.regions()[0]);
        EXPECT_EQ(b, set.regions()[1]);
    }
}

TEST(RegionSetCore, RegionsAreReturnedAsACopy) {
    gkRegionSet set({sharedSquare(0, 0, 1)});
    set.regions().clear();
    EXPECT_EQ(1u, set.regions().size());
    set.regions(set.regions(), kKeep);
    EXPECT_EQ(1u, set.regions().size());
}

TEST(RegionSetCore, RegionsAndAddReplaceAndAppend) {
    const Shared a = sharedSquare(0, 0, 1);
    const Shared b = sharedSquare(5, 5, 1);
    gkRegionSet set;
    set.add(a, kKeep);
    set.add(b, kKeep);
    ASSERT_EQ(2u, set.regions().size());
    EXPECT_EQ(b, set.regions()[1]);
    set.regions(Holes{b}, kKeep);
    ASSERT_EQ(1u, set.regions().size());
    EXPECT_EQ(b, set.regions()[0]);
    set.regions(std::vector<Shared>{a, b, a}, kKeep);
    ASSERT_EQ(3u, set.regions().size());
    EXPECT_EQ(a, set.regions()[2]);
}

TEST(RegionSetCore, ModesActOnTheWholeSetAfterTheChange) {
    for (const auto mode : {gkContourDefs::eOuterHull, gkContourDefs::eRegularize}) {
        EXPECT_EQ(1u, gkRegionSet(readOnly(overlapping()), mode).regions().size());
        EXPECT_EQ(1u, gkRegionSet(overlapping(), mode).regions().size());
        gkRegionSet set;
        set.regions(overlapping(), mode);
        EXPECT_EQ(1u, set.regions().size());
        set.regions(readOnly(overlapping()), mode);
        EXPECT_EQ(1u, set.regions().size());
        // The two that overlap were there before the new one came.
        gkRegionSet grown(overlapping(), kKeep);
        grown.add(sharedSquare(20, 20, 1), mode);
        EXPECT_EQ(2u, grown.regions().size());
    }
}

TEST(RegionSetCore, AddingWithOuterHullReplacesTheSetByItsOuterHullSet) {
    gkRegionSet set({sharedSquare(0, 0, 4)});
    set.add(sharedSquare(2, 2, 4), kKeep);
    EXPECT_EQ(2u, set.regions().size());
    EXPECT_TRUE(set.isSelfIntersecting());
    gkRegionSet hull;
    set.outerHull(hull);
    gkRegionSet added({sharedSquare(0, 0, 4)});
    added.add(sharedSquare(2, 2, 4), gkContourDefs::eOuterHull);
    EXPECT_TRUE(hull == added);
    EXPECT_EQ(1u, added.regions().size());
}

TEST(RegionSetCore, UnknownModesKeepTheList) {
    for (const int mode : {-1, 3, 99}) {
        const auto unknown = static_cast<gkContourDefs::IntersectionMode>(mode);
        gkRegionSet set(overlapping(), unknown);
        EXPECT_EQ(2u, set.regions().size());
        set.regions(overlapping(), unknown);
        set.add(sharedSquare(1, 1, 4), unknown);
        EXPECT_EQ(3u, set.regions().size());
    }
}

TEST(RegionSetCore, AFailedRepairLeavesTheChangedList) {
    const Shared cannotBeRepaired = shared(kBowtieTwice);
    for (const auto mode : {gkContourDefs::eOuterHull, gkContourDefs::eRegularize}) {
        gkRegionSet set({sharedSquare(20, 20, 1)});
        EXPECT_THROW(set.add(cannotBeRepaired, mode), gkContourDefs::BadParams);
        ASSERT_EQ(2u, set.regions().size());
        EXPECT_EQ(cannotBeRepaired, set.regions()[1]);
        EXPECT_THROW(set.regions(std::vector<Shared>{cannotBeRepaired}, mode), gkContourDefs::BadParams);
        ASSERT_EQ(1u, set.regions().size());
        EXPECT_EQ(cannotBeRepaired, set.regions()[0]);
        EXPECT_THROW(gkRegionSet({cannotBeRepaired}, mode), gkContourDefs::BadParams);
    }
}

TEST(RegionSetCore, AnElementOfItsOwnListCanBeAdded) {
    gkRegionSet set({sharedSquare(0, 0, 1)});
    for (int i = 0; i < 20; ++i) set.add(set.regions().front(), kKeep);
    EXPECT_EQ(21u, set.regions().size());
    EXPECT_EQ(21.0, set.area(false));
}

TEST(RegionSetCore, NullHandlesStayNullAndThrowWhenAsked) {
    const gkRegionSet set(std::vector<Shared>{Shared()}, kKeep);
    ASSERT_EQ(1u, set.regions().size());
    EXPECT_TRUE(set.regions()[0].isNull());
    EXPECT_THROW(set.area(false), gkBadPointer);
    EXPECT_THROW(set.inside({0, 0}, false), gkBadPointer);
    EXPECT_THROW(static_cast<void>(set == set), gkBadPointer);
}

TEST(RegionSetCore, ListChangesCleanBeforeAndRebuildAfter) {
    OpenedSet set;
    EXPECT_EQ(0, set.cleaned) << "constructors call no hook of a derived class";
    EXPECT_EQ(0, set.dataRebuilt);
    set.add(sharedSquare(0, 0, 1), kKeep);
    EXPECT_EQ(2, set.cleaned); // by itself and by the rebuilding
    EXPECT_EQ(1, set.dataRebuilt);
    set.regions(std::vector<Shared>{sharedSquare(0, 0, 1)}, kKeep);
    EXPECT_EQ(4, set.cleaned);
    EXPECT_EQ(2, set.dataRebuilt);
    set.regions(set.regions(), kKeep);
    EXPECT_EQ(6, set.cleaned);
    EXPECT_EQ(3, set.dataRebuilt);
    set.makePointsConsistentWithData();
    EXPECT_EQ(7, set.cleaned);
    EXPECT_EQ(0, OpenedSet(set).cleaned);
}

TEST(RegionSetCore, SetRegionsReplacesTheListAndDoesNothingElse) {
    OpenedSet set({sharedSquare(0, 0, 2)});
    EXPECT_EQ(4.0, set.area(false));
    set.clearChanged();
    set.setRegions({sharedSquare(0, 0, 3)});
    EXPECT_FALSE(set.isChanged());
    EXPECT_EQ(0, set.cleaned);
    EXPECT_EQ(0, set.dataRebuilt);
    EXPECT_EQ(4.0, set.area(false)) << "kept";
    set.forget();
    EXPECT_EQ(9.0, set.area(false));
}

TEST(RegionSetCore, CachedVectorSizeRefusesNegativeValues) {
    gkRegionSet set;
    set.cachedVectorSize(7);
    try {
        set.cachedVectorSize(-1);
        FAIL() << "nothing was thrown";
    } catch (const gkContourDefs::BadParams& error) {
        EXPECT_EQ(L"", error.message());
    }
    EXPECT_EQ(7, set.cachedVectorSize());
    set.cachedVectorSize(0);
    EXPECT_EQ(0, set.cachedVectorSize());
    set.cachedVectorSize(2147483647);
    EXPECT_EQ(2147483647, set.cachedVectorSize());
    if constexpr (sizeof(long) > 4) {
        EXPECT_THROW(set.cachedVectorSize(LONG_MAX), gkContourDefs::BadParams);
        EXPECT_EQ(2147483647, set.cachedVectorSize());
    }
}

TEST(RegionSetCore, CopiesShareRegionsAndTakeCachedVectorSize) {
    const Shared a = sharedSquare(0, 0, 1);
    gkRegionSet set({a});
    set.cachedVectorSize(8);
    const gkRegionSet copy(set);
    gkRegionSet assigned;
    EXPECT_EQ(&assigned, &(assigned = set));
    for (const gkRegionSet* each : {&copy, static_cast<const gkRegionSet*>(&assigned)}) {
        ASSERT_EQ(1u, each->regions().size());
        EXPECT_EQ(a, each->regions()[0]);
        EXPECT_EQ(8, each->cachedVectorSize());
    }
}

TEST(RegionSetCore, AssignmentDoesNotMarkTheTargetChanged) {
    const gkRegionSet set({sharedSquare(0, 0, 1)});
    gkRegionSet target;
    target.clearChanged();
    target = set;
    EXPECT_FALSE(target.isChanged());
    gkRegionSet& self = target;
    target = self;
    EXPECT_EQ(1u, target.regions().size());
}

TEST(RegionSetCore, ChangesMarkTheSetChanged) {
    gkRegionSet set;
    const auto marks = [&](auto act) {
        set.clearChanged();
        act();
        return set.isChanged();
    };
    EXPECT_TRUE(gkRegionSet().isChanged());
    EXPECT_TRUE(marks([&] { set.add(sharedSquare(0, 0, 1), kKeep); }));
    EXPECT_TRUE(marks([&] { set.cachedVectorSize(4); }));
    EXPECT_TRUE(marks([&] { set.regions({sharedSquare(0, 0, 1)}, kKeep); }));
    EXPECT_FALSE(marks([&] { set.inside({0, 0}, true); }));
    EXPECT_FALSE(marks([&] { set.distToPoint({0, 0}, true, true, true); }));
}

TEST(RegionSetCore, EqualityComparesOutlinesInOrder) {
    const Shared a = sharedSquare(0, 0, 1);
    const Shared b = sharedSquare(5, 5, 1);
    const gkRegionSet set({a, b});
    EXPECT_TRUE(set == gkRegionSet({sharedSquare(0, 0, 1), sharedSquare(5, 5, 1)}));
    EXPECT_FALSE(set == gkRegionSet({b, a}));
    EXPECT_TRUE(set != gkRegionSet({a}));
    EXPECT_FALSE(set == gkRegionSet({a, sharedSquare(5, 5, 2)}));
    EXPECT_TRUE(gkRegionSet() == gkRegionSet());
}

TEST(RegionSetCore, EqualityIgnoresTheSetsCachedVectorSizeAndSeesTheRegions) {
    gkRegionSet set({sharedSquare(0, 0, 1)});
    gkRegionSet other({sharedSquare(0, 0, 1)});
    other.cachedVectorSize(9);
    EXPECT_TRUE(set == other);
    const Shared sized = sharedSquare(0, 0, 1);
    sized->cachedVectorSize(9);
    sized->label(4);
    EXPECT_FALSE(set == gkRegionSet({sized}));
}

TEST(RegionSetCore, ForgettingHandlesEmptiesTheSet) {
    gkRegionSet set(overlapping(), kKeep);
    gkRegionSet hull;
    set.outerHull(hull);
    EXPECT_EQ(32.0, set.area(false));
    set.forgetHandles();
    EXPECT_TRUE(set.regions().empty());
    EXPECT_EQ(0.0, set.area(false));
    EXPECT_FALSE(set.isSelfIntersecting());
    EXPECT_EQ(1u, hull.regions().size());
}

TEST(RegionSetCore, DrawsEachRegionInOrder) {
    gkRecordingTablet tablet;
    const gkRegionSet set({Shared(new DrawnRegion(square(1, 2, 1))), sharedSquare(8, 8, 1),
                           Shared(new DrawnRegion(square(3, 4, 1)))});
    set.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    ASSERT_EQ(2u, tablet.records().size()) << "a plain region draws nothing";
    EXPECT_EQ((std::vector<double>{1, 2}), tablet.records()[0].numbers);
    EXPECT_EQ((std::vector<double>{3, 4}), tablet.records()[1].numbers);
    EXPECT_EQ(gkColor::red(), tablet.records()[0].color);
    EXPECT_EQ(gkUITablet::eOverlayLayer, tablet.records()[0].layers);
}

TEST(RegionSetCore, DrawsNothingWhenEmpty) {
    gkRecordingTablet tablet;
    gkRegionSet().draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_TRUE(tablet.records().empty());
}
