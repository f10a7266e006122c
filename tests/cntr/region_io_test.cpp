// Archive records of regions, byte for byte, and what a load leaves behind.
#include "platform/core/object/errors.h"
#include "tests/support/archived.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

namespace {

// A triangle with label 0x01020304 and cachedVectorSize 5, as the contour part of a region writes it.
const std::string kTriangle = "01"                                // contour record version
                              "00"                                // base record
                              "04030201"                          // label
                              "01"                                // closed flag
                              "00 03000000"                       // vertices: form, count
                              "0000000000000000 0000000000000000" // 0, 0
                              "0000000000002440 0000000000000000" // 10, 0
                              "0000000000000000 9a9999999999b9bf" // 0, -0.1
                              "05000000";                         // cachedVectorSize

// A triangle "4 2, 5 2, 4 3" as a new region, all but its number in the archive and its version: class name,
// record.
const std::string kHoleContour = "01 00 00000000 01 00 03000000"
                                 "0000000000001040 0000000000000040"
                                 "0000000000001440 0000000000000040"
                                 "0000000000001040 0000000000000840"
                                 "03000000";
const std::string kClassName = "08000000 676b526567696f6e"; // "gkRegion"
const std::string kNoHoles = "00 00000000";

const std::string kPlain = "01" + kTriangle + kNoHoles;
const std::string kHoled =
    "01" + kTriangle + "00 01000000" + "01000000" + kClassName + "01" + kHoleContour + kNoHoles;

const std::string kVersion0 = "00"          // record version
                              "00 00"       // the base of old: its version, its base record
                              "00 03000000" // vertices
                              "0000000000000000 0000000000000000"
                              "0000000000002440 0000000000000000"
                              "0000000000000000 9a9999999999b9bf"
                              "7b"        // unused
                              "05000000"; // cachedVectorSize

// Where things are in these records, in bytes behind the header.
constexpr std::size_t kContourVersion = 1;
constexpr std::size_t kContourBase = 2;
constexpr std::size_t kContourSize = 61;
constexpr std::size_t kHoleForm = 65;
constexpr std::size_t kHoleCount = 66;
constexpr std::size_t kHoleNumber = 70;
constexpr std::size_t kHoleName = 78;
constexpr std::size_t kHoleVersion = 86;
constexpr std::size_t kUnusedOfVersion0 = 56;
constexpr std::size_t kSizeOfVersion0 = 57;

gkRegion plain() {
    gkRegion region(Points{{0, 0}, {10, 0}, {0, -0.1}});
    region.label(0x01020304);
    region.cachedVectorSize(5);
    return region;
}

Shared hole() { return shared("4 2, 5 2, 4 3"); }

gkRegion holed() {
    gkRegion region = plain();
    region.holes({hole()});
    return region;
}

Bytes rewritten(gkRegion region) { return written(region); }

template <class Error> Error refusal(const std::string& record) {
    gkRegion region;
    try {
        load(withHeader(record), region);
    } catch (const Error& error) {
        return error;
    }
    throw std::string("nothing was thrown");
}

} // namespace

TEST(RegionArchive, RecordIsWrittenByteForByte) {
    EXPECT_EQ(toHex(withHeader(kPlain)), toHex(rewritten(plain())));
    EXPECT_EQ(toHex(withHeader(kHoled)), toHex(rewritten(holed())));
}

TEST(RegionArchive, RecordIsRead) {
    gkRegion region(square(0, 0, 1));
    load(withHeader(kHoled), region);
    EXPECT_TRUE(plain() == region);
    EXPECT_EQ(0x01020304ul, region.label());
    EXPECT_EQ(5, region.cachedVectorSize());
    ASSERT_EQ(1u, region.holes().size());
    EXPECT_TRUE(*hole() == *region.holes()[0]);
    EXPECT_EQ(0ul, region.holes()[0]->label());
    load(withHeader(kPlain), region);
    EXPECT_TRUE(region.holes().empty());
}

