// Hostile values: texts and lists of each kind, at their most expensive.
#include "platform/core/archive/archive_memory.h"
#include "platform/core/archive/archive_values.h"
#include "platform/image/edgelet.h"
#include "tests/hostile/counted_memory.h"
#include "tests/hostile/goldens.h"
#include "tests/hostile/reading.h"

#include <gtest/gtest.h>

namespace {

using namespace hostile;
using Bytes = std::vector<unsigned char>;

constexpr std::size_t kLarge = 65536;

// Reads one value from an archive of 64 KiB that is `start` and then `rest` over and over.
template <class T> void expectBounded(const std::string& start, const std::string& rest) {
    Bytes bytes = hex::archive(start);
    const Bytes more = hex::archive(rest);
    while (bytes.size() < kLarge) bytes.insert(bytes.end(), more.begin() + 8, more.end());
    const counted::Memory memory;
    try {
        gkArchiveMemory in(bytes);
        T value;
        in || value;
    } catch (const gkArchive::Errors&) {
    }
    EXPECT_GE(16 * bytes.size() + kMemoryAnyway, memory.peak());
    EXPECT_GE(bytes.size() + 64, memory.requests());
}

// With every count from one that fits to those that do not.
template <class T> void expectBoundedForEachCount(const std::string& rest) {
    const std::size_t size = kLarge - 13;
    for (const std::size_t count :
         {size, size / 2, size / 4, size / 5, size / 8, size / 16, size / 19, size / 32, size / 48}) {
        SCOPED_TRACE(count);
        expectBounded<T>(hex::list(static_cast<unsigned long>(count)), rest);
    }
    expectBounded<T>(hex::list(0xFFFFFFFFul), rest);
}

} // namespace

TEST(HostileValues, TextsAreBounded) {
    for (const char* letter : {"41", "00", "c3a4", "e282ac", "f09f9880", "ff"}) {
        for (const unsigned long size : {65520ul, 65536ul, 12ul, 0xFFFFFFFFul}) {
            expectBounded<std::string>(hex::number(size), letter);
            expectBounded<std::wstring>(hex::number(size), letter);
        }
    }
}

TEST(HostileValues, ListsOfNumbersAreBounded) {
    expectBoundedForEachCount<std::vector<bool>>("01");
    expectBoundedForEachCount<std::vector<unsigned char>>("01");
    expectBoundedForEachCount<std::vector<unsigned short>>("01");
    expectBoundedForEachCount<std::vector<long>>("01");
    expectBoundedForEachCount<std::vector<unsigned long>>("01");
    expectBoundedForEachCount<std::vector<float>>("01");
    expectBoundedForEachCount<std::vector<double>>("01");
}

TEST(HostileValues, ListsOfGeometryAreBounded) {
    expectBoundedForEachCount<std::vector<gkVector<2>>>("01");
    expectBoundedForEachCount<std::vector<gkEdgelet>>("01");
    expectBoundedForEachCount<std::vector<gkMatrix<2>>>("01");
    expectBoundedForEachCount<std::vector<gkXform<2>>>("01");
    expectBoundedForEachCount<std::vector<gkRect>>("01");
    expectBoundedForEachCount<std::vector<gkAngle8>>("01");
    expectBoundedForEachCount<std::vector<gkRadian>>("01");
}

TEST(HostileValues, ListsOfTextsAreBounded) {
    for (const char* text : {"00000000", "0100000041", "0400000041414141", "08000000f09f9880c3a4c3a4",
                             "10000000 41414141414141414141414141414141"}) {
        expectBoundedForEachCount<std::vector<std::string>>(text);
        expectBoundedForEachCount<std::vector<std::wstring>>(text);
    }
}

// A list within the list asks for all bytes left, and so does the next one.
TEST(HostileValues, ListsOfListsAreBounded) {
    expectBoundedForEachCount<std::vector<std::vector<bool>>>("00 00000000");
    expectBoundedForEachCount<std::vector<std::vector<bool>>>("00 01000000 01");
    expectBoundedForEachCount<std::vector<std::vector<std::string>>>("00 01000000 00000000");
    expectBoundedForEachCount<std::vector<std::vector<std::vector<std::vector<bool>>>>>("00 00000000");
    std::string nested;
    for (int level = 0; level < 5; ++level) nested += hex::list((kLarge - 100) / 5);
    expectBounded<std::vector<std::vector<std::vector<std::vector<std::vector<std::vector<bool>>>>>>>(nested,
                                                                                                      "00");
}
