// A contour that runs short of memory. Oracles: the contour as it was, and a twin that never met a shortage.
#include "platform/core/archive/archive_memory.h"
#include "platform/display/recording_tablet.h"
#include "tests/memory/sweep.h"
#include "tests/memory/twins.h"

#include <memory>
#include <string>

namespace {

using memory::expectAnswersOfATwin;

using Owned = std::unique_ptr<gkContour>;

const Points& vertices() {
    static const Points all = starOutline(600, 40.0);
    return all;
}

const gkContour& other() {
    static const gkContour contour(starOutline(100, 40.0, {30.0, 0.0}), true, 0);
    return contour;
}

Owned fresh() { return std::make_unique<gkContour>(vertices(), false, 9); }

void askEverything(const gkContour& contour) {
    for (const Kept<gkContour>& question : keptOfContours()) question.ask(contour);
}

gkXform<2> shear(double size) { return gkXform<2>(gkMatrix<2>(size, 0.5, -0.25, 2.0), {3.0, -1.0}); }

struct Question {
    std::string name;
    Answer (*ask)(const gkContour&);
};

// Those that keepOfContours() has not, and some that take another way the more often they come.
const std::vector<Question>& moreQuestions() {
    static const std::vector<Question> list = {
        {"closestPoint",
         [](const gkContour& c) { return answer([&] {
                                      return c.closestPoint({12.0, 3.0}, false);
                                  }); }},
        {"closestVertexIndex",
         [](const gkContour& c) { return answer([&] {
                                      return c.closestVertexIndex({-50.0, 30.0});
                                  }); }},
        {"vertexIndex",
         [](const gkContour& c) { return answer([&] {
                                      return c.vertexIndex({40.0, 0.0}, 3.0);
                                  }); }},
        {"intersections with a segment",
         [](const gkContour& c) {
             return answer([&] { return c.intersections(gkLineSeg({-99, 1}, {99, 2}), true); });
         }},
        {"intersections with a contour",
         [](const gkContour& c) { return answer([&] { return c.intersections(other()); }); }},
        {"encloseRect of many transforms",
         [](const gkContour& c) {
             Answer all;
             for (const double size : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0}) all.add(c.encloseRect(shear(size)));
             return all;
         }},
        {"extremalVertexIndex of many angles",
         [](const gkContour& c) {
             Answer all;
             for (const double angle : {0.0, 1.0, 2.0, 3.0, 4.0, 5.0})
                 all.add(c.extremalVertexIndex(gkRadian(angle)));
             return all;
         }},
        {"polygon", [](const gkContour& c) { return answer([&] { return c.polygon().vertices(); }); }},
        {"map",
         [](const gkContour& c) {
             gkContour mapped;
             c.map(shear(2.0), mapped);
             return answer([&] { return mapped.points(); });
         }},
        {"draw",
         [](const gkContour& c) {
             gkRecordingTablet tablet;
             c.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
             Answer count;
             count.add(static_cast<long>(tablet.records().size()));
             return count;
         }},
        {"a copy", [](const gkContour& c) { return answer([&] { return gkContour(c).points(); }); }},
    };
    return list;
}

// The question fails at every request for memory, as the first of its kind and after others.
template <class Ask> long sweepQuestion(Ask ask) {
    long points = 0;
    for (int before = 0; before < 3; ++before) {
        SCOPED_TRACE(testing::Message() << "asked before: " << before);
        points += sweep(
            [&] {
                Owned contour = fresh();
                for (int i = 0; i < before; ++i) ask(*contour);
                return contour;
            },
            [&](const Owned& contour) { ask(*contour); },
            [&](const Owned& contour, Outcome) {
                EXPECT_EQ(vertices(), contour->points());
                EXPECT_EQ(ask(*fresh()), ask(*contour));
                expectAnswersOfATwin(*contour);
            });
    }
    return points;
}

