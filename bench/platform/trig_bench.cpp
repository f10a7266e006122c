// Our sine, cosine and arctangent beside those of the C library, over the same arguments.
#include "platform/core/math/trig.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kCount = 4096;
constexpr unsigned kSeed = 7;

std::vector<double> uniform(double low, double high, unsigned seed) {
    std::mt19937 engine(seed);
    std::uniform_real_distribution<double> distribution(low, high);
    std::vector<double> values(kCount);
    for (double& v : values) v = distribution(engine);
    return values;
}

// f over all the arguments once per iteration; the rate is that of single calls.
template <class F> void overAngles(benchmark::State& state, F f) {
    const double reach = static_cast<double>(state.range(0)) * 0.1;
    const std::vector<double> angles = uniform(-reach, reach, kSeed);
    for (auto _ : state) {
        for (double angle : angles) benchmark::DoNotOptimize(f(angle));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(kCount));
}

template <class F> void overVectors(benchmark::State& state, F f) {
    const std::vector<double> x = uniform(-1.0, 1.0, kSeed);
    const std::vector<double> y = uniform(-1.0, 1.0, kSeed + 1);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kCount; ++i) benchmark::DoNotOptimize(f(y[i], x[i]));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(kCount));
}

void sinCosOurs(benchmark::State& state) {
    overAngles(state, [](double angle) { return gk_Trig::sinCos(angle); });
}

void sinCosStd(benchmark::State& state) {
    overAngles(state, [](double angle) { return gk_Trig::SinCos{std::sin(angle), std::cos(angle)}; });
}

void atan2Ours(benchmark::State& state) {
    overVectors(state, [](double y, double x) { return gk_Trig::atan2(y, x); });
}

void atan2Std(benchmark::State& state) {
    overVectors(state, [](double y, double x) { return std::atan2(y, x); });
}

} // namespace

// The argument is the range of the angles in tenths of a radian: the first octants, one turn, 100 turns, huge.
BENCHMARK(sinCosOurs)->Arg(7)->Arg(31)->Arg(6283)->Arg(1000000000000);
BENCHMARK(sinCosStd)->Arg(7)->Arg(31)->Arg(6283)->Arg(1000000000000);
BENCHMARK(atan2Ours);
BENCHMARK(atan2Std);
