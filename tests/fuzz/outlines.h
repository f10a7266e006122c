// Outlines as bytes: for each a count, then its vertices as pairs of little-endian doubles, as far as the bytes
// go.
#ifndef GK_TESTS_FUZZ_OUTLINES_H
#define GK_TESTS_FUZZ_OUTLINES_H

#include "platform/core/math/vector.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fuzz {

using Points = std::vector<gkVector<2>>;

// More than the 48 from which on an index answers, and few enough for the plain definitions.
constexpr std::size_t kMostVertices = 56;
constexpr std::size_t kMostOutlines = 5;

// At most that many outlines of at most that many vertices; whatever follows is left out.
std::vector<Points> outlinesFrom(const std::uint8_t* data, std::size_t size);
// The bytes that give these outlines, as many of them as fit.
std::vector<std::uint8_t> bytesOf(const std::vector<Points>& outlines, std::size_t most);

} // namespace fuzz

#endif