// `change` brings the contour whole to another value or leaves it as it was.
template <class Change> long sweepChange(Change change) {
    Owned changed = fresh();
    change(*changed);
    return sweep(
        [] {
            Owned contour = fresh();
            askEverything(*contour);
            return contour;
        },
        [&](const Owned& contour) { change(*contour); },
        [&](const Owned& contour, Outcome outcome) {
            const Owned former = fresh();
            const gkContour& expected = outcome == Outcome::eDone ? *changed : *former;
            EXPECT_EQ(expected, *contour);
            EXPECT_EQ(expected.label(), contour->label());
            expectAnswersOfATwin(*contour);
        });
}

gkArchiveMemory archived() {
    gkContour contour(eightOutline(80), true, 4);
    gkArchiveMemory archive;
    archive || contour;
    archive.finish();
    return gkArchiveMemory(archive.bytes());
}

} // namespace

TEST(ContourMemory, AFailedQuestionLeavesEveryAnswerRight) {
    for (const Kept<gkContour>& question : keptOfContours()) {
        SCOPED_TRACE(question.name);
        EXPECT_GT(sweepQuestion(question.ask), 0);
    }
    for (const Question& question : moreQuestions()) {
        SCOPED_TRACE(question.name);
        EXPECT_GT(sweepQuestion(question.ask), 0);
    }
}

TEST(ContourMemory, AFailedChangeLeavesTheFormerValue) {
    EXPECT_GT(sweepChange([](gkContour& contour) { contour.points(eightOutline(70)); }), 0);
    EXPECT_GT(sweepChange([](gkContour& contour) { contour = other(); }), 0);
}

TEST(ContourMemory, AFailedMappingOfItselfLeavesTheFormerValue) {
    EXPECT_GT(sweepChange([](gkContour& contour) { contour.map(shear(3.0), contour); }), 0);
}

// Neither asks for memory.
TEST(ContourMemory, FlagLabelAndBoundCannotFail) {
    EXPECT_EQ(0, sweepChange([](gkContour& contour) { contour.isClosed(true); }));
    EXPECT_EQ(0, sweepChange([](gkContour& contour) { contour.label(12); }));
    EXPECT_EQ(0, sweepChange([](gkContour& contour) { contour.cachedVectorSize(1); }));
}

TEST(ContourMemory, AFailedConstructionLosesNothing) {
    const auto nothing = [] { return 0; };
    const auto noCheck = [](int, Outcome) {};
    EXPECT_GT(sweep(
                  nothing, [](int) { gkContour(vertices(), true, 1); }, noCheck),
              0);
    EXPECT_GT(sweep(
                  nothing, [](int) { gkContour(gkPolygon(vertices()), 1); }, noCheck),
              0);
    const Owned asked = fresh();
    askEverything(*asked);
    EXPECT_GT(sweep(
                  nothing, [&](int) { gkContour copy(*asked); }, noCheck),
              0);
}

TEST(ContourMemory, AFailedSaveLeavesTheContour) {
    EXPECT_GT(sweep([] { return fresh(); },
                    [](const Owned& contour) {
                        gkArchiveMemory archive;
                        archive || *contour;
                        archive.finish();
                    },
                    [](const Owned& contour, Outcome) { EXPECT_EQ(*fresh(), *contour); }),
              0);
}

TEST(ContourMemory, AFailedLoadLeavesTheFormerValueOrTheWholeNewOne) {
    const gkContour loaded(eightOutline(80), true, 4);
    EXPECT_GT(sweep([] { return fresh(); },
                    [](const Owned& contour) {
                        gkArchiveMemory archive = archived();
                        archive || *contour;
                        archive.finish();
                    },
                    [&](const Owned& contour, Outcome outcome) {
                        EXPECT_TRUE(*contour == loaded ||
                                    (outcome == Outcome::eFailed && *contour == *fresh()));
                        expectAnswersOfATwin(*contour);
                    }),
              0);
}
