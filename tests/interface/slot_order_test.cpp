// tests/interface/slot_order_test.cpp - virtual operations are declared in the order of their tables, which
// users' programs are compiled against. No program can ask a table for its order, so the headers are read.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

namespace {

using Names = std::vector<std::string>;

// The names of what a class of a header declares virtual for the first time.
Names virtualsOf(const std::string& header, const std::string& opening) {
    std::ifstream in(std::filesystem::path(GK_SOURCE_FOLDER) / header);
    const std::regex declaration(R"(^\s+virtual .*?([\w~]+)\()");
    Names names;
    bool within = false;
    for (std::string line; std::getline(in, line);) {
        if (line.rfind(opening, 0) == 0) within = true;
        if (within && line == "};") break;
        std::smatch found;
        if (within && std::regex_search(line, found, declaration)) names.push_back(found[1]);
    }
    return names;
}

} // namespace

TEST(SlotOrder, OfTheContour) {
    EXPECT_EQ((Names{"points", "isClosed", "isClosed", "draw", "serialize_", "makeDataConsistentWithPoints",
                     "makePointsConsistentWithData", "cleanCacheInfo"}),
              virtualsOf("cntr/contour.h", "class GKCNTR_API gkContour :"));
}

TEST(SlotOrder, OfTheRegionsOwnTable) {
    EXPECT_EQ(Names{"draw"}, virtualsOf("cntr/region.h", "class GKCNTR_API gkRegion :"));
}

TEST(SlotOrder, OfTheRegionSet) {
    EXPECT_EQ(
        (Names{"serialize_", "makeDataConsistentWithPoints", "makePointsConsistentWithData", "cleanCacheInfo"}),
        virtualsOf("cntr/regionst.h", "class GKCNTR_API gkRegionSet :"));
}

TEST(SlotOrder, OfTheErrorsIsThatOfTheirBases) {
    EXPECT_EQ((Names{"~gkPersistent", "dispatchSerialize", "reInit", "loadSimple"}),
              virtualsOf("platform/core/object/persistent.h", "class GKCNTR_API gkPersistent"));
    EXPECT_EQ((Names{"errorNumber", "suicideAndRethrow", "message_"}),
              virtualsOf("platform/core/object/exception.h", "class GKCNTR_API gkException :"));
    EXPECT_EQ(Names(), virtualsOf("cntr/contour_defs.h", "class GKCNTR_API gkContourDefs::Errors :"));
}
