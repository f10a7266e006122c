// Vectors of anything.
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

using test::loaded;
using test::saved;

TEST(ArchiveVector, IsAZeroByteTheCountAndTheElements) {
    EXPECT_EQ("00 00 00 00 00", saved(std::vector<gkVector<2>>()));
    EXPECT_EQ("00 02 00 00 00 05 00 00 00 ff ff ff ff", saved(std::vector<long>{5, -1}));
    EXPECT_EQ("00 01 00 00 00 00 00 00 00 00 00 f0 3f 00 00 00 00 00 00 00 40",
              saved(std::vector<gkVector<2>>{gkVector<2>(1.0, 2.0)}));
}

TEST(ArchiveVector, OfAnythingComesBack) {
    const std::vector<bool> flags = {true, false, true};
    EXPECT_EQ("00 03 00 00 00 01 00 01", saved(flags));
    EXPECT_EQ(flags, loaded<std::vector<bool>>(saved(flags)));
    const std::vector<std::wstring> texts = {L"", L"\u20ac"};
    EXPECT_EQ(texts, loaded<std::vector<std::wstring>>(saved(texts)));
    const std::vector<std::vector<unsigned char>> nested = {{1, 2}, {}, {3}};
    EXPECT_EQ("00 03 00 00 00 00 02 00 00 00 01 02 00 00 00 00 00 00 01 00 00 00 03", saved(nested));
    EXPECT_EQ(nested, loaded<std::vector<std::vector<unsigned char>>>(saved(nested)));
    const std::vector<unsigned long> numbers = {0xFFFFFFFFUL};
    EXPECT_EQ(numbers, loaded<std::vector<unsigned long>>(saved(numbers)));
    const std::vector<float> floats = {1.5f};
    EXPECT_EQ(floats, loaded<std::vector<float>>(saved(floats)));
    const std::vector<unsigned short> shorts = {1, 65535};
    EXPECT_EQ(shorts, loaded<std::vector<unsigned short>>(saved(shorts)));
}

TEST(ArchiveVector, ReplacesTheFormerElements) {
    std::vector<long> values = {1, 2, 3};
    gkArchiveMemory in(test::archive("00 01 00 00 00 09 00 00 00"));
    in || values;
    EXPECT_EQ(std::vector<long>{9}, values);
}

TEST(ArchiveVector, OfAnotherFormatIsAnUnknownVersionWithoutText) {
    try {
        loaded<std::vector<long>>("01 00 00 00 00");
        FAIL() << "not thrown";
    } catch (const gkArchive::UnknownVersion& error) {
        EXPECT_STREQ("", error.text());
        EXPECT_EQ(0, error.number());
    }
}

TEST(ArchiveVector, LongerThanTheArchiveIsRefusedBeforeMemoryIsTaken) {
    EXPECT_THROW(loaded<std::vector<unsigned char>>("00 02 00 00 00 00"), gkArchive::CountTooLarge);
    EXPECT_THROW(loaded<std::vector<unsigned char>>("00 ff ff ff ff"), gkArchive::CountTooLarge);
    EXPECT_THROW(loaded<std::vector<gkVector<2>>>("00 ff ff ff ff"), gkArchive::CountTooLarge);
    EXPECT_THROW(loaded<std::vector<gkPtrHandle<test::Node>>>("00 ff ff ff 7f 00"), gkArchive::CountTooLarge);
    EXPECT_THROW(loaded<std::vector<std::vector<long>>>("00 02 00 00 00 00 00 00 00 00"),
                 gkArchive::CountTooLarge);
}

TEST(ArchiveVector, ExactlyAsLongAsTheArchiveIsRead) {
    EXPECT_EQ(1u,
              loaded<std::vector<gkVector<2>>>("00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00")
                  .size());
    EXPECT_THROW(
        loaded<std::vector<gkVector<2>>>("00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"),
        gkArchive::CountTooLarge);
}

// Around the sizes of the blocks that vectors pass in, and every bit of their doubles.
TEST(ArchiveVector, OfManyVectorsHasTheBytesOfItsDoublesOneByOne) {
    for (const std::size_t count : {1u, 255u, 256u, 257u, 511u, 512u, 513u, 5000u}) {
        SCOPED_TRACE(count);
        std::mt19937_64 random(count);
        std::vector<gkVector<2>> values;
        gkArchiveMemory single;
        single.vectorHeader(count, 16);
        while (values.size() < count) {
            const std::uint64_t bits[2] = {random(), random()};
            double value[2];
            std::memcpy(value, bits, sizeof value);
            values.emplace_back(value[0], value[1]);
            single || value[0] || value[1];
        }
        const std::string body = saved(values);
        ASSERT_EQ(test::body(single), body);
        ASSERT_EQ(body, saved(loaded<std::vector<gkVector<2>>>(body)));
    }
}

TEST(ArchiveVector, OfMoreElementsThanThirtyTwoBitsIsRefused) {
    gkArchiveMemory ar;
    if constexpr (sizeof(std::size_t) > 4) {
        const std::size_t most = 0xFFFFFFFFu;
        EXPECT_THROW(ar.vectorHeader(most + 1, 1), gkArchive::ValueOutOfRange);
        EXPECT_EQ("", test::body(ar));
        EXPECT_EQ(most, ar.vectorHeader(most, 1));
        EXPECT_EQ("00 ff ff ff ff", test::body(ar));
    }
}

TEST(ArchiveVector, CutAnywhereIsAnError) {
    const std::vector<unsigned char> whole = test::archive(saved(std::vector<std::string>{"ab", "cde"}));
    for (std::size_t length = 8; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        gkArchiveMemory in(whole.data(), length);
        std::vector<std::string> texts;
        EXPECT_THROW(in || texts, gkArchive::Errors);
    }
}
