#include "tests/fuzz/target.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace fuzz {

void demand(bool holds, const std::string& law) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", law.c_str());
    std::abort();
}

std::uint8_t Source::byte() {
    if (left_ == 0) return 0;
    --left_;
    return *data_++;
}

std::uint16_t Source::twoBytes() {
    const unsigned low = byte();
    return static_cast<std::uint16_t>(low | static_cast<unsigned>(byte()) << 8);
}

double Source::number() {
    std::uint64_t bits = 0;
    for (int i = 0; i < 8; ++i) bits |= std::uint64_t{byte()} << (8 * i);
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace fuzz
