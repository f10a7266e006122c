#include "tests/bits/table.h"

#include "tests/bits/operations.h"

#include <fstream>
#include <iomanip>
#include <ostream>
#include <stdexcept>

namespace {

using namespace bits;

std::string hex(std::uint64_t value, int digits) {
    const char* const known = "0123456789abcdef";
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += known[(value >> shift) & 15];
    return text;
}

std::uint64_t number(const std::string& text, std::size_t at, std::size_t digits) {
    if (at + digits > text.size()) throw std::runtime_error("a line is too short: " + text);
    return std::stoull(text.substr(at, digits), nullptr, 16);
}

std::uint16_t folded(std::uint64_t hash) { return static_cast<std::uint16_t>(hash ^ (hash >> 32)); }

std::string blockName(std::size_t block) { return "shapes " + std::to_string(block * kShapesInBlock); }

std::ofstream openForWriting(const std::string& file) {
    std::ofstream out(file, std::ios::binary); // the same line ends everywhere
    if (!out) throw std::runtime_error("cannot write " + file);
    return out;
}

// Calls take(name, value) for every line "name value" of the file.
template <class Take> void eachLine(const std::string& file, Take take) {
    std::ifstream in(file);
    if (!in) throw std::runtime_error("cannot read " + file);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const std::size_t blank = line.rfind(' ');
        if (blank == std::string::npos) throw std::runtime_error("no hash in the line: " + line);
        take(line.substr(0, blank), line.substr(blank + 1));
    }
}

// One operation's hash is kept of a block, all operations' together of a shape: with both the first shape is
// known, unless another operation differs in that block as well.
void tellFirst(const Table& now, const Table& kept, std::size_t block, std::ostream& out) {
    const std::size_t begin = block * kShapesInBlock;
    const World first = bits::world(begin);
    out << " first among the shapes " << begin << " to " << begin + kShapesInBlock - 1 << " (" << first.kind
        << ", from seed " << first.seed << ")";
    for (std::size_t i = begin; i < begin + kShapesInBlock; ++i) {
        if (now.shapes[i] == kept.shapes[i]) continue;
        out << "; the first of them that differs in anything is " << i;
        return;
    }
}

// True when the operation's hashes are the kept ones.
bool same(const Table& now, const Table& kept, const std::string& name, const Part& part, std::ostream& out) {
    const Blocks& mine = now.blocks.at(name);
    const Blocks& theirs = kept.blocks.at(name);
    for (std::size_t block = 0; block < kBlocks; ++block) {
        if (!part.holds(block) || mine[block] == theirs[block]) continue;
        out << name << " differs,";
        tellFirst(now, kept, block, out);
        out << '\n';
        return false;
    }
    if (!part.isWhole() || now.totals.at(name) == kept.totals.at(name)) return true;
    out << name << " differs\n";
    return false;
}

} // namespace

namespace bits {

Table run(const Part& part) {
    Table table;
    table.shapes.assign(kShapes, 0);
    std::vector<Hash> totals(operations().size());
    for (std::size_t block = 0; block < kBlocks; ++block) {
        if (!part.holds(block)) continue;
        std::vector<Hash> hashes(operations().size());
        for (std::size_t i = block * kShapesInBlock; i < (block + 1) * kShapesInBlock; ++i) {
            const World world = bits::world(i);
            Hash shape;
            for (std::size_t k = 0; k < operations().size(); ++k) {
                Record record;
                operations()[k].run(world, record);
                const std::uint64_t hash = record.hash();
                hashes[k].add(hash);
                shape.add(hash);
            }
            table.shapes[i] = folded(shape.value());
        }
        for (std::size_t k = 0; k < operations().size(); ++k) {
            totals[k].add(hashes[k].value());
            table.blocks[operations()[k].name][block] = folded(hashes[k].value());
        }
    }
    for (std::size_t k = 0; k < operations().size(); ++k) {
        table.totals[operations()[k].name] = totals[k].value();
    }
    return table;
}

void write(const Table& table, const std::string& folder) {
    std::ofstream hashes = openForWriting(folder + "/hashes.txt");
    std::ofstream blocks = openForWriting(folder + "/blocks.txt");
    for (const auto& [name, total] : table.totals) hashes << name << ' ' << hex(total, 16) << '\n';
    for (const auto& [name, row] : table.blocks) {
        blocks << name << ' ';
        for (const std::uint16_t hash : row) blocks << hex(hash, 4);
        blocks << '\n';
    }
    for (std::size_t block = 0; block < kBlocks; ++block) {
        blocks << blockName(block) << ' ';
        for (std::size_t i = 0; i < kShapesInBlock; ++i) {
            blocks << hex(table.shapes[block * kShapesInBlock + i], 4);
        }
        blocks << '\n';
    }
    if (!hashes.flush() || !blocks.flush()) throw std::runtime_error("cannot write in " + folder);
}

Table read(const std::string& folder) {
    Table table;
    table.shapes.assign(kShapes, 0);
    eachLine(folder + "/hashes.txt", [&](const std::string& name, const std::string& value) {
        table.totals[name] = number(value, 0, 16);
    });
    eachLine(folder + "/blocks.txt", [&](const std::string& name, const std::string& value) {
        Blocks row{};
        for (std::size_t i = 0; i < kBlocks; ++i) row[i] = static_cast<std::uint16_t>(number(value, 4 * i, 4));
        if (name.rfind("shapes ", 0) == 0) {
            const std::size_t first = std::stoul(name.substr(7));
            if (first > kShapes - kShapesInBlock) throw std::runtime_error("no such shapes: " + name);
            for (std::size_t i = 0; i < kShapesInBlock; ++i) table.shapes[first + i] = row[i];
        } else {
            table.blocks[name] = row;
        }
    });
    return table;
}

bool compare(const Table& now, const Table& kept, const Part& part, std::ostream& out) {
    bool equal = true;
    for (const auto& [name, total] : now.totals) {
        if (kept.totals.count(name) == 0 || kept.blocks.count(name) == 0) {
            out << name << " has no kept hash\n";
            equal = false;
        } else {
            equal = same(now, kept, name, part, out) && equal;
        }
    }
    for (const auto& [name, total] : kept.totals) {
        if (now.totals.count(name) != 0) continue;
        out << name << " has a kept hash and is no operation\n";
        equal = false;
    }
    return equal;
}

} // namespace bits
