#include "tests/fuzz/outlines.h"

#include "tests/fuzz/target.h"

#include <algorithm>
#include <cstring>

namespace {

void append(double value, std::vector<std::uint8_t>& bytes) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    for (int i = 0; i < 8; ++i) bytes.push_back(static_cast<std::uint8_t>(bits >> (8 * i)));
}

} // namespace

namespace fuzz {

std::vector<Points> outlinesFrom(const std::uint8_t* data, std::size_t size) {
    Source source(data, size);
    std::vector<Points> outlines;
    while (source.left() > 0 && outlines.size() < kMostOutlines) {
        Points points;
        for (std::size_t count = source.below(kMostVertices + 1); count > 0 && source.left() >= 16; --count) {
            const double x = source.number();
            points.emplace_back(x, source.number());
        }
        outlines.push_back(points);
    }
    return outlines;
}

std::vector<std::uint8_t> bytesOf(const std::vector<Points>& outlines, std::size_t most) {
    std::vector<std::uint8_t> bytes;
    for (const Points& points : outlines) {
        const std::size_t count = std::min(points.size(), kMostVertices);
        if (bytes.size() + 1 + 16 * count > most) break;
        bytes.push_back(static_cast<std::uint8_t>(count));
        for (std::size_t i = 0; i < count; ++i) {
            append(points[i].x(), bytes);
            append(points[i].y(), bytes);
        }
    }
    return bytes;
}

} // namespace fuzz
