// Hostile graphs: nested too deeply, in rings, of wrong classes, and as large as 64 KiB can make them.
#include "platform/core/archive/archive_memory.h"
#include "tests/hostile/content.h"
#include "tests/hostile/goldens.h"
#include "tests/hostile/reading.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace hostile;
using Bytes = std::vector<unsigned char>;

constexpr std::size_t kLarge = 65536;

void expectHarmless(const std::string& kind, const Bytes& bytes) {
    EXPECT_NO_THROW(expectErrorOrEqual(kind, bytes));
    EXPECT_EQ("", beyondBounds(read(kind, bytes), bytes.size()));
}

// An empty record of each class that archives may create, as short as there is one.
struct Class {
    const char* name;
    std::string record;
};

const std::string kOldBase = "00 00";
const std::string kNoVertices = kOldBase + hex::list(0) + "00" + hex::number(0);
const std::string kRegion0 = "00" + kNoVertices;
const std::string kSet0 = "00 00" + hex::list(0);

const std::vector<Class>& classes() {
    static const std::vector<Class> all = {
        {"gkContour", "00" + kNoVertices + "00"},
        {"gkRegion", kRegion0},
        {"gkRegionSet", kSet0},
        {"gkContourT<gkEdgelet>", "00 00" + kNoVertices + "00" + hex::list(0)},
        {"gkRegionT<gkEdgelet>", "00" + kRegion0},
        {"gkRegionSetT<gkEdgelet>", "00" + kSet0 + hex::list(0)},
        {"gk2XformLinear", "00 00" + std::string(96, '0')},
        {"gkContourDefs::EmptyContour", "00 00 00 00"},
        {"gkContourDefs::EmptyRegionSet", "00 00 00 00"},
        {"gkContourDefs::BadParams", "00 00 00 00"},
        {"gkContourDefs::RegionCannotBeSetOpen", "00 00 00 00"},
    };
    return all;
}

// The body of a graph archive with only contours, or only sets.
Bytes contoursOnly(const std::string& contours) {
    return hex::archive(contours + hex::list(0) + hex::list(0) + kRegion0);
}
Bytes setsOnly(const std::string& sets) { return hex::archive(hex::list(0) + sets + hex::list(0) + kRegion0); }

// Regions that are the only hole of each other, `levels` deep, without an outline; numbers from `first` on.
std::string nested(unsigned long first, unsigned long levels) {
    const std::string outline = "00" + kNoVertices + "00";
    std::string open;
    for (unsigned long i = 0; i < levels; ++i) {
        open += hex::object(first + i, "gkRegion", "01" + outline + hex::list(i + 1 < levels ? 1 : 0));
    }
    return open;
}

// So many of the pieces that `piece` makes of the next number as fit into 64 KiB, behind their count.
std::string asManyAsFit(const std::function<std::string(unsigned long)>& piece) {
    std::string all;
    unsigned long count = 0;
    while (all.size() < 2 * kLarge) all += piece(++count);
    return hex::list(count) + all;
}

std::string mangled(const gkArchive::Errors& error) { return typeid(error).name(); }

} // namespace

TEST(HostileGraph, IsReadUpToTheLimitOfNestingAndNoFurther) {
    const auto limit = static_cast<unsigned long>(gkArchive::depthLimit);
    EXPECT_NO_THROW(rewritten("graph", contoursOnly(hex::list(1) + nested(1, limit))));
    EXPECT_THROW(rewritten("graph", contoursOnly(hex::list(1) + nested(1, limit + 1))), gkArchive::TooDeep);
    for (const unsigned long levels : {limit, limit + 1, 2 * limit, 1500ul}) {
        expectHarmless("graph", contoursOnly(hex::list(1) + nested(1, levels)));
    }
}

TEST(HostileGraph, OfSetsWithNestedHolesCountsTheSetAsALevel) {
    const auto limit = static_cast<unsigned long>(gkArchive::depthLimit);
    for (const unsigned long levels : {limit - 1, limit}) {
        const std::string set = hex::object(1, "gkRegionSet", hex::set(hex::list(1) + nested(2, levels)));
        const Bytes bytes = setsOnly(hex::list(1) + set);
        if (levels == limit) {
            EXPECT_THROW(rewritten("graph", bytes), gkArchive::TooDeep);
        } else {
            EXPECT_EQ(levels, limit - 1);
            EXPECT_NO_THROW(rewritten("graph", bytes));
        }
        expectHarmless("graph", bytes);
    }
}

