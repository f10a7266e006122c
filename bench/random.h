// Random numbers that are the same on every machine.
#ifndef GK_BENCH_RANDOM_H
#define GK_BENCH_RANDOM_H

#include <cstdint>
#include <random>

namespace bench {

class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    // In [0, 1).
    double unit() { return static_cast<double>(engine_() >> 11) * 0x1p-53; }
    double between(double low, double high) { return low + (high - low) * unit(); }
    // In [low, high].
    int integer(int low, int high) { return low + static_cast<int>(between(0.0, high - low + 1.0)); }

private:
    std::mt19937_64 engine_;
};

} // namespace bench

#endif
