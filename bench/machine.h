// Where and of what the figures were made.
#ifndef GK_BENCH_MACHINE_H
#define GK_BENCH_MACHINE_H

#include <string>

namespace bench {

// Processor, compiler, flags and commit.
std::string machineText();

} // namespace bench

#endif
