// The hashes of a run, and the ones that are kept.
#ifndef GK_TESTS_BITS_TABLE_H
#define GK_TESTS_BITS_TABLE_H

#include "tests/bits/world.h"
#include "tests/support/part.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace bits {

constexpr std::size_t kBlocks = kShapes / kShapesInBlock;

// What a block leaves in the file: enough to find it, while the total decides.
using Blocks = std::array<std::uint16_t, kBlocks>;

struct Table {
    std::map<std::string, std::uint64_t> totals; // by operation; of a whole run only
    std::map<std::string, Blocks> blocks;        // by operation
    std::vector<std::uint16_t> shapes;           // all operations of one shape together
};

// Runs every operation over the shapes of the part's blocks.
Table run(const Part& part);

// hashes.txt and blocks.txt in the folder. Both throw std::runtime_error for a file they cannot use.
void write(const Table& table, const std::string& folder);
Table read(const std::string& folder);

// Names every operation that differs, and the first shapes in which it does. True when none does.
bool compare(const Table& now, const Table& kept, const Part& part, std::ostream& out);

} // namespace bits

#endif
