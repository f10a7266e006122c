// Runs every operation over 10 000 shapes and holds the bits of all answers to the kept hashes.
#include "tests/bits/operations.h"
#include "tests/bits/table.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

const char* const kUsage = R"(usage: bits [OPTION...]

Without an option: runs everything, compares with the kept hashes and names what differs. 0 when nothing does.

  --kept FOLDER      where hashes.txt and blocks.txt are; by default those of the source tree
  --part I/N         the share I (from 0) of N of the shapes
  --list             print "operation hash" for each operation and compare nothing
  --write            replace the kept hashes by those of this run
  --shape K          print each answer of shape K in hexadecimal words
  --operation NAME   with --shape: of this operation only
)";

struct Options {
    std::string kept = GK_BITS_FOLDER;
    Part part;
    bool list = false;
    bool write = false;
    bool oneShape = false;
    std::size_t shape = 0;
    std::string operation;
};

// Throws std::invalid_argument or std::out_of_range for what it does not understand.
Options options(int count, char** words) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string word = words[i];
        const auto next = [&] {
            if (++i == count) throw std::invalid_argument(word + " needs a value");
            return std::string(words[i]);
        };
        if (word == "--list") {
            options.list = true;
        } else if (word == "--write") {
            options.write = true;
        } else if (word == "--kept") {
            options.kept = next();
        } else if (word == "--part") {
            options.part = partIn(next());
        } else if (word == "--operation") {
            options.operation = next();
        } else if (word == "--shape") {
            options.oneShape = true;
            options.shape = numberIn(next());
        } else {
            throw std::invalid_argument(word);
        }
    }
    if (options.oneShape && options.shape >= bits::kShapes) throw std::out_of_range("there is no such shape");
    if (options.write && !options.part.isWhole()) throw std::invalid_argument("--write goes with all shapes");
    return options;
}

void printHex(std::uint64_t word) { std::printf("%016llx", static_cast<unsigned long long>(word)); }

int printShape(const Options& options) {
    const bits::World world = bits::world(options.shape);
    std::printf("shape %s: %s, seed %s\n", std::to_string(world.index).c_str(), world.kind.c_str(),
                std::to_string(world.seed).c_str());
    bool found = false;
    for (const bits::Operation& operation : bits::operations()) {
        if (!options.operation.empty() && operation.name != options.operation) continue;
        found = true;
        bits::Record record;
        operation.run(world, record);
        std::printf("%s\n", operation.name.c_str());
        for (const std::uint64_t word : record.words()) {
            printHex(word);
            std::printf("\n");
        }
    }
    if (!found) std::fprintf(stderr, "bits: no operation is called %s\n", options.operation.c_str());
    return found ? 0 : 1;
}

int printTable(const bits::Table& table) {
    for (const auto& [name, total] : table.totals) {
        std::printf("%s ", name.c_str());
        printHex(total);
        std::printf("\n");
    }
    return 0;
}

// Whether the compiler made one rounding of a product and a sum in this very program: fused, the difference of
// (1 + 2^-30)^2 and 1 + 2^-29 is 2^-60; rounded twice it is 0.
bool fuses() {
    volatile double factor = 1.0 + 0x1p-30;
    volatile double term = -1.0 - 0x1p-29;
    const double a = factor;
    const double c = term;
    return a * a + c != 0.0;
}

int act(const Options& options) {
    if (options.oneShape) return printShape(options);
    const bits::Table table = bits::run(options.part);
    if (options.list) return printTable(table);
    if (options.write) {
        bits::write(table, options.kept);
        return 0;
    }
    if (!bits::compare(table, bits::read(options.kept), options.part, std::cout)) return 1;
    std::cout << table.totals.size() << " operations give the kept bits"
              << (fuses() ? "; the program's own expressions are fused\n" : "\n");
    return 0;
}

} // namespace

int main(int count, char** words) {
    Options given;
    try {
        given = options(count, words);
    } catch (const std::logic_error& error) {
        std::cerr << "bits: " << error.what() << "\n\n" << kUsage;
        return 2;
    }
    try {
        return act(given);
    } catch (const std::exception& error) {
        std::cerr << "bits: " << error.what() << '\n';
        return 1;
    }
}
