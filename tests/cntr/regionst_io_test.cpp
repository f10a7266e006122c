// Archive records of region sets, byte for byte, and what a load leaves behind.
#include "platform/core/object/errors.h"
#include "tests/support/archived.h"
#include "tests/support/region_sets.h"

#include <gtest/gtest.h>

namespace {

const auto kKeep = gkContourDefs::eKeepIntersections;

// A region "4 2, 5 2, 4 3" without its number in the archive: class name and record.
const std::string kRegion = "08000000 676b526567696f6e" // "gkRegion"
                            "01"                        // region record version
                            "01 00 00000000 01"         // contour: version, base record, label, closed flag
                            "00 03000000"
                            "0000000000001040 0000000000000040"
                            "0000000000001440 0000000000000040"
                            "0000000000001040 0000000000000840"
                            "03000000"     // the region's cachedVectorSize
                            "00 00000000"; // its holes
const std::string kList = "00 03000000"
                          "01000000" +
                          kRegion +  // the first region, new
                          "01000000" // the first again
                          "02000000" +
                          kRegion; // another one

const std::string kVersion1 = "01" // record version
                              "00" +
                              kList +          // base record, regions
                              "05000000";      // cachedVectorSize
const std::string kVersion0 = "00 00" + kList; // no cachedVectorSize
const std::string kEmpty = "01 00 00 00000000 03000000";

Shared triangle() { return shared("4 2, 5 2, 4 3"); }

gkRegionSet archived() {
    const Shared twice = triangle();
    gkRegionSet set({twice, twice, triangle()});
    set.cachedVectorSize(5);
    return set;
}

Bytes rewritten(gkRegionSet set) { return written(set); }

template <class Error> Error refusal(const std::string& record) {
    gkRegionSet set;
    try {
        load(withHeader(record), set);
    } catch (const Error& error) {
        return error;
    }
    throw std::string("nothing was thrown");
}

void expectArchivedRegions(const gkRegionSet& set) {
    ASSERT_EQ(3u, set.regions().size());
    EXPECT_TRUE(archived() == set);
    EXPECT_EQ(set.regions()[0], set.regions()[1]) << "one region, twice in the list";
    EXPECT_NE(set.regions()[0], set.regions()[2]);
}

} // namespace

TEST(RegionSetArchive, RecordIsWrittenByteForByte) {
    EXPECT_EQ(toHex(withHeader(kVersion1)), toHex(rewritten(archived())));
    EXPECT_EQ(toHex(withHeader(kEmpty)), toHex(rewritten(gkRegionSet())));
}

TEST(RegionSetArchive, RecordIsRead) {
    gkRegionSet set({sharedSquare(0, 0, 1)});
    load(withHeader(kVersion1), set);
    expectArchivedRegions(set);
    EXPECT_EQ(5, set.cachedVectorSize());
    load(withHeader(kEmpty), set);
    EXPECT_TRUE(set.regions().empty());
    EXPECT_EQ(3, set.cachedVectorSize());
}

TEST(RegionSetArchive, Version0LeavesCachedVectorSizeAsItWas) {
    gkRegionSet fresh;
    load(withHeader(kVersion0), fresh);
    expectArchivedRegions(fresh);
    EXPECT_EQ(3, fresh.cachedVectorSize());
    gkRegionSet set;
    set.cachedVectorSize(9);
    load(withHeader(kVersion0), set);
    EXPECT_EQ(9, set.cachedVectorSize());
}

TEST(RegionSetArchive, Version0IsWrittenByteForByte) {
    OpenedSet set;
    set.regions(archived().regions(), kKeep);
    gkArchiveMemory archive;
    unsigned char version = 0;
    archive || version;
    set.serialize_(archive, version);
    EXPECT_EQ(toHex(withHeader(kVersion0)), toHex(archive.bytes()));
}

TEST(RegionSetArchive, EveryLoadForgetsKeptResultsThroughTheTable) {
    for (const std::string& record : {kVersion1, kVersion0, kEmpty}) {
        OpenedSet set({sharedSquare(0, 0, 4), sharedSquare(2, 2, 4)});
        EXPECT_EQ(32.0, set.area(false));
        EXPECT_TRUE(set.isSelfIntersecting());
        set.encloseRect(gkXform<2>());
        load(withHeader(record), set);
        EXPECT_EQ(1, set.cleaned);
        EXPECT_EQ(record == kEmpty ? 0.0 : 1.5, set.area(false));
        EXPECT_EQ(record != kEmpty, set.isSelfIntersecting());
        if (record != kEmpty) {
            EXPECT_EQ(gkRect::fromCorners({4, 2}, {5, 3}), set.encloseRect(gkXform<2>()));
        }
    }
}

TEST(RegionSetArchive, KeptResultsAreNotWritten) {
    gkRegionSet set = archived();
    set.area(true);
    set.centerOfMass(false);
    set.encloseRect(gkXform<2>());
    set.isSelfIntersecting();
    EXPECT_EQ(toHex(withHeader(kVersion1)), toHex(written(set)));
}

TEST(RegionSetArchive, ARegionOfSeveralSetsIsWrittenOnceAndReadAsOne) {
    const Shared common = triangle();
    gkRegionSet first({common});
    gkRegionSet second({common});
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(first);
    out || static_cast<gkPersistent&>(second);
    const std::string both = "01 00 00 01000000"
                             "01000000" +
                             kRegion +
                             "03000000" //
                             "01 00 00 01000000"
                             "01000000"
                             "03000000";
    EXPECT_EQ(toHex(withHeader(both)), toHex(out.bytes()));
    gkRegionSet read[2];
    gkArchiveMemory in(out.bytes());
    for (gkRegionSet& set : read) in || static_cast<gkPersistent&>(set);
    in.finish();
    ASSERT_EQ(1u, read[0].regions().size());
    ASSERT_EQ(1u, read[1].regions().size());
    EXPECT_EQ(read[0].regions()[0], read[1].regions()[0]);
}

