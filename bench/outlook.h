// What a contestant will need at a greater size, going by how it grew so far.
#ifndef GK_BENCH_OUTLOOK_H
#define GK_BENCH_OUTLOOK_H

#include <cmath>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// Only decides who may start; nothing it expects is ever reported.
class Outlook {
public:
    void note(const std::string& series, std::size_t n, double seconds) {
        seen_[series].push_back({static_cast<double>(n), seconds});
    }

    // 0 for a series not yet seen.
    double secondsFor(const std::string& series, std::size_t n) const {
        const auto found = seen_.find(series);
        if (found == seen_.end()) return 0.0;
        const auto& last = found->second.back();
        double slope = 1.0;
        if (found->second.size() > 1) {
            const auto& before = found->second[found->second.size() - 2];
            slope = std::log(last.second / before.second) / std::log(last.first / before.first);
        }
        return last.second * std::pow(static_cast<double>(n) / last.first, slope);
    }

private:
    std::map<std::string, std::vector<std::pair<double, double>>> seen_;
};

} // namespace bench

#endif
