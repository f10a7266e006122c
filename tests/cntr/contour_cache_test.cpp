// Kept results against changes: every changing method x every kept result, directly and through copies.
// The tables of changes below and of results in tests/support are the whole of both, so that no pair is
// forgotten.
#include "cntr/region.h"
#include "platform/core/archive/archive_memory.h"
#include "tests/support/kept_results.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

// Opens the protected side of any contour through pointers to its members; no object of this class is ever
// made.
struct Reach : gkContour {
    static constexpr auto setPointsOf = &Reach::setPoints;
    static constexpr auto cleanCacheInfoOf = &Reach::cleanCacheInfo;
};

gkXform<2> shear() { return gkXform<2>(gkMatrix<2>(1.0, 0.5, -0.25, 2.0), {3.0, -1.0}); }

using KeptResult = Kept<gkContour>;
const std::vector<KeptResult>& kKept = keptOfContours();

// Two outlines that differ in every kept result: the first crosses itself when closed and repeats a vertex.
const char* const kBefore = "0 0, 4 4, 4 4, 4 0.5, 0 3.5, -2 2, 1 1";
const char* const kAfter = "0 0, 9 -2, 12 1, 11 7, 5 8, -1 6, 0.5 2, 0.25 1";

enum Subject { eContour = 1, eRegion = 2, eBoth = 3 };

struct Change {
    const char* name;
    Subject subjects; // the classes whose objects can be changed so
    void (*apply)(gkContour&);
};

const Change kChanges[] = {
    {"points(v)", eBoth, [](gkContour& c) { c.points(points(kAfter)); }},
    {"isClosed(b)", eContour, [](gkContour& c) { c.isClosed(!c.isClosed()); }},
    {"assignment", eContour, [](gkContour& c) { c = open(kAfter); }},
    {"assignment of a region", eRegion,
     [](gkContour& c) { dynamic_cast<gkRegion&>(c) = gkRegion(points(kAfter)); }},
    {"loading from an archive", eContour,
     [](gkContour& c) {
         gkContour source(points(kAfter), false, 5);
         gkArchiveMemory out;
         out || static_cast<gkPersistent&>(source);
         gkArchiveMemory in(out.bytes());
         in || static_cast<gkPersistent&>(c);
     }},
    {"map onto itself", eContour, [](gkContour& c) { c.map(shear(), c); }},
    {"convexHull onto itself", eRegion, [](gkContour& c) { c.convexHull(dynamic_cast<gkRegion&>(c)); }},
    {"setPoints", eBoth, [](gkContour& c) { (c.*Reach::setPointsOf)(points(kAfter)); }},
    {"cleanCacheInfo", eBoth, [](gkContour& c) { (c.*Reach::cleanCacheInfoOf)(); }},
};

const Change kNoChanges[] = {
    {"label", eBoth, [](gkContour& c) { c.label(77); }},
    {"cachedVectorSize", eBoth, [](gkContour& c) { c.cachedVectorSize(9); }},
    {"points(v) of another contour", eBoth, [](gkContour& c) { gkContour(c).points(points(kAfter)); }},
    {"map onto another", eBoth,
     [](gkContour& c) {
         gkContour out;
         c.map(shear(), out);
     }},
};

using Owner = std::unique_ptr<gkContour>;

Owner made(Subject subject) {
    if (subject == eRegion) return std::make_unique<gkRegion>(points(kBefore));
    return std::make_unique<gkContour>(points(kBefore), true, 0);
}

Owner copied(const gkContour& contour) {
    if (const auto* region = dynamic_cast<const gkRegion*>(&contour))
        return std::make_unique<gkRegion>(*region);
    return std::make_unique<gkContour>(contour);
}

void assign(gkContour& target, const gkContour& source) {
    if (auto* region = dynamic_cast<gkRegion*>(&target)) {
        *region = dynamic_cast<const gkRegion&>(source);
    } else {
        target = source;
    }
}

// What an object that never kept anything answers.
Answer fresh(const gkContour& contour, const KeptResult& kept) {
    return kept.ask(gkContour(contour.points(), contour.isClosed(), 0));
}

// Runs check(subject, change, kept) over the table.
template <std::size_t N, class Check> void everyPair(const Change (&changes)[N], Check check) {
    for (const Change& change : changes) {
        for (const Subject subject : {eContour, eRegion}) {
            if ((change.subjects & subject) == 0) continue;
            for (const KeptResult& kept : kKept) {
                SCOPED_TRACE(std::string(change.name) + " x " + kept.name +
                             (subject == eRegion ? ", of a region" : ", of a contour"));
                check(subject, change, kept);
            }
        }
    }
}

// True when the answer had to be computed: filling a slot marks the object changed.
bool computes(const gkContour& contour, const KeptResult& kept) {
    contour.clearChanged();
    kept.ask(contour);
    return contour.isChanged();
}

} // namespace

TEST(ContourCache, TheTwoOutlinesDifferInEveryKeptResult) {
    const gkContour before(points(kBefore), true, 0);
    const gkContour after(points(kAfter), true, 0);
    for (const KeptResult& kept : kKept) EXPECT_NE(kept.ask(before), kept.ask(after)) << kept.name;
}

TEST(ContourCache, EveryResultIsKept) {
    for (const Subject subject : {eContour, eRegion}) {
        for (const KeptResult& kept : kKept) {
            const Owner contour = made(subject);
            EXPECT_TRUE(computes(*contour, kept)) << kept.name;
            EXPECT_FALSE(computes(*contour, kept)) << kept.name;
        }
    }
}

