// Holds the library's answers to those of the plain definitions: bits, order, and the kind of errors.
#include "tests/comparisons/operations.h"
#include "tests/support/part.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

using comparisons::Operation;
using comparisons::Operations;
using comparisons::Tally;

const char* const kUsage = R"(usage: comparisons [OPTION...] [OPERATION...]

Compares the answers of the operations whose names begin with one of the words, of all without words. Each line of the
output: operation, comparisons, those of them where the definition has an error, shapes. 0 when no answer differs.

  --least N     at least N comparisons of each operation, 1000 by default
  --part I/N    the share I (from 0) of N of the shapes and of the comparisons
  --seed K      only the shape of this seed, as a difference names it
  --list        print the operations' names
)";

struct Options {
    std::uint64_t least = 1000;
    Part part;
    std::uint64_t seed = 0;
    bool oneSeed = false;
    bool list = false;
    std::vector<std::string> names;
};

// Throws std::logic_error for what it does not understand.
Options optionsOf(int count, char** words) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string word = words[i];
        const auto next = [&] {
            if (++i == count) throw std::invalid_argument(word + " needs a value");
            return std::string(words[i]);
        };
        if (word == "--least") {
            options.least = numberIn(next());
        } else if (word == "--part") {
            options.part = partIn(next());
        } else if (word == "--seed") {
            options.seed = numberIn(next());
            options.oneSeed = true;
        } else if (word == "--list") {
            options.list = true;
        } else if (word.rfind("--", 0) == 0) {
            throw std::invalid_argument(word);
        } else {
            options.names.push_back(word);
        }
    }
    return options;
}

Operations allOperations() {
    Operations all;
    for (const Operations& some :
         {comparisons::measureOperations(), comparisons::proximityOperations(),
          comparisons::crossingOperations(), comparisons::contourOperations(), comparisons::momentOperations(),
          comparisons::regionOperations(), comparisons::repairOperations(), comparisons::setOperations()}) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

Operations wantedOperations(const Options& options) {
    if (options.names.empty()) return allOperations();
    Operations wanted;
    for (const std::string& name : options.names) {
        const std::size_t before = wanted.size();
        for (const Operation& operation : allOperations()) {
            if (operation.name.rfind(name, 0) == 0) wanted.push_back(operation);
        }
        if (wanted.size() == before) throw std::invalid_argument("no operation begins with " + name);
    }
    return wanted;
}

// An error that the answers have no name for is a difference as well.
void runSeed(const Operation& operation, std::uint64_t seed, Tally& tally) {
    try {
        operation.run(seed, tally);
    } catch (const std::exception& error) {
        tally.tellUnknownError(error.what());
    } catch (...) {
        tally.tellUnknownError("no std::exception");
    }
}

void run(const Operation& operation, const Options& options, Tally& tally) {
    if (options.oneSeed) {
        runSeed(operation, options.seed, tally);
        return;
    }
    const std::uint64_t least = (options.least + options.part.count - 1) / options.part.count;
    for (std::uint64_t seed = 1 + options.part.index; tally.comparisons() < least && !tally.differs();
         seed += options.part.count) {
        runSeed(operation, seed, tally);
    }
}

bool compareAll(const Operations& wanted, const Options& options) {
    bool equal = true;
    for (const Operation& operation : wanted) {
        Tally tally(operation.name, std::cout);
        run(operation, options, tally);
        equal = equal && !tally.differs();
        std::printf("%-28s %9llu %9llu %9llu\n", operation.name.c_str(),
                    static_cast<unsigned long long>(tally.comparisons()),
                    static_cast<unsigned long long>(tally.errors()),
                    static_cast<unsigned long long>(tally.shapes()));
        std::fflush(stdout);
    }
    return equal;
}

} // namespace

int main(int count, char** words) {
    try {
        const Options options = optionsOf(count, words);
        const Operations wanted = wantedOperations(options);
        if (options.list) {
            for (const Operation& operation : wanted) std::printf("%s\n", operation.name.c_str());
            return 0;
        }
        return compareAll(wanted, options) ? 0 : 1;
    } catch (const std::logic_error& error) {
        std::cerr << "comparisons: " << error.what() << "\n\n" << kUsage;
        return 2;
    }
}
