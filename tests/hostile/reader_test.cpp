// Hostile bytes: whatever is read from them ends in a named error or in objects that say what the bytes say,
// within memory and work that the number of bytes bounds.
#include "platform/core/archive/archive_memory.h"
#include "tests/hostile/content.h"
#include "tests/hostile/goldens.h"
#include "tests/hostile/reading.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<unsigned char>;
using hostile::Golden;

constexpr std::size_t kHeader = 8;

void expectHarmless(const std::string& kind, const Bytes& bytes) {
    EXPECT_NO_THROW(hostile::expectErrorOrEqual(kind, bytes));
    EXPECT_EQ("", hostile::beyondBounds(hostile::read(kind, bytes), bytes.size()));
}

template <class Check> void eachGolden(Check check) {
    for (const Golden& golden : hostile::goldens()) {
        SCOPED_TRACE(golden.name);
        check(golden);
        if (testing::Test::HasFailure()) return;
    }
}

Bytes withNumber(Bytes bytes, std::size_t at, unsigned long value) {
    for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<unsigned char>(value >> (8 * i));
    return bytes;
}

} // namespace

TEST(HostileBytes, EveryGoldenIsRead) {
    eachGolden([](const Golden& golden) {
        const Bytes written = hostile::rewritten(golden.kind, golden.bytes);
        EXPECT_EQ(golden.isCurrent, golden.bytes == written);
        EXPECT_EQ(written, hostile::rewritten(golden.kind, written));
        EXPECT_EQ("", hostile::beyondBounds(hostile::read(golden.kind, golden.bytes), golden.bytes.size()));
    });
}

TEST(HostileBytes, EveryGoldenCutAtAnyByteIsAnError) {
    eachGolden([](const Golden& golden) {
        for (std::size_t size = 0; size < golden.bytes.size(); ++size) {
            SCOPED_TRACE(size);
            const Bytes cut(golden.bytes.begin(), golden.bytes.begin() + static_cast<std::ptrdiff_t>(size));
            EXPECT_THROW(hostile::rewritten(golden.kind, cut), gkArchive::Errors);
            expectHarmless(golden.kind, cut);
        }
    });
}

TEST(HostileBytes, EveryGoldenWithOneByteMoreIsAnError) {
    eachGolden([](const Golden& golden) {
        Bytes longer = golden.bytes;
        longer.push_back(0);
        EXPECT_THROW(hostile::rewritten(golden.kind, longer), gkArchive::TrailingBytes);
    });
}

TEST(HostileBytes, AnyFlippedBitIsAnErrorOrReadAsItStands) {
    eachGolden([](const Golden& golden) {
        for (std::size_t bit = 0; bit < 8 * golden.bytes.size(); ++bit) {
            SCOPED_TRACE(bit);
            Bytes flipped = golden.bytes;
            flipped[bit / 8] = static_cast<unsigned char>(flipped[bit / 8] ^ (1u << (bit % 8)));
            expectHarmless(golden.kind, flipped);
            // Version 1 may have become version 0, which is read as another record and written as today's.
            const bool mayBeOlder = golden.bytes[bit / 8] == 1 && flipped[bit / 8] == 0;
            if (!golden.isCurrent || mayBeOlder) continue;
            try {
                EXPECT_EQ(flipped, hostile::rewritten(golden.kind, flipped));
            } catch (const gkArchive::Errors&) {
            }
        }
    });
}

TEST(HostileBytes, AnyNumberReplacedByAnotherIsAnErrorOrReadAsItStands) {
    eachGolden([](const Golden& golden) {
        const auto size = static_cast<unsigned long>(golden.bytes.size());
        for (std::size_t at = kHeader; at + 4 <= golden.bytes.size(); ++at) {
            for (const unsigned long value :
                 {0ul, 1ul, 2ul, 9ul, size / 16, size / 4, size, 0xFFFFul, 0xFFFFFFul, 0x3FFFFFFFul,
                  0x40000000ul, 0x7FFFFFFFul, 0x80000000ul, 0xFFFFFFFFul}) {
                SCOPED_TRACE(std::to_string(value) + " at " + std::to_string(at));
                expectHarmless(golden.kind, withNumber(golden.bytes, at, value));
            }
        }
    });
}

TEST(HostileBytes, OfOneKindAreReadAsAnother) {
    eachGolden([](const Golden& golden) {
        for (const std::string& kind : hostile::kinds()) {
            SCOPED_TRACE(kind);
            expectHarmless(kind, golden.bytes);
        }
    });
}
