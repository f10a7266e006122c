// Counts what becomes of random outlines and sets that cross themselves: the tables of docs/repair.md.
//
// usage: repair_census [SEEDS], the number of seeds tried for each kind
#include "cntr/regionst.h"
#include "platform/system/assert.h"
#include "tests/gen/tangles.h"
#include "tests/oracle/crossings.h"
#include "tests/oracle/repair.h"
#include "tests/support/repair_outcome.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

using Set = std::vector<Outline>;

struct Count {
    long whole = 0;
    long lost = 0;
    long noStart = 0;
    long endless = 0;
    long oneVertex = 0;
    long loopsRemain = 0;

    long all() const { return whole + lost + noStart + endless + oneVertex + loopsRemain; }
};

gkRegionSet regionSet(const Set& given) {
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const Outline& outline : given) regions.emplace_back(new gkRegion(outline));
    return gkRegionSet(regions);
}

// The library gives one error for both reasons; the plain repair tells which it was.
void countRefusal(const Set& given, Count& count) {
    try {
        oracle::regularize(given);
        throw std::logic_error("the plain repair refuses nothing");
    } catch (const oracle::EndlessWalk&) {
        ++count.endless;
    } catch (const oracle::NoStartEdge&) {
        ++count.noStart;
    }
}

void repair(const Set& given, bool outerHull, Count& count) {
    gkRegionSet result;
    try {
        const gkRegionSet set = regionSet(given);
        outerHull ? set.outerHull(result) : set.regularize(result);
    } catch (const gkContourDefs::EmptyContour&) {
        ++count.oneVertex;
        return;
    } catch (const gkContourDefs::BadParams&) {
        countRefusal(given, count);
        return;
    } catch (const gkAssertionFailed&) {
        ++count.loopsRemain;
        return;
    }
    Set repaired;
    for (const auto& region : result.regions()) repaired.push_back(region->points());
    ++(losesAPart(given, repaired) ? count.lost : count.whole);
}

std::string percent(long part, long all) {
    if (part == 0) return "-";
    const long tenths = (1000 * part + all / 2) / all;
    if (tenths == 0) return "< 0.1";
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

void printHeader(const std::string& what) {
    std::cout
        << "\n| " << what
        << " | number | regularized | part lost | no start | endless | outer hull | part lost | one vertex |"
        << " loops left |\n|---|---|---|---|---|---|---|---|---|---|\n";
}

void printRow(const std::string& kind, const Count& regular, const Count& hull) {
    const long all = regular.all();
    std::cout << "| " << kind << " | " << all;
    for (const long part : {regular.whole, regular.lost, regular.noStart, regular.endless, hull.whole,
                            hull.lost, hull.oneVertex, hull.loopsRemain}) {
        std::cout << " | " << percent(part, all);
    }
    std::cout << " |" << std::endl;
}

void countTangles(std::uint64_t seeds) {
    printHeader("outline");
    for (const gen::Kind& kind : gen::tangles()) {
        Count regular;
        Count hull;
        for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
            const Set given = {gen::shape(kind, seed)};
            if (!oracle::isSelfIntersecting(given)) continue;
            repair(given, false, regular);
            repair(given, true, hull);
        }
        printRow(kind.name, regular, hull);
    }
}

void countSets(std::uint64_t seeds) {
    printHeader("set");
    for (const gen::SetKind& kind : gen::setKinds()) {
        Count regular;
        Count hull;
        for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
            const Set given = gen::shapes(kind, seed);
            if (!oracle::isSelfIntersecting(given)) continue;
            repair(given, false, regular);
            repair(given, true, hull);
        }
        printRow(kind.name, regular, hull);
    }
}

} // namespace

int main(int argc, char** argv) {
    const unsigned long long seeds = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000;
    try {
        countTangles(seeds);
        countSets(seeds);
    } catch (const std::exception& error) {
        std::cerr << "repair_census: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
