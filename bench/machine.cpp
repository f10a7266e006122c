#include "bench/machine.h"

#include <cstdlib>
#include <fstream>

namespace bench {

namespace {

std::string processor() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
    }
    return "unknown processor";
}

// The commit may change without a new build, so the caller tells it.
std::string commit() {
    const char* const text = std::getenv("GK_BENCH_COMMIT");
    return text ? text : "unknown";
}

} // namespace

std::string machineText() {
    return processor() + ", " GK_BENCH_COMPILER ", flags " GK_BENCH_FLAGS ", commit " + commit();
}

} // namespace bench
