// Archives in files.
#include "platform/core/archive/archive_file.h"
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

namespace {

class ArchiveFile : public testing::Test {
protected:
    void SetUp() override {
        const testing::TestInfo* const info = testing::UnitTest::GetInstance()->current_test_info();
        room_ = fs::path(testing::TempDir()) / (std::string("gkcntr_archive_file_") + info->name());
        fs::remove_all(room_);
        fs::create_directories(room_);
    }
    void TearDown() override { fs::remove_all(room_); }

    fs::path file() const { return room_ / "shapes.gka"; }
    void write(const std::vector<unsigned char>& bytes) const {
        std::ofstream(file(), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    std::vector<unsigned char> read() const {
        std::ifstream in(file(), std::ios::binary);
        return std::vector<unsigned char>(std::istreambuf_iterator<char>(in), {});
    }

    fs::path room_;
};

} // namespace

TEST_F(ArchiveFile, HoldsTheBytesOfTheMemoryArchive) {
    long value = 0x01020304;
    gkArchiveFile out(file(), gkArchiveFile::eSave);
    EXPECT_TRUE(out.isSaving());
    out || value;
    EXPECT_FALSE(fs::exists(file()));
    out.close();
    EXPECT_EQ("67 6b 61 72 01 00 00 00 04 03 02 01", test::hex(read()));

    gkArchiveFile in(file(), gkArchiveFile::eLoad);
    EXPECT_TRUE(in.isLoading());
    long back = 0;
    in || back;
    in.close();
    EXPECT_EQ(value, back);
}

TEST_F(ArchiveFile, MayHaveANameInAnyScript) {
    // Greek, Japanese and one beyond 16 bits; narrow names of some systems have no letters for them.
    const fs::path name = room_ / fs::u8path("\xCE\xA9_\xE5\xBD\xA2_\xF0\x9F\x98\x80.gka");
    long value = 5;
    gkArchiveFile out(name, gkArchiveFile::eSave);
    out || value;
    out.close();
    ASSERT_TRUE(fs::exists(name));
    gkArchiveFile in(name, gkArchiveFile::eLoad);
    long back = 0;
    in || back;
    in.close();
    EXPECT_EQ(5, back);
}

TEST_F(ArchiveFile, ReplacesAnOlderOne) {
    write(std::vector<unsigned char>(1000, 1));
    gkArchiveFile(file(), gkArchiveFile::eSave).close();
    EXPECT_EQ(8u, fs::file_size(file()));
}

TEST_F(ArchiveFile, IsNotWrittenWithoutClose) {
    { gkArchiveFile out(file(), gkArchiveFile::eSave); }
    EXPECT_FALSE(fs::exists(file()));
}

TEST_F(ArchiveFile, IsNotWrittenWithAHalfWrittenObject) {
    gkPtrHandle<test::Node> root = test::node(1);
    root->next.emplace_back(new test::Unregistered);
    gkArchiveFile out(file(), gkArchiveFile::eSave);
    EXPECT_THROW(out || root, gkArchive::UnknownType);
    EXPECT_THROW(out.close(), gkArchive::WriteFailed);
    EXPECT_FALSE(fs::exists(file()));
}

TEST_F(ArchiveFile, CanBeClosedTwice) {
    gkArchiveFile out(file(), gkArchiveFile::eSave);
    out.close();
    fs::remove(file());
    out.close();
    EXPECT_FALSE(fs::exists(file()));
}

TEST_F(ArchiveFile, WithBytesLeftIsRefusedOnClose) {
    write(test::archive("00"));
    gkArchiveFile in(file(), gkArchiveFile::eLoad);
    EXPECT_THROW(in.close(), gkArchive::TrailingBytes);
}

TEST_F(ArchiveFile, ThatIsNotThereCannotBeOpened) {
    EXPECT_THROW(gkArchiveFile(file(), gkArchiveFile::eLoad), gkArchive::CannotOpen);
    EXPECT_THROW(gkArchiveFile(room_, gkArchiveFile::eLoad), gkArchive::CannotOpen);
    EXPECT_THROW(gkArchiveFile("", gkArchiveFile::eLoad), gkArchive::CannotOpen);
}

TEST_F(ArchiveFile, OfOtherBytesIsRefused) {
    write({});
    EXPECT_THROW(gkArchiveFile(file(), gkArchiveFile::eLoad), gkArchive::NotAnArchive);
    write(test::bytes("67 6b 61 72 09 00 00 00"));
    EXPECT_THROW(gkArchiveFile(file(), gkArchiveFile::eLoad), gkArchive::UnknownFormat);
    write(test::bytes("67 6b 61 72 01"));
    EXPECT_THROW(gkArchiveFile(file(), gkArchiveFile::eLoad), gkArchive::Truncated);
}

TEST_F(ArchiveFile, ThatCannotBeWrittenIsToldOnClose) {
    gkArchiveFile nowhere(room_ / "no such room" / "x", gkArchiveFile::eSave);
    EXPECT_THROW(nowhere.close(), gkArchive::WriteFailed);
    gkArchiveFile directory(room_, gkArchiveFile::eSave);
    EXPECT_THROW(directory.close(), gkArchive::WriteFailed);
    if (fs::exists("/dev/full")) {
        gkArchiveFile full("/dev/full", gkArchiveFile::eSave);
        EXPECT_THROW(full.close(), gkArchive::WriteFailed);
    }
}

TEST_F(ArchiveFile, ThatEndsBeforeItsSizeCannotBeRead) {
    // The kernel says a page and gives a few bytes.
    const fs::path shorter = "/sys/kernel/uevent_seqnum";
    std::error_code error;
    if (fs::file_size(shorter, error) == 4096 && !error) {
        EXPECT_THROW(gkArchiveFile(shorter, gkArchiveFile::eLoad), gkArchive::ReadFailed);
    }
}
