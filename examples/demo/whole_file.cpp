#include "examples/demo/whole_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr unsigned char kPngBegin[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr unsigned char kPngEnd[] = {'I', 'E', 'N', 'D'};
constexpr unsigned char kJpegBegin[] = {0xff, 0xd8, 0xff};
constexpr unsigned char kJpegScan[] = {0xff, 0xda};
constexpr unsigned char kJpegEnd[] = {0xff, 0xd9};

template <std::size_t N> bool beginsWith(const Bytes& bytes, const unsigned char (&begin)[N]) {
    return bytes.size() >= N && std::equal(begin, begin + N, bytes.begin());
}

// The remainder that ends each PNG chunk (ISO 3309).
std::uint32_t checksum(const unsigned char* first, const unsigned char* last) {
    std::uint32_t sum = 0xffffffff;
    for (; first != last; ++first) {
        sum ^= *first;
        for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~sum;
}

std::uint32_t number(const unsigned char* at) {
    return std::uint32_t{at[0]} << 24 | std::uint32_t{at[1]} << 16 | std::uint32_t{at[2]} << 8 | at[3];
}

// A chunk is a length, a name, that many bytes, and the checksum of name and bytes.
bool isWholePng(const Bytes& bytes) {
    std::size_t at = std::size(kPngBegin);
    while (bytes.size() - at >= 12) {
        const unsigned char* name = bytes.data() + at + 4;
        const std::size_t length = number(name - 4);
        if (length > bytes.size() - at - 12) return false;
        const unsigned char* end = name + 4 + length;
        if (checksum(name, end) != number(end)) return false;
        if (std::equal(std::begin(kPngEnd), std::end(kPngEnd), name)) return true;
        at += 12 + length;
    }
    return false;
}

// The mark of the end cannot stand in the light itself, but in a preview before it; so it is looked for behind
// the last scan.
bool isWholeJpeg(const Bytes& bytes) {
    const auto scan = std::find_end(bytes.begin(), bytes.end(), std::begin(kJpegScan), std::end(kJpegScan));
    return std::search(scan, bytes.end(), std::begin(kJpegEnd), std::end(kJpegEnd)) != bytes.end();
}

} // namespace

bool isDamaged(const Bytes& bytes) {
    if (beginsWith(bytes, kPngBegin)) return !isWholePng(bytes);
    if (beginsWith(bytes, kJpegBegin)) return !isWholeJpeg(bytes);
    return false;
}