TEST(RegionArchive, AnOutlinesOwnOpenFlagTravels) {
    gkRegion region(gkContour(points("0 0, 4 0, 0 3"), false, 0), gkContourDefs::eKeepIntersections);
    gkRegion read;
    load(written(region), read);
    EXPECT_FALSE(read.gkContour::isClosed());
    EXPECT_TRUE(read.isClosed());
    EXPECT_EQ(12.0, read.length());
}

TEST(RegionArchive, Version0IsReadOpenInsideClosedOutsideWithoutLabelAndHoles) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    region.label(77);
    load(withHeader(kVersion0), region);
    EXPECT_EQ(plain().points(), region.points());
    EXPECT_FALSE(region.gkContour::isClosed());
    EXPECT_TRUE(region.isClosed());
    EXPECT_EQ(0ul, region.label());
    EXPECT_TRUE(region.holes().empty());
    EXPECT_EQ(5, region.cachedVectorSize());
    EXPECT_TRUE(plain() == region);
}

TEST(RegionArchive, ACachedVectorSizeOfZeroIsRead) {
    for (const std::string& record :
         {atOffset(kPlain, kContourSize, "00000000"), atOffset(kVersion0, kSizeOfVersion0, "00000000")}) {
        gkRegion region;
        load(withHeader(record), region);
        EXPECT_EQ(0, region.cachedVectorSize());
    }
}

TEST(RegionArchive, Version0IsWrittenByteForByte) {
    OpenedRegion region;
    region = OpenedRegion(plain().points());
    region.cachedVectorSize(5);
    gkArchiveMemory archive;
    unsigned char version = 0;
    archive || version;
    region.serialize_(archive, version);
    std::string expected = atOffset(kVersion0, kUnusedOfVersion0, "00"); // the unused byte is written as 0
    EXPECT_EQ(toHex(withHeader(expected)), toHex(archive.bytes()));
    EXPECT_TRUE(region.gkContour::isClosed()) << "writing changes nothing";
}

TEST(RegionArchive, TwoVersion0RegionsInOneArchiveBothLoad) {
    gkRegion first;
    gkRegion second;
    gkArchiveMemory archive(withHeader(kVersion0 + kVersion0));
    archive || static_cast<gkPersistent&>(first);
    archive || static_cast<gkPersistent&>(second);
    archive.finish();
    EXPECT_TRUE(plain() == first);
    EXPECT_TRUE(plain() == second);
}

TEST(RegionArchive, Version0InAHoleIsRead) {
    const std::string old = "01" + kTriangle + "00 01000000" + "01000000" + kClassName + kVersion0;
    gkRegion region;
    load(withHeader(old), region);
    ASSERT_EQ(1u, region.holes().size());
    EXPECT_TRUE(plain() == *region.holes()[0]);
}

TEST(RegionArchive, EveryLoadForgetsKeptResultsThroughTheTable) {
    for (const std::string& record : {kPlain, kHoled, kVersion0}) {
        OpenedRegion region(square(0, 0, 10));
        region.holes({sharedSquare(2, 2, 2)});
        EXPECT_EQ(96.0, region.area(true));
        region.centerOfMass(true);
        const int cleaned = region.cleaned;
        load(withHeader(record), region);
        EXPECT_GT(region.cleaned, cleaned);
        EXPECT_EQ(0.5, region.area(false));
        EXPECT_EQ(record == kHoled ? 0.0 : 0.5, region.area(true));
        EXPECT_NE(gkVector<2>(0, 0), region.centerOfMass(true));
    }
}

TEST(RegionArchive, KeptResultsAreNotWritten) {
    gkRegion asked = holed();
    asked.area(true);
    asked.centerOfMass(true);
    asked.inertiaMatrix(false);
    gkRegion repaired;
    asked.regularize(repaired);
    EXPECT_EQ(toHex(withHeader(kHoled)), toHex(written(asked)));
}

