// How many random outlines the repair tests take.
#ifndef GK_TESTS_SUPPORT_REPAIR_ROUNDS_H
#define GK_TESTS_SUPPORT_REPAIR_ROUNDS_H

#include <cstdint>
#include <cstdlib>

// Seeds per kind: `standard` times the environment variable GKCNTR_REPAIR_ROUNDS when that is a number above 0.
inline std::uint64_t repairRounds(std::uint64_t standard) {
    const char* text = std::getenv("GKCNTR_REPAIR_ROUNDS");
    const long factor = text ? std::strtol(text, nullptr, 10) : 1;
    return standard * (factor > 0 ? static_cast<std::uint64_t>(factor) : 1);
}

#endif
