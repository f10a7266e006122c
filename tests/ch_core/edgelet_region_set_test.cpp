// Sets of edgelet regions.
#include "tests/ch_core/edgelets.h"

#include <gtest/gtest.h>

namespace {

using Shared = gkPtrHandle_const<EdgeletRegion>;

Shared shared(unsigned long label) { return Shared(new EdgeletRegion(triangle(), label)); }

} // namespace

TEST(EdgeletRegionSet, OfTwoRegionsHasTheSameTwoInItsPlainList) {
    const std::vector<Shared> regions = {shared(1), shared(2)};
    const EdgeletSet set(regions);
    ASSERT_EQ(2u, set.regions().size());
    EXPECT_TRUE(set.regions()[0] == regions[0]);
    EXPECT_TRUE(set.regions()[1] == regions[1]);
    EXPECT_EQ(8.0, set.area(false));
    EXPECT_EQ(2u, set.regionsT().size());
}

TEST(EdgeletRegionSet, FromChangeableHandles) {
    const EdgeletSet set(
        std::vector<gkPtrHandle<EdgeletRegion>>{gkPtrHandle<EdgeletRegion>(new EdgeletRegion(triangle(), 1))});
    EXPECT_EQ(4.0, set.area(false));
    EXPECT_TRUE(EdgeletSet().regionsT().empty());
}

TEST(EdgeletRegionSet, SettingPlainRegionsThrowsForWantOfATransform) {
    EdgeletSet set;
    const gkPtrHandle_const<gkRegion> plain(new gkRegion(points("0 0, 4 0, 0 2")));
    EXPECT_THROW(set.add(plain, gkContourDefs::eKeepIntersections), gkBadPointer);
    EdgeletSet empty;
    empty.add(gkPtrHandle_const<gkRegion>(new gkRegion), gkContourDefs::eKeepIntersections);
    EXPECT_EQ(1u, empty.regionsT().size());
}

TEST(EdgeletRegionSet, CopiesTakeBothLists) {
    const EdgeletSet set({shared(1), shared(2)});
    const EdgeletSet copy(set);
    EdgeletSet assigned;
    assigned = set;
    for (const EdgeletSet* other : {&copy, static_cast<const EdgeletSet*>(&assigned)}) {
        EXPECT_TRUE(*other == set);
        ASSERT_EQ(2u, other->regionsT().size());
        EXPECT_TRUE(other->regionsT()[1] == set.regionsT()[1]);
        EXPECT_TRUE(other->regions()[1] == set.regions()[1]);
    }
}

TEST(EdgeletRegionSet, MapTAndRegularizeTAlwaysThrow) {
    const EdgeletSet set;
    EdgeletSet out;
    EXPECT_THROW(set.mapT(gkXform<2>(), out), gkPel::BadWindow);
    EXPECT_THROW(set.regularizeT(out), gkPel::BadWindow);
}

TEST(EdgeletRegionSet, AfterLoadingBothListsHoldTheSameObjects) {
    EdgeletSet set({shared(1), shared(2)});
    EdgeletSet read;
    loadInto(read, archived(set));
    ASSERT_EQ(2u, read.regionsT().size());
    EXPECT_TRUE(read.regions()[0] == read.regionsT()[0]);
    EXPECT_TRUE(read.regions()[1] == read.regionsT()[1]);
    EXPECT_EQ(2ul, read.regionsT()[1]->label());
    EXPECT_EQ(8.0, read.area(false));
}

TEST(EdgeletRegionSet, UnknownVersionTellsFileAndLine) {
    EdgeletSet read;
    try {
        loadInto(read, archiveOf("01"));
        FAIL() << "nothing was thrown";
    } catch (const gkArchive::UnknownVersion& error) {
        EXPECT_STREQ("ch_core/cntrtmpl", error.text());
        EXPECT_EQ(283, error.number());
    }
}
