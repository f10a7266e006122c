// The bytes of every plain value. Goldens are derived by hand from the definitions: little-endian, two's
// complement, IEEE 754.
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>

using test::loaded;
using test::saved;

namespace {

template <class T, class Bits> T fromBits(Bits bits) {
    static_assert(sizeof(T) == sizeof(Bits));
    T value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

template <class Bits, class T> Bits toBits(T value) {
    Bits bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

TEST(ArchiveBool, IsOneByte) {
    EXPECT_EQ("00", saved(false));
    EXPECT_EQ("01", saved(true));
    EXPECT_FALSE(loaded<bool>("00"));
    EXPECT_TRUE(loaded<bool>("01"));
}

TEST(ArchiveBool, OfAnyOtherByteIsRefused) {
    EXPECT_THROW(loaded<bool>("02"), gkArchive::BadValue);
    EXPECT_THROW(loaded<bool>("ff"), gkArchive::BadValue);
}

TEST(ArchiveByte, IsItself) {
    for (int i = 0; i < 256; ++i) {
        const unsigned char byte = static_cast<unsigned char>(i);
        EXPECT_EQ(test::hex({byte}), saved(byte));
        EXPECT_EQ(byte, loaded<unsigned char>(saved(byte)));
    }
}

TEST(ArchiveShort, IsTwoBytesLowFirst) {
    EXPECT_EQ("34 12", saved<unsigned short>(0x1234));
    EXPECT_EQ("ff ff", saved<unsigned short>(0xFFFF));
    EXPECT_EQ(0x1234, loaded<unsigned short>("34 12"));
}

TEST(ArchiveLong, IsFourBytesOfTwosComplement) {
    EXPECT_EQ("00 00 00 00", saved(0L));
    EXPECT_EQ("04 03 02 01", saved(0x01020304L));
    EXPECT_EQ("ff ff ff ff", saved(-1L));
    EXPECT_EQ("ff ff ff 7f", saved(2147483647L));
    EXPECT_EQ("00 00 00 80", saved(-2147483647L - 1));
    for (const long value : {0L, 1L, -1L, 0x01020304L, 2147483647L, -2147483647L, -2147483647L - 1})
        EXPECT_EQ(value, loaded<long>(saved(value)));
}

TEST(ArchiveUnsignedLong, IsFourBytes) {
    EXPECT_EQ("04 03 02 01", saved(0x01020304UL));
    EXPECT_EQ("ff ff ff ff", saved(0xFFFFFFFFUL));
    EXPECT_EQ(0xFFFFFFFFUL, loaded<unsigned long>("ff ff ff ff"));
}

TEST(ArchiveLong, BeyondThirtyTwoBitsIsRefusedAndWritesNothing) {
    if constexpr (sizeof(long) > 4) {
        const std::int64_t beyond = 0x80000000;
        gkArchiveMemory ar;
        long above = static_cast<long>(beyond);
        long below = static_cast<long>(-beyond - 1);
        unsigned long unsignedAbove = static_cast<unsigned long>(2 * beyond);
        EXPECT_THROW(ar || above, gkArchive::ValueOutOfRange);
        EXPECT_THROW(ar || below, gkArchive::ValueOutOfRange);
        EXPECT_THROW(ar || unsignedAbove, gkArchive::ValueOutOfRange);
        EXPECT_EQ("", test::body(ar));
    } else {
        EXPECT_EQ("ff ff ff ff", saved(std::numeric_limits<unsigned long>::max()));
    }
}

TEST(ArchiveDouble, IsItsEightBytes) {
    EXPECT_EQ("00 00 00 00 00 00 00 00", saved(0.0));
    EXPECT_EQ("00 00 00 00 00 00 00 80", saved(-0.0));
    EXPECT_EQ("00 00 00 00 00 00 f0 3f", saved(1.0));
    EXPECT_EQ("00 00 00 00 00 00 04 c0", saved(-2.5));
    EXPECT_EQ("9a 99 99 99 99 99 b9 3f", saved(0.1));
    EXPECT_EQ("00 00 00 00 00 00 f0 7f", saved(std::numeric_limits<double>::infinity()));
    EXPECT_EQ("01 00 00 00 00 00 00 00", saved(std::numeric_limits<double>::denorm_min()));
}

TEST(ArchiveDouble, KeepsEveryBitOfEveryKindOfValue) {
    for (const std::uint64_t bits :
         {0x0ull, 0x8000000000000000ull, 0x7FF8000000000000ull, 0x7FF8DEADBEEF0001ull, 0xFFF8000000000042ull,
          0x7FF0000000000001ull, 0x0123456789ABCDEFull}) {
        gkArchiveMemory out;
        double value = fromBits<double>(bits);
        out || value;
        gkArchiveMemory in(out.bytes());
        double read = 0.0;
        in || read;
        EXPECT_EQ(bits, toBits<std::uint64_t>(read));
    }
}

TEST(ArchiveFloat, IsItsFourBytesAndKeepsEveryBit) {
    EXPECT_EQ("00 00 80 3f", saved(1.0f));
    EXPECT_EQ("00 00 20 c0", saved(-2.5f));
    for (const std::uint32_t bits : {0x0u, 0x80000000u, 0x7FC01234u, 0x00000001u, 0x7F800000u}) {
        gkArchiveMemory out;
        float value = fromBits<float>(bits);
        out || value;
        gkArchiveMemory in(out.bytes());
        float read = 0.0f;
        in || read;
        EXPECT_EQ(bits, toBits<std::uint32_t>(read));
    }
}

TEST(ArchiveVector2, IsXThenY) {
    EXPECT_EQ("00 00 00 00 00 00 f0 3f 00 00 00 00 00 00 04 c0", saved(gkVector<2>(1.0, -2.5)));
    EXPECT_EQ(gkVector<2>(1.0, -2.5), loaded<gkVector<2>>("00 00 00 00 00 00 f0 3f 00 00 00 00 00 00 04 c0"));
}

TEST(ArchiveValue, CutAnywhereIsTruncated) {
    EXPECT_THROW(loaded<bool>(""), gkArchive::Truncated);
    EXPECT_THROW(loaded<unsigned char>(""), gkArchive::Truncated);
    EXPECT_THROW(loaded<unsigned short>("01"), gkArchive::Truncated);
    EXPECT_THROW(loaded<long>("01 02 03"), gkArchive::Truncated);
    EXPECT_THROW(loaded<unsigned long>("01 02 03"), gkArchive::Truncated);
    EXPECT_THROW(loaded<float>("01 02 03"), gkArchive::Truncated);
    EXPECT_THROW(loaded<double>("01 02 03 04 05 06 07"), gkArchive::Truncated);
    EXPECT_THROW(loaded<std::string>("01 00 00"), gkArchive::Truncated);
}
