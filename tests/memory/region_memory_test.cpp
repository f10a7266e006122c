// A region that runs short of memory. Oracles: the region as it was, and a twin that never met a shortage.
#include "platform/core/archive/archive_memory.h"
#include "tests/memory/sweep.h"
#include "tests/memory/twins.h"
#include "tests/support/regions.h"

#include <memory>
#include <string>

namespace {

using memory::expectAnswersOfATwin;

using Owned = std::unique_ptr<gkRegion>;

Holes twoHoles() {
    return {Shared(new gkRegion(starOutline(60, 40.0, {0.0, 0.0}))),
            Shared(new gkRegion(square(-3.0, 8.0, 2.0)))};
}

// An outline of 600 vertices that crosses itself when it is `crossing`, with holes when it is not.
Owned fresh(bool crossing) {
    if (crossing) return std::make_unique<gkRegion>(eightOutline(60));
    Points large = starOutline(600, 40.0);
    for (gkVector<2>& vertex : large) vertex = 3.0 * vertex;
    Owned region = std::make_unique<gkRegion>(large);
    region->holes(twoHoles());
    region->label(5);
    return region;
}

struct Question {
    std::string name;
    Answer (*ask)(const gkRegion&);
};

const gkVector<2> kPlace(100.0, 20.0);

// Those that keepOfRegions() has not.
const std::vector<Question>& moreQuestions() {
    static const std::vector<Question> list = {
        {"inside",
         [](const gkRegion& r) {
             Answer all;
             for (const double x : {-110.0, -20.0, 5.0, 100.0}) all.add(r.inside({x, 1.0}, true));
             return all;
         }},
        {"closestVertexIndex",
         [](const gkRegion& r) {
             long hole = 0;
             Answer all;
             all.add(r.closestVertexIndex(kPlace, true, hole));
             all.add(hole);
             return all;
         }},
        {"closestPoint",
         [](const gkRegion& r) { return answer([&] { return r.closestPoint(kPlace, false, true); }); }},
        {"distToPoint",
         [](const gkRegion& r) { return answer([&] { return r.distToPoint(kPlace, false, true, true); }); }},
        {"intersections with a segment",
         [](const gkRegion& r) {
             return answer([&] { return r.intersections(gkLineSeg({-200, 1}, {200, 2}), true, true); });
         }},
        {"intersections with a contour",
         [](const gkRegion& r) {
             return answer([&] { return r.intersections(gkContour(square(0, 0, 200), true, 0), true); });
         }},
        {"map",
         [](const gkRegion& r) {
             gkRegion mapped;
             r.map(gkXform<2>(gkMatrix<2>(2.0, 0.5, 0.0, 1.0), {1.0, 2.0}), mapped);
             return answer([&] { return mapped.points(); });
         }},
    };
    return list;
}

template <class Ask> long sweepQuestion(bool crossing, Ask ask) {
    const std::size_t holes = fresh(crossing)->holes().size();
    long points = 0;
    for (int before = 0; before < 5; before += 2) {
        SCOPED_TRACE(testing::Message() << "asked before: " << before);
        points += sweep(
            [&] {
                Owned region = fresh(crossing);
                for (int i = 0; i < before; ++i) ask(*region);
                return region;
            },
            [&](const Owned& region) { ask(*region); },
            [&](const Owned& region, Outcome) {
                EXPECT_EQ(*fresh(crossing), *region);
                EXPECT_EQ(holes, region->holes().size());
                expectAnswersOfATwin(*region);
            });
    }
    return points;
}

// `change` brings the region whole to another value or leaves outline, holes and label as they were.
template <class Change> long sweepChange(bool crossing, Change change) {
    Owned changed = fresh(crossing);
    change(*changed);
    return sweep(
        [&] {
            Owned region = fresh(crossing);
            for (const Kept<gkRegion>& question : keptOfRegions()) question.ask(*region);
            return region;
        },
        [&](const Owned& region) { change(*region); },
        [&](const Owned& region, Outcome outcome) {
            const Owned former = fresh(crossing);
            const gkRegion& expected = outcome == Outcome::eDone ? *changed : *former;
            EXPECT_EQ(expected, *region);
            EXPECT_EQ(expected.label(), region->label());
            EXPECT_EQ(expected.holes().size(), region->holes().size());
            EXPECT_EQ(expected.area(true), region->area(true));
        });
}

} // namespace

