#include "bench/report.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace bench {

namespace {

std::string fixed(double value, int digits) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(digits) << value;
    return text.str();
}

// Three figures and a unit, as people read times.
std::string timeText(double ns) {
    const char* const units[] = {"ns", "us", "ms", "s"};
    int unit = 0;
    for (; ns >= 999.5 && unit < 3; ++unit) ns /= 1000.0;
    return fixed(ns, ns < 9.995 ? 2 : ns < 99.95 ? 1 : 0) + ' ' + units[unit];
}

std::string timeText(const Entry* entry) { return entry ? timeText(entry->ns) : "-"; }

std::string ratioText(const Result& result) {
    const auto ratio = result.ratio();
    if (!ratio) return "-";
    const int digits = *ratio < 0.0995 ? 4 : *ratio < 9.95 ? 2 : 0;
    return fixed(*ratio, digits);
}

std::string floorText(const Result& result) {
    const auto floor = result.floor();
    if (!floor) return "";
    std::ostringstream text;
    text << floor->ratio << (floor->against == Against::ePlain ? " plain" : "");
    return text.str();
}

std::string agreementText(const Entry* entry) {
    if (!entry) return "";
    return std::to_string(entry->agreeing) + "/" + std::to_string(entry->compared);
}

std::string peerName(const Entry* peer) {
    if (!peer) return "";
    return peer->name + (peer->standing == Standing::eAside ? "*" : "");
}

std::vector<std::string> cells(const Result& result) {
    const Entry* const peer = result.bestPeer();
    return {result.operation,        nameOf(result.kind), std::to_string(result.n), nameOf(result.mode),
            timeText(result.ours()), timeText(peer),      peerName(peer),           agreementText(peer),
            ratioText(result),       floorText(result),   result.verdict(),         timeText(result.plain())};
}

const std::vector<std::string>& headings() {
    static const std::vector<std::string> texts = {"operation", "shape",     "n",       "mode",
                                                   "ours",      "best peer", "who",     "agree",
                                                   "ratio",     "floor",     "verdict", "plain"};
    return texts;
}

void printCells(std::ostream& out, const std::vector<std::string>& texts) {
    static const int widths[] = {19, 10, 8, 9, 9, 9, 24, 12, 8, 10, 8, 9};
    static const bool toRight[] = {false, false, true, false, true,  true,
                                   false, true,  true, false, false, true};
    for (std::size_t i = 0; i < texts.size(); ++i)
        out << (toRight[i] ? std::right : std::left) << std::setw(widths[i]) << texts[i] << "  ";
    out << std::endl;
}

const char* nameOf(Standing standing) {
    switch (standing) {
    case Standing::eOurs:
        return "ours";
    case Standing::ePlain:
        return "plain";
    case Standing::ePeer:
        return "peer";
    case Standing::eAside:
        return "aside";
    }
    return "";
}

void markdownLine(std::ostream& out, const std::vector<std::string>& texts) {
    for (const std::string& text : texts) out << "| " << text << ' ';
    out << "|\n";
}

} // namespace

std::string nameOf(Mode mode) { return mode == Mode::eFresh ? "fresh" : "repeated"; }

const Entry* Result::best(Standing standing) const {
    const Entry* found = nullptr;
    for (const Entry& entry : entries) {
        if (entry.standing != standing || !entry.ran() || !entry.agrees()) continue;
        if (!found || entry.ns < found->ns) found = &entry;
    }
    return found;
}

const Entry* Result::bestPeer() const {
    const Entry* const peer = best(Standing::ePeer);
    if (peer) return peer;
    const Entry* found = nullptr;
    for (const Entry& entry : entries) {
        if (entry.standing == Standing::eAside && entry.ran() && (!found || entry.ns < found->ns))
            found = &entry;
    }
    return found;
}

// None that compares with a plain definition where the row has none.
std::optional<Floor> Result::floor() const {
    const auto isPlain = [](const Entry& entry) { return entry.standing == Standing::ePlain; };
    const auto found = floorOf(operation, kind, n, mode);
    if (!found || found->against == Against::eBestPeer) return found;
    return std::any_of(entries.begin(), entries.end(), isPlain) ? found : std::nullopt;
}

std::optional<double> Result::ratio() const {
    const auto wanted = floor();
    const bool byPlain = wanted && wanted->against == Against::ePlain;
    const Entry* const other = byPlain ? plain() : bestPeer();
    if (!ours() || !other) return {};
    return ours()->ns / other->ns;
}

std::string Result::verdict() const {
    const auto wanted = floor();
    const auto reached = ratio();
    if (!wanted || !reached) return "";
    return *reached <= wanted->ratio ? "ok" : "short";
}

void printHeader(std::ostream& out) { printCells(out, headings()); }

void printRow(std::ostream& out, const Result& result) { printCells(out, cells(result)); }

void printEntries(std::ostream& out, const Result& result) {
    for (const Entry& entry : result.entries) {
        out << "    " << std::left << std::setw(30) << entry.name << std::setw(6) << nameOf(entry.standing)
            << std::right << std::setw(10) << (entry.ran() ? timeText(entry.ns) : "not run") << std::setw(14)
            << agreementText(&entry)
            << (entry.isCut       ? "  stopped by the time limit"
                : entry.isRefused ? "  refused"
                                  : "")
            << '\n';
    }
    out << std::flush;
}

void printSummary(std::ostream& out, const std::vector<Result>& results) {
    int ok = 0;
    int tooSlow = 0;
    int unknown = 0;
    for (const Result& result : results) {
        if (!result.floor()) continue;
        const std::string verdict = result.verdict();
        ++(verdict == "ok" ? ok : verdict == "short" ? tooSlow : unknown);
    }
    out << "\nfloors: " << ok << " ok, " << tooSlow << " short, " << unknown << " with nothing to compare\n"
        << "best peer: the quickest in doubles or integers whose answers agree; * stands for one in single "
           "precision,\n"
        << "where there is no other. agree: answers equal to ours. -: would have taken too long.\n"
        << std::flush;
}

void writeCsv(const std::filesystem::path& file, const std::vector<Result>& results) {
    std::ofstream out(file);
    out << "operation,shape,n,mode,contestant,standing,ns,queries,stopped,agreeing,compared\n";
    for (const Result& result : results) {
        for (const Entry& entry : result.entries) {
            out << result.operation << ',' << nameOf(result.kind) << ',' << result.n << ','
                << nameOf(result.mode) << ',' << entry.name << ',' << nameOf(entry.standing) << ',';
            if (entry.ran()) out << fixed(entry.ns, 1);
            out << ',' << entry.queries << ',' << (entry.isCut ? 1 : 0) << ',' << entry.agreeing << ','
                << entry.compared << '\n';
        }
    }
}

void writeMarkdown(const std::filesystem::path& file, const std::string& machine,
                   const std::vector<Result>& results) {
    std::ofstream out(file);
    out << machine << "\n\n";
    markdownLine(out, headings());
    markdownLine(out, std::vector<std::string>(headings().size(), "---"));
    for (const Result& result : results) markdownLine(out, cells(result));
}

} // namespace bench
