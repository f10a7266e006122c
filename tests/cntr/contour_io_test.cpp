// Archive records of contours, byte for byte, and what a load leaves behind.
#include "cntr/contour.h"
#include "platform/core/archive/archive_memory.h"
#include "tests/support/hex.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes header() { return gkArchiveMemory().bytes(); }

Bytes withHeader(const std::string& record) {
    Bytes all = header();
    const Bytes bytes = fromHex(record);
    all.insert(all.end(), bytes.begin(), bytes.end());
    return all;
}

Bytes written(gkContour contour) {
    gkArchiveMemory archive;
    archive || static_cast<gkPersistent&>(contour);
    return archive.bytes();
}

void load(const Bytes& bytes, gkContour& contour) {
    gkArchiveMemory archive(bytes);
    archive || static_cast<gkPersistent&>(contour);
    archive.finish();
}

// A triangle with label 0x01020304, open, cachedVectorSize 5.
const char* const kVersion1 = "01"                                // record version
                              "00"                                // base record
                              "04030201"                          // label
                              "00"                                // closed flag
                              "00 02000000"                       // vertices: form, count
                              "000000000000f03f 00000000000000c0" // 1, -2
                              "0000000000000840 9a9999999999b93f" // 3, 0.1
                              "05000000";                         // cachedVectorSize

const char* const kVersion0 = "00"          // record version
                              "00 00"       // the base of old: its version, its base record
                              "00 02000000" // vertices
                              "000000000000f03f 00000000000000c0"
                              "0000000000000840 9a9999999999b93f"
                              "7b"       // unused
                              "05000000" // cachedVectorSize
                              "00";      // closed flag

gkContour archived() {
    gkContour contour({{1, -2}, {3, 0.1}}, false, 0x01020304);
    contour.cachedVectorSize(5);
    return contour;
}

std::string atOffset(std::string hex, std::size_t byte, const std::string& value) {
    std::string clean;
    for (const char c : hex) {
        if (c != ' ') clean += c;
    }
    return clean.replace(2 * byte, value.size(), value);
}

} // namespace

TEST(ContourArchive, RecordIsWrittenByteForByte) {
    EXPECT_EQ(toHex(withHeader(kVersion1)), toHex(written(archived())));
}

TEST(ContourArchive, WrittenAndReadEqualsAndKeepsItsLabel) {
    gkContour contour;
    load(written(archived()), contour);
    EXPECT_TRUE(archived() == contour);
    EXPECT_EQ(0x01020304ul, contour.label());
}

TEST(ContourArchive, Version0LoadsWithLabel0AndWhatFollowsThePoints) {
    gkContour contour(points("9 9"), true, 77);
    load(withHeader(kVersion0), contour);
    EXPECT_TRUE(archived() == contour);
    EXPECT_EQ(0ul, contour.label());
    EXPECT_FALSE(contour.isClosed());
    EXPECT_EQ(5, contour.cachedVectorSize());
}

TEST(ContourArchive, TwoVersion0ContoursInOneArchiveBothLoad) {
    gkContour first;
    gkContour second;
    Bytes both = withHeader(kVersion0);
    const Bytes record = fromHex(kVersion0);
    both.insert(both.end(), record.begin(), record.end());
    gkArchiveMemory archive(both);
    archive || static_cast<gkPersistent&>(first);
    archive || static_cast<gkPersistent&>(second);
    archive.finish();
    EXPECT_TRUE(archived() == first);
    EXPECT_TRUE(archived() == second);
}

TEST(ContourArchive, EveryCacheIsInvalidAfterALoad) {
    OpenedContour contour = closed("0 0, 8 0, 8 8, 0 8");
    contour.length();
    contour.meanPosition();
    contour.encloseRect(gkXform<2>());
    contour.extremalVertexIndex(gkRadian(0.0));
    contour.diameter(gkContourDefs::eExact);
    contour.diameter(gkContourDefs::eApproximate);
    contour.isSelfIntersecting();
    contour.medianFeatureSize();
    contour.vertexIndex({8, 8}, 1.0);
    const int cleaned = contour.cleaned;
    gkArchiveMemory archive(written(archived()));
    archive || static_cast<gkPersistent&>(contour);
    EXPECT_EQ(cleaned + 1, contour.cleaned);
    EXPECT_EQ(archived().length(), contour.length());
    EXPECT_EQ(archived().meanPosition(), contour.meanPosition());
    EXPECT_EQ(gkRect::fromCorners({1, -2}, {3, 0.1}), contour.encloseRect(gkXform<2>()));
    EXPECT_EQ(1, contour.extremalVertexIndex(gkRadian(0.0)));
    EXPECT_EQ(archived().length(), contour.diameter(gkContourDefs::eExact));
    EXPECT_EQ(2 * archived().length(), contour.diameter(gkContourDefs::eApproximate));
    EXPECT_EQ(archived().length(), contour.medianFeatureSize());
    EXPECT_TRUE(contour.vertexIndex({8, 8}, 1.0).empty());
    EXPECT_EQ(1u, contour.lineSegs().size());
}

