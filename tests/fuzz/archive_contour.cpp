#include "tests/fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return fuzz::archive("contour", data, size);
}