TEST(RegionMemory, AFailedQuestionLeavesEveryAnswerRight) {
    for (const bool crossing : {false, true}) {
        SCOPED_TRACE(crossing ? "crossing" : "with holes");
        for (const Kept<gkRegion>& question : keptOfRegions()) {
            SCOPED_TRACE(question.name);
            EXPECT_GT(sweepQuestion(crossing, question.ask), 0);
        }
        for (const Question& question : moreQuestions()) {
            SCOPED_TRACE(question.name);
            EXPECT_GT(sweepQuestion(crossing, question.ask), 0);
        }
    }
}

TEST(RegionMemory, AFailedChangeLeavesTheFormerValue) {
    for (const bool crossing : {false, true}) {
        SCOPED_TRACE(crossing ? "crossing" : "with holes");
        EXPECT_GT(sweepChange(crossing, [](gkRegion& region) { region.points(square(0, 0, 90)); }), 0);
        EXPECT_GT(sweepChange(crossing, [](gkRegion& region) { region = *fresh(false); }), 0);
        EXPECT_GT(sweepChange(crossing, [](gkRegion& region) { region.holes({sharedSquare(20, 1, 0.25)}); }),
                  0);
        EXPECT_GT(sweepChange(crossing, [](gkRegion& region) { region.map(gkXform<2>(), region); }), 0);
        EXPECT_GT(sweepChange(crossing, [](gkRegion& region) { region.convexHull(region); }), 0);
    }
}

TEST(RegionMemory, AFailedRepairOfItselfLeavesTheFormerValue) {
    EXPECT_GT(sweepChange(true, [](gkRegion& region) { region.regularize(region); }), 0);
    EXPECT_GT(sweepChange(true, [](gkRegion& region) { region.outerHull(region); }), 0);
}

TEST(RegionMemory, AFailedConstructionLosesNothing) {
    const auto nothing = [] { return 0; };
    const auto noCheck = [](int, Outcome) {};
    for (const gkContourDefs::IntersectionMode mode :
         {gkContourDefs::eKeepIntersections, gkContourDefs::eRegularize, gkContourDefs::eOuterHull}) {
        EXPECT_GT(sweep(
                      nothing, [&](int) { gkRegion(eightOutline(60), mode); }, noCheck),
                  0);
        EXPECT_GT(sweep(
                      nothing, [&](int) { gkRegion(gkPolygon(eightOutline(60)), mode); }, noCheck),
                  0);
        EXPECT_GT(sweep(
                      nothing, [&](int) { gkRegion(*fresh(true), mode); }, noCheck),
                  0);
    }
}

TEST(RegionMemory, AFailedLoadLeavesARegionThatAnswers) {
    const Owned stored = fresh(false);
    gkArchiveMemory written;
    written || *stored;
    written.finish();
    EXPECT_GT(sweep([] { return fresh(true); },
                    [&](const Owned& region) {
                        gkArchiveMemory archive(written.bytes());
                        archive || *region;
                        archive.finish();
                    },
                    [&](const Owned& region, Outcome outcome) {
                        // The outline comes first, the holes after it.
                        const bool isLoaded = *region == *stored;
                        EXPECT_TRUE(isLoaded || *region == *fresh(true));
                        if (outcome == Outcome::eDone) {
                            EXPECT_TRUE(isLoaded);
                            EXPECT_EQ(2U, region->holes().size());
                        }
                        expectAnswersOfATwin(*region);
                    }),
              0);
}
