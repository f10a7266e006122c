// Numbers of vertices in 32 bits: refused where they do not fit, never cut, however wide `long` is here.
#include "cntr/index.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

constexpr std::size_t kGreatest = 2147483647; // 2^31 - 1
constexpr std::size_t kCutToNothing = std::size_t{1} << 32;

} // namespace

TEST(Index, FitsUpToTheGreatest32BitNumber) {
    EXPECT_EQ(0, gk_IndexAs<long>(0));
    EXPECT_EQ(2147483647, gk_IndexAs<int>(kGreatest));
    EXPECT_EQ(2147483647, gk_IndexAs<long>(kGreatest));
    EXPECT_EQ(2147483647, gk_IndexAs<std::int64_t>(kGreatest));
}

TEST(Index, BeyondThatIsRefusedWhateverTheTypeCouldHold) {
    for (const std::size_t index : {kGreatest + 1, kCutToNothing - 1, kCutToNothing, kCutToNothing + 5}) {
        SCOPED_TRACE(index);
        EXPECT_THROW(gk_IndexAs<int>(index), gkContourDefs::BadParams);
        EXPECT_THROW(gk_IndexAs<long>(index), gkContourDefs::BadParams);
        EXPECT_THROW(gk_IndexAs<std::int64_t>(index), gkContourDefs::BadParams);
    }
}

TEST(LoopSize, LeavesRoomToCountTwiceAround) {
    // 2 (2^30 - 1) + 1 = 2^31 - 1.
    EXPECT_EQ(1073741823, gk_SizeAsLoop(1073741823));
    for (const std::size_t size : {std::size_t{1073741824}, kGreatest, kCutToNothing, kCutToNothing + 3}) {
        SCOPED_TRACE(size);
        EXPECT_THROW(gk_SizeAsLoop(size), gkContourDefs::BadParams);
    }
}
