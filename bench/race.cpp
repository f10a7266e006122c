#include "bench/race.h"

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

constexpr std::size_t kRepeated = 10000;
constexpr int kRounds = 7;

// As many new shapes as make some 30 000 vertices, for a clock that ticks in tens of nanoseconds.
std::size_t freshShapes(std::size_t vertices) {
    if (vertices >= 1000000) return 1;
    return std::clamp<std::size_t>(30000 / std::max<std::size_t>(vertices, 1), 2, 1000);
}

// Where the time limit came before the last query, building an index would weigh too much. Peers are spared
// that, we are not.
double perQuery(const Trial& trial, Standing standing) {
    const auto queries = static_cast<double>(trial.answers.size());
    const bool isSpared = trial.isCut && queries > 1.0 && standing != Standing::eOurs;
    return isSpared ? (trial.asking - trial.first) * 1e9 / (queries - 1.0) : trial.ns;
}

bool isEqual(double a, double b, double tolerance) {
    return a == b || std::fabs(a - b) <= tolerance * std::max(std::fabs(a), std::fabs(b));
}

} // namespace

Race::Race(Mode mode, std::size_t vertices, const Limits& limits)
    : mode_(mode), vertices_(vertices), limits_(limits) {}

std::size_t Race::queries() const { return mode_ == Mode::eFresh ? freshShapes(vertices_) : kRepeated; }

std::vector<Entry> Race::run(const Gate& gate) {
    const Stopwatch all;
    std::vector<std::vector<double>> answers(contestants_.size());
    std::vector<bool> mayRun;
    for (const Contestant& contestant : contestants_) mayRun.push_back(gate(contestant.entry.name));
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < contestants_.size(); ++i) {
            if (!mayRun[i] || (round > 0 && all.seconds() > limits_.rounds)) continue;
            mayRun[i] = runOnce(contestants_[i], answers[i]);
        }
    }
    compare(answers);
    std::vector<Entry> entries;
    for (const Contestant& contestant : contestants_) entries.push_back(contestant.entry);
    return entries;
}

bool Race::runOnce(Contestant& contestant, std::vector<double>& answers) const {
    Entry& entry = contestant.entry;
    const Stopwatch watch;
    Trial trial;
    try {
        trial = contestant.trial();
    } catch (...) { // of whatever library
        entry.isRefused = true;
        entry.ns = 0.0;
        return false;
    }
    const double wall = watch.seconds();
    const double ns = perQuery(trial, entry.standing) / items_;
    if (!entry.ran() || ns < entry.ns) {
        entry.ns = ns;
        entry.queries = trial.answers.size();
        entry.isCut = trial.isCut;
    }
    answers = std::move(trial.answers);
    // A slow one had its measurement; the others need the time more.
    return wall <= limits_.rounds / 4.0;
}

// With ours or, where ours did not run, with the first that did.
void Race::compare(std::vector<std::vector<double>>& answers) {
    const std::vector<double>* reference = nullptr;
    for (std::size_t i = 0; i < answers.size(); ++i) {
        if (answers[i].empty()) continue;
        if (!reference || contestants_[i].entry.standing == Standing::eOurs) reference = &answers[i];
    }
    if (!reference) return;
    for (std::size_t i = 0; i < answers.size(); ++i) {
        Entry& entry = contestants_[i].entry;
        entry.mayDiffer = mayDiffer_;
        entry.compared = std::min(answers[i].size(), reference->size());
        for (std::size_t k = 0; k < entry.compared; ++k)
            entry.agreeing += isEqual(answers[i][k], (*reference)[k], tolerance_) ? 1 : 0;
    }
}

} // namespace bench
