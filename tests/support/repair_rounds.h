// How many random outlines the repair tests take.
#ifndef GK_TESTS_SUPPORT_REPAIR_ROUNDS_H
#define GK_TESTS_SUPPORT_REPAIR_ROUNDS_H

#include <cstdint>
#include <cstdlib>

// Seeds per kind: `standard` times the environment variable GKCNTR_REPAIR_ROUNDS when that is a number above 0;
// at least one.
inline std::uint64_t repairRounds(std::uint64_t standard) {
    const char* text = std::getenv("GKCNTR_REPAIR_ROUNDS");
    const double factor = text ? std::strtod(text, nullptr) : 1.0;
    const double wanted = static_cast<double>(standard) * (factor > 0.0 ? factor : 1.0);
    return wanted > 1.0 ? static_cast<std::uint64_t>(wanted) : 1;
}

#endif
