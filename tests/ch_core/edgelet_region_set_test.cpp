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

TEST(EdgeletRegionSet, RecordIsTheSetsAndTheSameRegionsAgain) {
    const std::string record =
        "00"                                                         // version
        "01 00"                                                      // gkRegionSet, its base
        "00 03000000"                                                // regions
        "01000000 14000000 676b526567696f6e543c676b456467656c65743e" // a new gkRegionT<gkEdgelet>
        "00 01 01 00 07000000 01"           // it, gkRegion, gkContour, base, label, closed
        "00 02000000"                       // vertices
        "000000000000f03f 0000000000000040" // 1, 2
        "0000000000001040 000000000000e0bf" // 4, -0.5
        "03000000 00 00000000"              // cachedVectorSize, no holes
        "02000000 14000000 676b526567696f6e543c676b456467656c65743e" // a new gkRegionT<gkEdgelet>
        "00 01 01 00 08000000 01"                 // it, gkRegion, gkContour, base, label, closed
        "00 02000000"                             // vertices
        "000000000000f03f 0000000000000040"       // 1, 2
        "0000000000001040 000000000000e0bf"       // 4, -0.5
        "03000000 00 00000000"                    // cachedVectorSize, no holes
        "01000000"                                // the first again
        "05000000"                                // cachedVectorSize
        "00 03000000 01000000 02000000 01000000"; // edgelet regions: the same three
    const std::vector<gkEdgelet> data = {gkEdgelet({1, 2}, 3, gkAngle8(4)),
                                         gkEdgelet({4, -0.5}, 5, gkAngle8(6))};
    const Shared one(new EdgeletRegion(data, 7));
    const Shared other(new EdgeletRegion(data, 8));
    EdgeletSet set(EdgeletSet::Regions{one, other, one});
    set.cachedVectorSize(5);
    EXPECT_EQ(toHex(fromHex(record)), recordOf(set));
    EdgeletSet read;
    loadInto(read, archiveOf(record));
    ASSERT_EQ(3u, read.regionsT().size());
    EXPECT_EQ(points("1 2, 4 -0.5"), read.regionsT()[1]->points());
    EXPECT_EQ(8ul, read.regionsT()[1]->label());
    EXPECT_TRUE(read.regionsT()[2] == read.regionsT()[0]);
    EXPECT_TRUE(read.regions()[2] == read.regionsT()[0]);
    EXPECT_EQ(5, read.cachedVectorSize());
}

TEST(EdgeletRegionSet, OverTheOldSetRecordKeepsItsCachedVectorSize) {
    EdgeletSet read;
    read.cachedVectorSize(8);
    loadInto(read, archiveOf("00"             // version
                             "00 00"          // gkRegionSet version 0, its base
                             "00 00000000"    // no regions
                             "00 00000000")); // nor edgelet regions
    EXPECT_TRUE(read.regionsT().empty());
    EXPECT_EQ(8, read.cachedVectorSize());
}
