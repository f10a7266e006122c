// The fuzzer's hook for targets that take outlines.
#include "tests/fuzz/outline_mutator.h"

#include <algorithm>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned seed);

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed) {
    gen::Random random(seed);
    if (random.chance(0.1)) return LLVMFuzzerMutate(data, size, most);
    std::vector<fuzz::Points> outlines = fuzz::outlinesFrom(data, size);
    for (int count = random.integer(1, 4); count > 0; --count) fuzz::change(outlines, random);
    const std::vector<std::uint8_t> bytes = fuzz::bytesOf(outlines, most);
    std::copy(bytes.begin(), bytes.end(), data);
    return bytes.size();
}