TEST(RegionSetArchive, AHoleThatIsAMemberTooStaysOneObject) {
    const Shared island = sharedSquare(2, 2, 2);
    const Shared land = sharedSquare(0, 0, 10);
    land->holes({island});
    gkRegionSet set({land, island});
    gkRegionSet read;
    load(written(set), read);
    ASSERT_EQ(2u, read.regions().size());
    ASSERT_EQ(1u, read.regions()[0]->holes().size());
    EXPECT_EQ(read.regions()[0]->holes()[0], read.regions()[1]);
}

TEST(RegionSetArchive, WrittenTwiceInOnePassIsWrittenOnce) {
    gkRegionSet set = archived();
    gkArchiveMemory archive;
    archive || static_cast<gkPersistent&>(set);
    archive || static_cast<gkPersistent&>(set);
    EXPECT_EQ(toHex(withHeader(kVersion1)), toHex(archive.bytes()));
}

TEST(RegionSetArchive, MadeByTypeIsEmptyBeforeItIsRead) {
    gkPtrHandle<gkRegionSet> set(new gkRegionSet);
    gkArchiveMemory out;
    out || set;
    gkArchiveMemory in(out.bytes());
    gkPtrHandle<gkRegionSet> read;
    in || read;
    in.finish();
    ASSERT_FALSE(read.isNull());
    EXPECT_TRUE(read->regions().empty());
    EXPECT_EQ(3, read->cachedVectorSize());
}

TEST(RegionSetArchive, UnknownVersionsNameTheSetsSourceAndLine) {
    for (const char* version : {"02", "80", "ff"}) {
        const auto error = refusal<gkArchive::UnknownVersion>(atOffset(kVersion1, 0, version));
        EXPECT_STREQ("cntr/regionst", error.text());
        EXPECT_EQ(479, error.number());
    }
    EXPECT_STREQ("gkPersistent", refusal<gkArchive::UnknownVersion>(atOffset(kVersion1, 1, "01")).text());
}

TEST(RegionSetArchive, AnUnknownFormOfTheListHasNoTextAndNumber0) {
    const auto error = refusal<gkArchive::UnknownVersion>(atOffset(kVersion1, 2, "01"));
    EXPECT_STREQ("", error.text());
    EXPECT_EQ(0, error.number());
}

TEST(RegionSetArchive, ACachedVectorSizeOfZeroIsRead) {
    gkRegionSet set;
    load(withHeader(atOffset(kEmpty, 7, "00000000")), set);
    EXPECT_EQ(0, set.cachedVectorSize());
}

TEST(RegionSetArchive, AbsurdNumbersAreNamedErrors) {
    refusal<gkArchive::CountTooLarge>(atOffset(kVersion1, 3, "ffffffff"));
    refusal<gkArchive::BadReference>(atOffset(kVersion1, 7, "05000000"));
    refusal<gkArchive::UnknownType>(atOffset(kVersion1, 15, "78"));
    refusal<gkArchive::BadValue>(atOffset(kEmpty, 7, "ffffffff"));
    refusal<gkArchive::TrailingBytes>(kVersion1 + "00");
    refusal<gkArchive::TrailingBytes>(kVersion0 + "05000000");
}

TEST(RegionSetArchive, AMemberThatIsNoRegionIsAWrongType) {
    refusal<gkArchive::WrongType>("01 00 00 01000000 01000000 0b000000 676b526567696f6e536574" + kEmpty +
                                  "03000000");
}

TEST(RegionSetArchive, ANullMemberIsReadAndThrowsWhenItIsAsked) {
    gkRegionSet set;
    load(withHeader("01 00 00 01000000 00000000 03000000"), set);
    ASSERT_EQ(1u, set.regions().size());
    EXPECT_THROW(set.area(false), gkBadPointer);
}

TEST(RegionSetArchive, RecordsThatBreakOffAreNamedErrorsAndLeaveTheSet) {
    for (const std::string& record : {kVersion1, kVersion0}) {
        const Bytes whole = withHeader(record);
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const Shared old = sharedSquare(0, 0, 1);
            gkRegionSet set({old});
            set.cachedVectorSize(9);
            EXPECT_THROW(load(cut(whole, size), set), gkArchive::Errors) << size;
            ASSERT_EQ(1u, set.regions().size()) << size;
            EXPECT_EQ(old, set.regions()[0]) << size;
            EXPECT_EQ(9, set.cachedVectorSize()) << size;
        }
    }
}

TEST(RegionSetArchive, FlippedBitsAreNamedErrorsOrReadAsTheyStand) {
    const Bytes whole = withHeader(kVersion1);
    int refused = 0;
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        SCOPED_TRACE(bit);
        Bytes flipped = whole;
        flipped[bit / 8] = static_cast<unsigned char>(flipped[bit / 8] ^ (1u << (bit % 8)));
        gkRegionSet set;
        try {
            load(flipped, set);
        } catch (const gkArchive::Errors&) {
            ++refused;
            continue;
        }
        EXPECT_EQ(toHex(flipped), toHex(written(set)));
    }
    EXPECT_GT(refused, 100);
}
