// Results as they come, and what is written of them in the end.
#ifndef GK_BENCH_REPORT_H
#define GK_BENCH_REPORT_H

#include "bench/floors.h"
#include "bench/race.h"
#include "bench/shapes.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace bench {

struct Result {
    std::string operation;
    Kind kind;
    std::size_t n;
    Mode mode;
    std::vector<Entry> entries;

    const Entry* ours() const { return best(Standing::eOurs); }
    const Entry* plain() const { return best(Standing::ePlain); }
    // The quickest peer whose answers agree; where none computes in double, the quickest of those aside.
    const Entry* bestPeer() const;

    std::optional<Floor> floor() const;
    // Ours by what the floor compares with, or by the best peer; nothing when one of them did not run.
    std::optional<double> ratio() const;
    // "ok", "short", or empty where there is no floor or nothing to compare.
    std::string verdict() const;

private:
    const Entry* best(Standing standing) const;
};

std::string nameOf(Mode mode);

// The table as text in fixed columns, a line at a time.
void printHeader(std::ostream& out);
void printRow(std::ostream& out, const Result& result);
// Every contestant of a row, with the number of answers that agree.
void printEntries(std::ostream& out, const Result& result);

// How many floors are reached, and the meaning of the marks.
void printSummary(std::ostream& out, const std::vector<Result>& results);

void writeCsv(const std::filesystem::path& file, const std::vector<Result>& results);
void writeMarkdown(const std::filesystem::path& file, const std::string& machine,
                   const std::vector<Result>& results);

} // namespace bench

#endif