TEST(RegionArchive, AHoleOfSeveralRegionsIsWrittenOnceAndReadAsOne) {
    const Shared common = hole();
    gkRegion first = plain();
    gkRegion second = plain();
    first.holes({common, common});
    second.holes({common});
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(first);
    out || static_cast<gkPersistent&>(second);
    const std::string both = "01" + kTriangle + "00 02000000" + "01000000" + kClassName + "01" + kHoleContour +
                             kNoHoles + "01000000" + //
                             "01" + kTriangle + "00 01000000" + "01000000";
    EXPECT_EQ(toHex(withHeader(both)), toHex(out.bytes()));
    gkRegion read[2];
    gkArchiveMemory in(out.bytes());
    for (gkRegion& region : read) in || static_cast<gkPersistent&>(region);
    in.finish();
    ASSERT_EQ(2u, read[0].holes().size());
    ASSERT_EQ(1u, read[1].holes().size());
    EXPECT_EQ(read[0].holes()[0], read[0].holes()[1]);
    EXPECT_EQ(read[0].holes()[0], read[1].holes()[0]);
}

TEST(RegionArchive, WrittenTwiceInOnePassIsWrittenOnce) {
    gkRegion region = holed();
    gkArchiveMemory archive;
    archive || static_cast<gkPersistent&>(region);
    archive || static_cast<gkPersistent&>(region);
    EXPECT_EQ(toHex(withHeader(kHoled)), toHex(archive.bytes()));
}

TEST(RegionArchive, HolesOfHolesTravel) {
    const Shared island = sharedSquare(4, 4, 1);
    const Shared lake = sharedSquare(3, 3, 3);
    lake->holes({island});
    gkRegion land(square(0, 0, 10));
    land.holes({lake});
    gkRegion read;
    load(written(land), read);
    ASSERT_EQ(1u, read.holes().size());
    ASSERT_EQ(1u, read.holes()[0]->holes().size());
    EXPECT_TRUE(*island == *read.holes()[0]->holes()[0]);
}

TEST(RegionArchive, ARingOfHolesTravelsAsARing) {
    Shared outer = sharedSquare(0, 0, 10);
    const Shared inner = sharedSquare(2, 2, 6);
    outer->holes({inner});
    inner->holes({outer});
    gkArchiveMemory out;
    out || outer;
    Shared read;
    gkArchiveMemory in(out.bytes());
    in || read;
    in.finish();
    ASSERT_EQ(1u, read->holes().size());
    ASSERT_EQ(1u, read->holes()[0]->holes().size());
    EXPECT_EQ(read, read->holes()[0]->holes()[0]);
    EXPECT_THROW(read->inside({5, 5}, true), gkContourDefs::BadParams);
    read->holes({}); // both rings are opened, or nobody frees them
    outer->holes({});
}

TEST(RegionArchive, MadeByTypeIsEmptyBeforeItIsRead) {
    Shared empty(new gkRegion);
    gkArchiveMemory out;
    out || empty;
    gkPtrHandle<gkContour> read; // through a handle to the base
    gkArchiveMemory in(out.bytes());
    in || read;
    in.finish();
    const auto* region = dynamic_cast<const gkRegion*>(read.get());
    ASSERT_NE(nullptr, region);
    EXPECT_TRUE(region->points().empty());
    EXPECT_TRUE(region->holes().empty());
    EXPECT_EQ(0ul, region->label());
}

TEST(RegionArchive, UnknownVersionsNameTheRegionsSourceAndLine) {
    for (const char* version : {"02", "80", "ff"}) {
        const auto error = refusal<gkArchive::UnknownVersion>(atOffset(kPlain, 0, version));
        EXPECT_STREQ("cntr/region", error.text());
        EXPECT_EQ(819, error.number());
    }
    const auto inHole = refusal<gkArchive::UnknownVersion>(atOffset(kHoled, kHoleVersion, "02"));
    EXPECT_STREQ("cntr/region", inHole.text());
    EXPECT_EQ(819, inHole.number());
}

