#include "bench/growth.h"

#include <cmath>
#include <iomanip>
#include <map>
#include <ostream>
#include <tuple>

namespace bench {

namespace {

constexpr double kSlopeOfWhole = 1.15;
constexpr double kSlopeOfRepeated = 0.6;

using Series = std::tuple<std::string, Kind, Mode>;
using Times = std::map<std::size_t, double>; // nanoseconds by n

std::map<Series, Times> seriesOf(const std::vector<Result>& results) {
    std::map<Series, Times> series;
    for (const Result& result : results) {
        if (result.ours() && result.n >= 1000)
            series[{result.operation, result.kind, result.mode}][result.n] = result.ours()->ns;
    }
    return series;
}

double slopeOf(const Times& times) {
    const auto& [n0, t0] = *times.begin();
    const auto& [n1, t1] = *times.rbegin();
    return std::log(t1 / t0) / std::log(static_cast<double>(n1) / static_cast<double>(n0));
}

} // namespace

void printGrowth(std::ostream& out, const std::vector<Result>& results) {
    out << std::fixed << std::setprecision(2) << "\nGrowth: slope of log time over log n (floors: fresh "
        << kSlopeOfWhole << ", repeated " << kSlopeOfRepeated << ", unless the answer itself grows)\n\n";
    for (const auto& [key, times] : seriesOf(results)) {
        if (times.size() < 2) continue;
        const auto& [operation, kind, mode] = key;
        const double slope = slopeOf(times);
        const double floor = mode == Mode::eFresh ? kSlopeOfWhole : kSlopeOfRepeated;
        out << "  " << std::left << std::setw(20) << operation << std::setw(10) << nameOf(kind) << std::setw(10)
            << nameOf(mode) << std::right << std::setw(8) << times.begin()->first << " to " << std::setw(8)
            << times.rbegin()->first << std::setw(8) << slope << (slope <= floor ? "  ok" : "  short") << '\n';
    }
    out << std::flush;
}

} // namespace bench
