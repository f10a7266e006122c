// The header of an archive, and its end.
#include "platform/core/archive/archive_memory.h"
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

TEST(ArchiveHeader, IsTheNameAndTheFormatNumber) {
    EXPECT_EQ("67 6b 61 72 01 00 00 00", test::hex(gkArchiveMemory().bytes()));
}

TEST(ArchiveHeader, TellsTheDirection) {
    gkArchiveMemory out;
    EXPECT_TRUE(out.isSaving());
    EXPECT_FALSE(out.isLoading());
    gkArchiveMemory in(out.bytes());
    EXPECT_FALSE(in.isSaving());
    EXPECT_TRUE(in.isLoading());
}

TEST(ArchiveHeader, OfOtherBytesIsRefused) {
    for (const char* bytes : {"", "67", "67 6b 61", "00 00 00 00 00 00 00 00", "67 6b 61 73 01 00 00 00"}) {
        SCOPED_TRACE(bytes);
        EXPECT_THROW(gkArchiveMemory{test::bytes(bytes)}, gkArchive::NotAnArchive);
    }
}

TEST(ArchiveHeader, CutInTheFormatNumberIsTruncated) {
    EXPECT_THROW(gkArchiveMemory{test::bytes("67 6b 61 72")}, gkArchive::Truncated);
    EXPECT_THROW(gkArchiveMemory{test::bytes("67 6b 61 72 01 00 00")}, gkArchive::Truncated);
}

TEST(ArchiveHeader, OfAnotherFormatIsRefused) {
    EXPECT_THROW(gkArchiveMemory{test::bytes("67 6b 61 72 00 00 00 00")}, gkArchive::UnknownFormat);
    EXPECT_THROW(gkArchiveMemory{test::bytes("67 6b 61 72 02 00 00 00")}, gkArchive::UnknownFormat);
    EXPECT_THROW(gkArchiveMemory{test::bytes("67 6b 61 72 01 00 00 80")}, gkArchive::UnknownFormat);
}

TEST(ArchiveEnd, WithBytesLeftIsRefused) {
    gkArchiveMemory in(test::archive("01 02"));
    EXPECT_THROW(in.finish(), gkArchive::TrailingBytes);
    unsigned char byte = 0;
    in || byte;
    EXPECT_THROW(in.finish(), gkArchive::TrailingBytes);
    in || byte;
    EXPECT_NO_THROW(in.finish());
}

TEST(ArchiveEnd, CanBeReachedFromAPlainArray) {
    const std::vector<unsigned char> all = test::archive("07");
    gkArchiveMemory in(all.data(), all.size());
    unsigned char byte = 0;
    in || byte;
    EXPECT_EQ(7, byte);
    EXPECT_EQ(all, in.bytes());
    EXPECT_NO_THROW(in.finish());
}

TEST(ArchiveEnd, AfterAHalfWrittenObjectIsRefused) {
    gkPtrHandle<test::Node> root = test::node(1);
    root->next.emplace_back(new test::Unregistered);
    gkArchiveMemory out;
    EXPECT_THROW(out || root, gkArchive::UnknownType);
    EXPECT_THROW(out.finish(), gkArchive::WriteFailed);
}

TEST(ArchiveEnd, AfterARefusedValueIsFineBecauseNothingWasWritten) {
    gkArchiveMemory out;
    std::string text = "\xff";
    EXPECT_THROW(out || text, gkArchive::BadValue);
    EXPECT_EQ("", test::body(out));
    EXPECT_NO_THROW(out.finish());
}

TEST(ArchiveDirection, IsCheckedForObjects) {
    gkArchiveMemory out;
    EXPECT_THROW(out.readObject(), gkArchive::WrongDirection);
    gkArchiveMemory in(test::archive("00 00 00 00"));
    EXPECT_THROW(in.writeObject(nullptr), gkArchive::WrongDirection);
    EXPECT_THROW(in.writeReference(nullptr, nullptr), gkArchive::WrongDirection);
}
