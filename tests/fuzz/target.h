// What every fuzz target shares: the entry the fuzzer calls, bytes taken one after the other, and laws.
#ifndef GK_TESTS_FUZZ_TARGET_H
#define GK_TESTS_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// Ends the process with the law that does not hold; the fuzzer keeps the input.
void demand(bool holds, const std::string& law);

// Bytes from the front on; zeros when there are none left.
class Source {
public:
    Source(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

    std::size_t left() const { return left_; }
    std::uint8_t byte();
    // Below `bound`, which is at most 256.
    std::size_t below(std::size_t bound) { return byte() % bound; }
    bool flag() { return byte() % 2 == 1; }
    std::uint16_t twoBytes();
    double number(); // any double

private:
    const std::uint8_t* data_;
    std::size_t left_;
};

// An archive of this kind (tests/hostile/content.h): a named error, or written as it was read.
int archive(const char* kind, const std::uint8_t* data, std::size_t size);

} // namespace fuzz

#endif