TEST(HostileGraph, KeepsRingsAndWritesThemAgain) {
    const std::string itself =
        hex::object(1, "gkRegion", hex::region(hex::list(2) + hex::number(1) + hex::number(1)));
    const Bytes one = contoursOnly(hex::list(1) + itself);
    const std::string second = hex::object(2, "gkRegion", hex::region(hex::list(1) + hex::number(1)));
    const std::string first = hex::object(1, "gkRegion", hex::region(hex::list(1) + second));
    const std::string regions = hex::list(2) + first + hex::number(2);
    const Bytes two = contoursOnly(regions);
    EXPECT_EQ(0u, read("graph", one).kept);
    EXPECT_EQ(0u, read("graph", two).kept);
    const std::string edgelets = "gkRegionT<gkEdgelet>";
    const std::string ringed = hex::object(1, edgelets, "00" + hex::region(hex::list(1) + hex::number(1)));
    const std::string plain = "00" + hex::set(hex::list(1) + ringed) + hex::list(1) + hex::number(1);
    const Bytes set =
        hex::archive(plain + hex::object(2, "gkRegionSetT<gkEdgelet>",
                                         plain.substr(0, 0) + "00" + hex::set(hex::list(1) + hex::number(1)) +
                                             hex::list(0)));
    EXPECT_EQ(0u, read("edgelet_set", set).kept);
    for (const Bytes& bytes : {one, two}) {
        EXPECT_TRUE(read("graph", bytes).isRead);
        expectHarmless("graph", bytes);
    }
    EXPECT_EQ(set, rewritten("edgelet_set", set));
    expectHarmless("edgelet_set", set);
}

// Every region is the hole of the next one twice; what was read is asked as well.
TEST(HostileGraph, OfHolesSharedOnEveryLevelIsAskedInTime) {
    std::string open;
    const unsigned long levels = 180;
    for (unsigned long i = 1; i < levels; ++i)
        open += hex::object(i, "gkRegion", "01" + hex::contour() + hex::list(2));
    std::string close;
    for (unsigned long i = levels; i > 1; --i) close += hex::number(i);
    const std::string last = hex::object(levels, "gkRegion", hex::region());
    const Bytes bytes = contoursOnly(hex::list(1) + open + last + close);
    EXPECT_TRUE(read("graph", bytes).isRead);
    // The region in place is written as today's record, which is 9 bytes longer.
    EXPECT_EQ(bytes.size() + 9, rewritten("graph", bytes).size());
    expectHarmless("graph", bytes);
}

TEST(HostileGraph, FreesRingsWhenItBreaksOff) {
    const std::string ring =
        hex::object(1, "gkRegion", hex::region(hex::list(2) + hex::number(1) + hex::number(9)));
    EXPECT_THROW(rewritten("region", hex::archive(kRegion0 + ring)), gkArchive::BadReference);
    EXPECT_EQ(0u, read("region", hex::archive(kRegion0 + ring)).kept);
}

TEST(HostileGraph, WithAnotherClassIsAWrongTypeWhereItDoesNotFit) {
    const auto thrownBy = [](const std::string& kind, const std::string& body) -> std::string {
        try {
            rewritten(kind, hex::archive(body));
        } catch (const gkArchive::Errors& error) {
            return mangled(error);
        }
        return "";
    };
    const std::string wrong = mangled(gkArchive::WrongType());
    for (const Class& one : classes()) {
        SCOPED_TRACE(one.name);
        const std::string name = one.name;
        const std::string object = hex::object(1, name, one.record);
        const bool isEdgeletRegion = name == "gkRegionT<gkEdgelet>";
        const bool isRegion = name == "gkRegion" || isEdgeletRegion;
        const bool isContour = isRegion || name == "gkContour" || name == "gkContourT<gkEdgelet>";
        const bool isSet = name == "gkRegionSet" || name == "gkRegionSetT<gkEdgelet>";
        const bool isTransform = name == "gk2XformLinear";
        const bool isError = name.find("Defs::") != std::string::npos;
        const std::string contour = "00" + kNoVertices + "00";
        EXPECT_EQ(isContour ? "" : wrong, thrownBy("contour", contour + object));
        EXPECT_EQ(isRegion ? "" : wrong, thrownBy("region", kRegion0 + object));
        EXPECT_EQ(isRegion ? "" : wrong, // as a hole
                  thrownBy("region", "01" + contour + hex::list(1) + object + hex::number(0)));
        EXPECT_EQ(isRegion ? "" : wrong, thrownBy("set", "00 00" + hex::list(1) + object + hex::number(0)));
        EXPECT_EQ(isSet ? "" : wrong, thrownBy("set", kSet0 + object));
        EXPECT_EQ(isEdgeletRegion ? "" : wrong,
                  thrownBy("edgelet_set", "00" + kSet0 + hex::list(1) + object + hex::number(0)));
        EXPECT_EQ(isTransform ? "" : wrong,
                  thrownBy("edgelet_contour", "01" + contour + hex::list(0) + object + hex::number(0)));
        EXPECT_EQ("", thrownBy("errors", "00000000 00000000 00000000 00000000 01" + object));
        EXPECT_EQ(5, isContour + isSet + isTransform + isError + 4);
    }
}

