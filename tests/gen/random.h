// Random numbers for generators: the same sequence from a seed on every platform (no std distribution is).
#ifndef GK_TESTS_GEN_RANDOM_H
#define GK_TESTS_GEN_RANDOM_H

#include <cstddef>
#include <cstdint>

namespace gen {

// Source: Steele, Lea and Flood, Fast Splittable Pseudorandom Number Generators, 2014 (SplitMix64).
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed * 0xD1342543DE82EF95u + 1) {}

    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

    // In [0, 1), a multiple of 2^-53.
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }
    double between(double low, double high) { return low + (high - low) * unit(); }
    // From low to high, both included.
    int integer(int low, int high) {
        return low + static_cast<int>(next() % static_cast<std::uint64_t>(high - low + 1));
    }
    std::size_t index(std::size_t size) { return static_cast<std::size_t>(next() % size); }
    bool chance(double probability) { return unit() < probability; }

private:
    std::uint64_t state_;
};

} // namespace gen

#endif
