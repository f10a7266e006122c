#include "tests/fuzz/repair_laws.h"
#include "tests/fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<fuzz::Points> outlines = fuzz::outlinesFrom(data, size);
    if (!outlines.empty()) fuzz::demandRepair(outlines[0], false);
    return 0;
}
