// Ours, the plain definitions and other libraries in one process, on the same shapes.
//
// Every case of the suite is one benchmark of Google Benchmark, which names, filters and runs them. Inside a
// case the contestants take turns (race.h), so that whatever slows the machine for a while slows all of them.
#include "bench/growth.h"
#include "bench/machine.h"
#include "bench/memory.h"
#include "bench/outlook.h"
#include "bench/picture.h"
#include "bench/plot.h"
#include "bench/report.h"
#include "bench/suite.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <sstream>

namespace {

using namespace bench;

struct Options {
    bool all = false;     // every size, up to a million
    bool details = false; // every contestant of a row
    std::filesystem::path folder = "build/bench/results";
};

// Takes what is ours out of the arguments; Google Benchmark gets the rest.
Options optionsOf(int& argc, char** argv) {
    Options options;
    const auto rest = std::remove_if(argv + 1, argv + argc, [&](const char* argument) {
        const std::string text = argument;
        if (text == "--all")
            options.all = true;
        else if (text == "--details")
            options.details = true;
        else if (text.rfind("--folder=", 0) == 0)
            options.folder = text.substr(std::strlen("--folder="));
        else
            return false;
        return true;
    });
    argc = static_cast<int>(rest - argv);
    return options;
}

std::vector<Row> suite() {
    std::vector<Row> rows;
    addInsideRows(rows);
    addProximityRows(rows);
    addCrossingRows(rows);
    addDirectionRows(rows);
    addMeasureRows(rows);
    addRepairRows(rows);
    addSetRows(rows);
    addArchiveRows(rows);
    addSmallRows(rows);
    return rows;
}

std::vector<std::size_t> sizesOf(const Row& row, Kind kind, bool all) {
    if (kind == Kind::eCoin) return {longestOutlineOfPicture().size()};
    if (!row.sizes.empty()) return row.sizes;
    if (all) return {10, 100, 1000, 10000, 100000, 1000000};
    return {10, 100, 1000, 100000};
}

// Prints what the races gave; Google Benchmark's own figures are of no use here.
class Reporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override {
        printHeader(std::cout);
        return true;
    }
    void ReportRuns(const std::vector<Run>&) override {}
};

class Bench {
public:
    explicit Bench(const Options& options) : options_(options) {}

    void enter(const Row& row) {
        for (const Kind kind : row.kinds) {
            if (kind == Kind::eCoin && !hasPicture()) continue;
            for (const std::size_t n : sizesOf(row, kind, options_.all)) {
                for (const Mode mode : row.modes) enter(row, kind, n, mode);
            }
        }
    }

    const std::vector<Result>& results() const { return results_; }

private:
    void enter(const Row& row, Kind kind, std::size_t n, Mode mode) {
        const std::string name =
            row.operation + '/' + nameOf(kind) + '/' + std::to_string(n) + '/' + nameOf(mode);
        const auto run = [=](benchmark::State& state) {
            for (auto _ : state) state.SetIterationTime(measure(row, kind, n, mode));
        };
        benchmark::RegisterBenchmark(name.c_str(), run)->Iterations(1)->UseManualTime();
    }

    // Seconds of ours; the result goes to the list and to the screen.
    double measure(const Row& row, Kind kind, std::size_t n, Mode mode) {
        const double lead =
            options_.all ? 60.0 : 4.0; // a contestant that needs more for one answer does not run
        Race race(mode, n, options_.all ? Race::Limits{20.0, 2.0, 2.0} : Race::Limits{1.0, 0.2, 0.4});
        row.enter(race, kind, n);
        const std::string series = row.operation + '/' + nameOf(kind) + '/' + nameOf(mode) + '/';
        Result result = {row.operation, kind, n, mode, {}};
        result.entries =
            race.run([&](const std::string& who) { return outlook_.secondsFor(series + who, n) <= lead; });
        for (const Entry& entry : result.entries) {
            if (entry.ran()) outlook_.note(series + entry.name, n, entry.ns * 1e-9);
        }
        results_.push_back(result);
        printRow(std::cout, result);
        if (options_.details) printEntries(std::cout, result);
        return result.ours() ? result.ours()->ns * 1e-9 : 0.0;
    }

    Options options_;
    Outlook outlook_;
    std::vector<Result> results_;
};

// Freed memory stays in the process: otherwise the next contestant, or nobody, pays the system for new pages,
// which here costs as much as a row of small contours.
void keepFreedMemory() {
    mallopt(M_TRIM_THRESHOLD, -1);
    mallopt(M_MMAP_MAX, 0);
}

} // namespace

int main(int argc, char** argv) {
    keepFreedMemory();
    const Options options = optionsOf(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    const std::string machine = machineText() + ", seed " + std::to_string(kSeed);
    std::cout << machine << "\n\n";
    const Stopwatch watch;
    Bench bench(options);
    for (const Row& row : suite()) bench.enter(row);
    benchmark::RegisterBenchmark("memory", [](benchmark::State& state) {
        for (auto _ : state) printMemory(std::cout);
    })->Iterations(1);
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    if (bench.results().empty()) return 0;
    printGrowth(std::cout, bench.results());
    printSummary(std::cout, bench.results());
    std::filesystem::create_directories(options.folder);
    writeCsv(options.folder / "cntr.csv", bench.results());
    writeMarkdown(options.folder / "table.md", machine, bench.results());
    plot(options.folder / "times.svg", bench.results());
    std::cout << "\ncntr.csv, table.md and times.svg are in " << options.folder.string() << ", after "
              << static_cast<long>(watch.seconds()) << " s\n";
}