TEST(HostileGraph, ThatFindsAnEarlierObjectOfAnotherClassIsAWrongType) {
    const std::string region = hex::object(1, "gkRegion", kRegion0);
    const std::string list = hex::list(1) + hex::number(1);
    EXPECT_THROW(
        rewritten("edgelet_set", hex::archive("00 00 00" + hex::list(1) + region + list + hex::number(0))),
        gkArchive::WrongType);
    EXPECT_THROW(rewritten("graph", hex::archive(hex::list(1) + region + list + hex::list(0) + kRegion0)),
                 gkArchive::WrongType);
}

TEST(HostileGraph, OfTheSmallestObjectsOfAnyClassStaysWithinItsBounds) {
    for (const Class& one : classes()) {
        SCOPED_TRACE(one.name);
        const std::string all =
            asManyAsFit([&](unsigned long number) { return hex::object(number, one.name, one.record); });
        expectHarmless("graph", contoursOnly(all));
        expectHarmless("graph", setsOnly(all));
        expectHarmless("set", hex::archive("00 00" + all + hex::number(0)));
        expectHarmless("edgelet_set", hex::archive("00" + kSet0 + all + hex::number(0)));
        const std::string owned = hex::object(1, one.name, one.record);
        expectHarmless("errors", hex::archive("00000000 00000000 00000000 00000000 01" + owned));
    }
}

TEST(HostileGraph, OfReferencesToOneObjectStaysWithinItsBounds) {
    for (const unsigned long to : {0ul, 1ul}) {
        const std::string all = asManyAsFit([&](unsigned long number) {
            return number == 1 ? hex::object(1, "gkRegion", kRegion0) : hex::number(to);
        });
        EXPECT_TRUE(read("graph", contoursOnly(all)).isRead);
        expectHarmless("graph", contoursOnly(all));
        expectHarmless("set", hex::archive("00 00" + all + hex::number(0)));
        expectHarmless("region", hex::archive("01 00" + kNoVertices + "00" + all + hex::number(0)));
    }
}

// Each level asks for as many handles as the bytes left could hold, were they not to hold the next level as
// well.
TEST(HostileGraph, WithACountForAllBytesLeftOnEveryLevelStaysWithinItsBounds) {
    const std::string outline = "01 00" + kNoVertices + "00";
    std::string body;
    const unsigned long levels = 150;
    for (unsigned long i = 1; i <= levels; ++i) {
        const auto left = static_cast<unsigned long>(kLarge - (body.size() / 2 + outline.size() / 2 + 40));
        body += hex::object(i, "gkRegion", outline + hex::list(left / 4));
    }
    Bytes bytes = hex::archive(hex::list(1) + body);
    bytes.resize(kLarge);
    expectHarmless("graph", bytes);
    expectHarmless("region", bytes);
}

TEST(HostileGraph, OfDeepNestsSideBySideStaysWithinItsBounds) {
    const unsigned long levels = 100;
    unsigned long first = 1;
    const std::string all = asManyAsFit([&](unsigned long) {
        const std::string nest = nested(first, levels);
        first += levels;
        return nest;
    });
    EXPECT_TRUE(read("graph", contoursOnly(all)).isRead);
    expectHarmless("graph", contoursOnly(all));
}

TEST(HostileGraph, WithAClassNameOf64KiBStaysWithinItsBounds) {
    for (const char* letter : {"41", "c3a4", "f09f9880"}) {
        std::string name;
        while (name.size() < 2 * kLarge) name += letter;
        const auto size = static_cast<unsigned long>(name.size() / 2);
        const Bytes bytes = hex::archive(kRegion0 + hex::number(1) + hex::number(size) + name);
        EXPECT_THROW(rewritten("region", bytes), gkArchive::UnknownType);
        expectHarmless("region", bytes);
    }
}
