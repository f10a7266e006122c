#include "platform/core/archive/archive_vector.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t kBytesOfOne = 16;
// Vectors that pass in one block, 4 KiB: small enough for the stack and the first cache, and one call of the
// archive costs little beside it.
constexpr std::size_t kBlock = 256;

// Eight bytes, the lowest first; the compilers make one move of each.
void toBytes(double value, unsigned char* out) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    out[0] = static_cast<unsigned char>(bits);
    out[1] = static_cast<unsigned char>(bits >> 8);
    out[2] = static_cast<unsigned char>(bits >> 16);
    out[3] = static_cast<unsigned char>(bits >> 24);
    out[4] = static_cast<unsigned char>(bits >> 32);
    out[5] = static_cast<unsigned char>(bits >> 40);
    out[6] = static_cast<unsigned char>(bits >> 48);
    out[7] = static_cast<unsigned char>(bits >> 56);
}

double fromBytes(const unsigned char* in) {
    const std::uint64_t bits = std::uint64_t{in[0]} | std::uint64_t{in[1]} << 8 | std::uint64_t{in[2]} << 16 |
                               std::uint64_t{in[3]} << 24 | std::uint64_t{in[4]} << 32 |
                               std::uint64_t{in[5]} << 40 | std::uint64_t{in[6]} << 48 |
                               std::uint64_t{in[7]} << 56;
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

gkArchive& operator||(gkArchive& ar, gkVector<2>& value) {
    double x = value.x();
    double y = value.y();
    ar || x;
    ar || y;
    value = gkVector<2>(x, y);
    return ar;
}

void gkArchive::vectors(gkVector<2>* values, std::size_t count) {
    unsigned char bytes[kBlock * kBytesOfOne];
    while (count > 0) {
        const std::size_t now = std::min(count, kBlock);
        if (isSaving()) {
            for (std::size_t i = 0; i < now; ++i) {
                toBytes(values[i].x(), bytes + i * kBytesOfOne);
                toBytes(values[i].y(), bytes + i * kBytesOfOne + 8);
            }
            putBytes(bytes, now * kBytesOfOne);
        } else {
            take(bytes, now * kBytesOfOne);
            for (std::size_t i = 0; i < now; ++i)
                values[i] =
                    gkVector<2>(fromBytes(bytes + i * kBytesOfOne), fromBytes(bytes + i * kBytesOfOne + 8));
        }
        values += now;
        count -= now;
    }
}