TEST(ContourArchive, WrittenTwiceInOnePassIsWrittenOnce) {
    gkContour contour = archived();
    gkArchiveMemory archive;
    archive || static_cast<gkPersistent&>(contour);
    archive || static_cast<gkPersistent&>(contour);
    EXPECT_EQ(written(archived()), archive.bytes());
}

TEST(ContourArchive, ASharedContourIsWrittenOnceAndReadAsOne) {
    const gkPtrHandle<gkContour> shared(new gkContour(archived()));
    std::vector<gkPtrHandle<gkContour>> list = {shared, shared, gkPtrHandle<gkContour>()};
    gkArchiveMemory out;
    out || list;
    gkArchiveMemory in(out.bytes());
    std::vector<gkPtrHandle<gkContour>> read;
    in || read;
    in.finish();
    ASSERT_EQ(3u, read.size());
    EXPECT_TRUE(archived() == *read[0]);
    EXPECT_EQ(read[0], read[1]);
    EXPECT_TRUE(read[2].isNull());
}

TEST(ContourArchive, MadeByTypeIsClosedAndEmptyBeforeItIsRead) {
    // A record of an empty contour as it is made: created through its name, all fields at their first values.
    const gkPtrHandle<gkContour> empty(new gkContour(Points(), true, 0));
    gkPtrHandle<gkContour> handle = empty;
    gkArchiveMemory out;
    out || handle;
    gkArchiveMemory in(out.bytes());
    gkPtrHandle<gkContour> read;
    in || read;
    ASSERT_FALSE(read.isNull());
    EXPECT_TRUE(read->isClosed());
    EXPECT_TRUE(read->points().empty());
    EXPECT_EQ(0ul, read->label());
}

TEST(ContourArchive, UnknownVersionsAreNamedErrors) {
    gkContour contour;
    EXPECT_THROW(load(withHeader(atOffset(kVersion1, 0, "02")), contour), gkArchive::UnknownVersion);
    EXPECT_THROW(load(withHeader(atOffset(kVersion1, 0, "ff")), contour), gkArchive::UnknownVersion);
    EXPECT_THROW(load(withHeader(atOffset(kVersion1, 1, "01")), contour),
                 gkArchive::UnknownVersion); // base record
    EXPECT_THROW(load(withHeader(atOffset(kVersion0, 1, "01")), contour),
                 gkArchive::UnknownVersion); // base of old
    EXPECT_THROW(load(withHeader(atOffset(kVersion0, 2, "01")), contour), gkArchive::UnknownVersion);
}

TEST(ContourArchive, UnknownVectorFormHasNoTextAndNumber0) {
    gkContour contour;
    try {
        load(withHeader(atOffset(kVersion1, 7, "01")), contour);
        FAIL() << "nothing was thrown";
    } catch (const gkArchive::UnknownVersion& error) {
        EXPECT_STREQ("", error.text());
        EXPECT_EQ(0, error.number());
    }
}

TEST(ContourArchive, AbsurdCountIsRefusedBeforeMemoryIsTaken) {
    gkContour contour;
    EXPECT_THROW(load(withHeader(atOffset(kVersion1, 8, "ffffffff")), contour), gkArchive::CountTooLarge);
}

TEST(ContourArchive, NegativeCachedVectorSizeIsRefusedAndZeroIsNot) {
    gkContour contour;
    load(withHeader(atOffset(kVersion1, 44, "00000000")), contour);
    EXPECT_EQ(0, contour.cachedVectorSize());
    EXPECT_THROW(load(withHeader(atOffset(kVersion1, 44, "ffffffff")), contour), gkArchive::BadValue);
}

TEST(ContourArchive, ARecordThatBreaksOffIsANamedErrorAndLeavesTheContour) {
    const Bytes whole = withHeader(kVersion1);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        gkContour contour(points("9 9, 1 2"), true, 7);
        EXPECT_THROW(load(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)), contour),
                     gkArchive::Errors)
            << size;
        EXPECT_EQ(points("9 9, 1 2"), contour.points());
        EXPECT_EQ(7ul, contour.label());
    }
}

TEST(ContourArchive, NanAndInfinitiesTravelBitByBit) {
    const gkContour strange({{std::nan(""), INFINITY}, {-0.0, -INFINITY}}, true, 0);
    const Bytes bytes = written(strange);
    gkContour read;
    load(bytes, read);
    EXPECT_EQ(bytes, written(read));
    EXPECT_TRUE(std::signbit(read.points()[1].x()));
}

TEST(ContourArchive, OverlongRecordIsRefused) {
    gkContour contour;
    EXPECT_THROW(load(withHeader(std::string(kVersion1) + "00"), contour), gkArchive::TrailingBytes);
}