TEST(ContourCache, EveryChangeForgetsEveryKeptResult) {
    everyPair(kChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner contour = made(subject);
        EXPECT_EQ(fresh(*contour, kept), kept.ask(*contour));
        change.apply(*contour);
        EXPECT_EQ(fresh(*contour, kept), kept.ask(*contour));
        EXPECT_EQ(fresh(*contour, kept), kept.ask(*contour)) << "asked again";
    });
}

TEST(ContourCache, EveryChangeMarksTheObjectChanged) {
    everyPair(kChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner contour = made(subject);
        kept.ask(*contour);
        // Assigning, also what map and convexHull end with, copies a value; the mark stays as it was.
        const std::string name = change.name;
        if (name.find("assignment") == 0 || name.find("onto itself") != std::string::npos) return;
        contour->clearChanged();
        change.apply(*contour);
        EXPECT_TRUE(contour->isChanged());
    });
}

TEST(ContourCache, WhatChangesNoGeometryKeepsEveryResult) {
    everyPair(kNoChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner contour = made(subject);
        const Answer before = kept.ask(*contour);
        change.apply(*contour);
        EXPECT_FALSE(computes(*contour, kept));
        EXPECT_EQ(before, kept.ask(*contour));
    });
}

TEST(ContourCache, ACopyAnswersWithoutComputing) {
    for (const Subject subject : {eContour, eRegion}) {
        for (const KeptResult& kept : kKept) {
            const Owner contour = made(subject);
            const Answer before = kept.ask(*contour);
            const Owner copy = copied(*contour);
            EXPECT_FALSE(computes(*copy, kept)) << kept.name;
            EXPECT_EQ(before, kept.ask(*copy)) << kept.name;
            const Owner target = made(subject);
            target->points(points(kAfter));
            kept.ask(*target);
            assign(*target, *contour);
            EXPECT_FALSE(computes(*target, kept)) << kept.name << ", assigned";
            EXPECT_EQ(before, kept.ask(*target)) << kept.name << ", assigned";
        }
    }
}

TEST(ContourCache, ACopyMadeBeforeTheChangeKeepsTheOldResults) {
    everyPair(kChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner contour = made(subject);
        const Answer before = kept.ask(*contour);
        const Owner copy = copied(*contour);
        change.apply(*contour);
        EXPECT_EQ(before, kept.ask(*copy));
        EXPECT_FALSE(computes(*copy, kept));
        EXPECT_EQ(fresh(*contour, kept), kept.ask(*contour));
    });
}

TEST(ContourCache, ChangingACopyLeavesTheOriginal) {
    everyPair(kChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner contour = made(subject);
        const Answer before = kept.ask(*contour);
        const Owner copy = copied(*contour);
        change.apply(*copy);
        EXPECT_EQ(fresh(*copy, kept), kept.ask(*copy));
        EXPECT_EQ(before, kept.ask(*contour));
        EXPECT_FALSE(computes(*contour, kept));
    });
}

TEST(ContourCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    everyPair(kChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner contour = made(subject);
        kept.ask(*contour);
        change.apply(*contour);
        const Owner copy = copied(*contour);
        EXPECT_EQ(fresh(*contour, kept), kept.ask(*copy));
        EXPECT_EQ(fresh(*contour, kept), kept.ask(*contour));
    });
}

TEST(ContourCache, AnAssignedContourTakesTheResultsAndThenGoesItsOwnWay) {
    everyPair(kChanges, [](Subject subject, const Change& change, const KeptResult& kept) {
        const Owner source = made(subject);
        const Owner target = made(subject);
        change.apply(*target);
        kept.ask(*target); // a result of its own, to be replaced
        const Answer before = kept.ask(*source);
        assign(*target, *source);
        EXPECT_EQ(before, kept.ask(*target));
        change.apply(*target);
        EXPECT_EQ(fresh(*target, kept), kept.ask(*target));
        EXPECT_EQ(before, kept.ask(*source));
    });
}

TEST(ContourCache, AnAssignedContourForgetsResultsTheSourceHasNot) {
    for (const Subject subject : {eContour, eRegion}) {
        for (const KeptResult& kept : kKept) {
            const Owner target = made(subject);
            kept.ask(*target);
            const Owner source = made(subject);
            source->points(points(kAfter));
            assign(*target, *source);
            EXPECT_EQ(fresh(*source, kept), kept.ask(*target)) << kept.name;
        }
    }
}

TEST(ContourCache, MapsAreSeparateAfterCopying) {
    const KeptResult questions[] = {
        {"encloseRect",
         [](const gkContour& c) {
             return answer([&] { return c.encloseRect(gkXform<2>(gkMatrix<2>::identity(), {5.0, 6.0})); });
         }},
        {"extremalVertexIndex",
         [](const gkContour& c) { return answer([&] { return c.extremalVertexIndex(gkRadian(2.5)); }); }},
        {"vertexIndex",
         [](const gkContour& c) { return answer([&] {
                                      return c.vertexIndex({1.0, 1.0}, 0.5);
                                  }); }},
    };
    for (const KeptResult& question : questions) {
        const Owner contour = made(eContour);
        for (const KeptResult& kept : kKept) kept.ask(*contour); // so that every map is there to be copied
        const Owner copy = copied(*contour);
        EXPECT_TRUE(computes(*copy, question)) << question.name;
        EXPECT_TRUE(computes(*contour, question)) << question.name << " was answered by the copy's map";
        EXPECT_FALSE(computes(*copy, question)) << question.name;
    }
}