TEST(RegionArchive, UnknownVersionsOfItsPartsNameThem) {
    EXPECT_STREQ("cntr/contour",
                 refusal<gkArchive::UnknownVersion>(atOffset(kPlain, kContourVersion, "02")).text());
    EXPECT_STREQ("gkPersistent",
                 refusal<gkArchive::UnknownVersion>(atOffset(kPlain, kContourBase, "01")).text());
    EXPECT_STREQ("gkContourBase", refusal<gkArchive::UnknownVersion>(atOffset(kVersion0, 1, "01")).text());
    EXPECT_STREQ("gkPersistent", refusal<gkArchive::UnknownVersion>(atOffset(kVersion0, 2, "01")).text());
}

TEST(RegionArchive, AnUnknownFormOfTheHoleListHasNoTextAndNumber0) {
    for (const char* form : {"01", "ff"}) {
        const auto error = refusal<gkArchive::UnknownVersion>(atOffset(kPlain, kHoleForm, form));
        EXPECT_STREQ("", error.text());
        EXPECT_EQ(0, error.number());
    }
}

TEST(RegionArchive, AbsurdNumbersAreNamedErrors) {
    refusal<gkArchive::CountTooLarge>(atOffset(kPlain, kHoleCount, "ffffffff"));
    refusal<gkArchive::BadReference>(atOffset(kHoled, kHoleNumber, "05000000"));
    refusal<gkArchive::UnknownType>(atOffset(kHoled, kHoleName, "78"));
    refusal<gkArchive::BadValue>(atOffset(kPlain, kContourSize, "ffffffff"));
    refusal<gkArchive::BadValue>(atOffset(kVersion0, kSizeOfVersion0, "ffffffff"));
    refusal<gkArchive::TrailingBytes>(kHoled + "00");
    refusal<gkArchive::TrailingBytes>(kVersion0 + "00");
}

TEST(RegionArchive, AHoleThatIsNoRegionIsAWrongType) {
    const std::string contour = "09000000 676b436f6e746f7572"; // "gkContour"
    refusal<gkArchive::WrongType>("01" + kTriangle + "00 01000000" + "01000000" + contour + kHoleContour);
}

TEST(RegionArchive, ANullHoleIsReadAndThrowsWhenItIsAsked) {
    gkRegion region;
    load(withHeader("01" + kTriangle + "00 01000000 00000000"), region);
    ASSERT_EQ(1u, region.holes().size());
    EXPECT_TRUE(region.holes()[0].isNull());
    EXPECT_EQ(0.5, region.area(false));
    EXPECT_THROW(region.area(true), gkBadPointer);
    EXPECT_THROW(region.closestPoint({0, 0}, false, false), gkBadPointer);
}

TEST(RegionArchive, RecordsThatBreakOffAreNamedErrors) {
    for (const std::string& record : {kHoled, kVersion0}) {
        const Bytes whole = withHeader(record);
        for (std::size_t size = 0; size < whole.size(); ++size) {
            gkRegion region(square(0, 0, 10));
            const Shared kept = sharedSquare(2, 2, 2);
            region.holes({kept});
            EXPECT_THROW(load(cut(whole, size), region), gkArchive::Errors) << size;
            ASSERT_EQ(1u, region.holes().size()) << size;
            EXPECT_EQ(kept, region.holes()[0]) << size;
            // The contour part of a later record may be whole when its holes are not.
            if (record == kVersion0) {
                EXPECT_EQ(square(0, 0, 10), region.points()) << size;
            }
        }
    }
}

TEST(RegionArchive, FlippedBitsAreNamedErrorsOrReadAsTheyStand) {
    const Bytes whole = withHeader(kHoled);
    int refused = 0;
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        SCOPED_TRACE(bit);
        Bytes flipped = whole;
        flipped[bit / 8] = static_cast<unsigned char>(flipped[bit / 8] ^ (1u << (bit % 8)));
        gkRegion region;
        try {
            load(flipped, region);
        } catch (const gkArchive::Errors&) {
            ++refused;
            continue;
        }
        EXPECT_EQ(toHex(flipped), toHex(written(region)));
    }
    EXPECT_GT(refused, 100);
}
