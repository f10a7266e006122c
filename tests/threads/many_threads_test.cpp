// Many threads at once, each with shapes of its own that share what copies share. Oracle: the answers of one
// thread; a race detector watches (./dev check threads).
#include "ch_core/cntrtmpl.h"
#include "tests/support/archived.h"
#include "tests/support/kept_results.h"
#include "tests/support/outlines.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 8;

void onManyThreads(const std::function<void(int)>& work) {
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) threads.emplace_back(work, i);
    for (std::thread& thread : threads) thread.join();
}

std::vector<Answer> contourAnswers(const gkContour& contour) {
    std::vector<Answer> all;
    for (const Kept<gkContour>& question : keptOfContours()) all.push_back(question.ask(contour));
    for (int i = 0; i < 20; ++i) {
        const gkVector<2> place(3.0 * i - 30.0, 2.0 * i);
        all.push_back(answer([&] { return contour.closestPoint(place, false); }));
        all.push_back(answer([&] { return contour.closestVertexIndex(place); }));
        all.push_back(answer([&] { return contour.intersections(gkLineSeg(place, {50, 1}), true); }));
        all.push_back(answer([&] { return contour.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 1), place)); }));
    }
    return all;
}

// Nothing here asks a shared hole.
std::vector<Answer> regionAnswers(const gkRegion& region) {
    std::vector<Answer> all;
    for (int i = 0; i < 20; ++i) {
        const gkVector<2> place(3.0 * i - 30.0, 2.0 * i);
        all.push_back(answer([&] { return region.inside(place, false); }));
        all.push_back(answer([&] { return region.closestPoint(place, true, false); }));
    }
    all.push_back(answer([&] { return region.area(false); }));
    all.push_back(answer([&] { return region.inertiaMatrix(false); }));
    all.push_back(repaired(region, &gkRegion::regularize));
    all.push_back(repaired(region, &gkRegion::outerHull));
    return all;
}

} // namespace

TEST(ManyThreads, AskContoursOfTheirOwn) {
    const std::vector<Answer> expected = contourAnswers(gkContour(starOutline(600, 40), true, 0));
    onManyThreads([&](int) {
        const gkContour own(starOutline(600, 40), true, 0);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(expected, contourAnswers(own));
    });
}

TEST(ManyThreads, AskCopiesThatShareIndexesAndAHull) {
    gkContour original(starOutline(600, 40), true, 0);
    const std::vector<Answer> expected = contourAnswers(original);
    std::vector<gkContour> copies(kThreads, original);
    onManyThreads([&](int i) {
        gkContour& own = copies[static_cast<std::size_t>(i)];
        EXPECT_EQ(expected, contourAnswers(own));
        const gkContour further(own);
        own.points(starOutline(100, 20)); // lets go of what is shared
        EXPECT_EQ(expected, contourAnswers(further));
    });
}

TEST(ManyThreads, AskCopiesThatShareHolesAndRepairedForms) {
    for (const Points& outline : {starOutline(600, 120), eightOutline(60)}) {
        gkRegion original(outline);
        const Shared hole = sharedSquare(20, 1, 0.25);
        original.holes({hole});
        const std::vector<Answer> expected = regionAnswers(original);
        {
            std::vector<gkRegion> copies(kThreads, original);
            onManyThreads([&](int i) {
                gkRegion& own = copies[static_cast<std::size_t>(i)];
                EXPECT_EQ(expected, regionAnswers(own));
                const gkRegion further(own);
                own.regularize(own);
                EXPECT_EQ(expected, regionAnswers(further));
            });
        }
        EXPECT_EQ(1 + 1, hole->references()); // ours and the original's
    }
}

TEST(ManyThreads, AskSetsWithMembersOfTheirOwn) {
    onManyThreads([](int i) {
        std::vector<gkPtrHandle_const<gkRegion>> members;
        for (int k = 0; k < 50; ++k) members.push_back(sharedSquare(3.0 * k, 0.5 * i, 2.0));
        const gkRegionSet set(members);
        for (int k = 0; k < 50; ++k) {
            EXPECT_TRUE(set.inside({3.0 * k + 1.0, 0.5 * i + 1.0}, false));
            EXPECT_FALSE(set.inside({3.0 * k + 2.5, 0.5 * i + 1.0}, false));
        }
        const Shared changed = sharedSquare(-9, -9, 1);
        gkRegionSet grown(set);
        grown.add(changed, gkContourDefs::eKeepIntersections);
        EXPECT_FALSE(grown.isSelfIntersecting());
        changed->points(square(0, 0.5 * i, 1)); // every thread's index hears of changes anywhere
        EXPECT_TRUE(grown.inside({0.5, 0.5 * i + 0.5}, false));
        EXPECT_EQ(201.0, grown.area(false));
    });
}

TEST(ManyThreads, LoadAndSaveRecordsOldAndNew) {
    const std::string old = "00 00 00 00 02000000 000000000000f03f 00000000000000c0"
                            "0000000000000840 9a9999999999b93f 7b 05000000 00";
    gkPtrHandle<gkRegion> region(new gkRegion(eightOutline(60)));
    region->holes({sharedSquare(20, 1, 0.25)});
    gkArchiveMemory out;
    out || region;
    out.finish();
    onManyThreads([&](int) {
        for (int i = 0; i < 20; ++i) {
            gkContour contour;
            load(withHeader(old), contour);
            EXPECT_EQ(Points({{1, -2}, {3, 0.1}}), contour.points());
            gkPtrHandle<gkRegion> loaded;
            gkArchiveMemory in(out.bytes());
            in || loaded;
            EXPECT_EQ(eightOutline(60), loaded->points());
            EXPECT_EQ(1U, loaded->holes().size());
            gkArchiveMemory again;
            again || loaded;
            again.finish();
            EXPECT_EQ(out.bytes(), again.bytes());
        }
    });
}

TEST(ManyThreads, CopyEdgeletShapesThatShareATransform) {
    std::vector<gkEdgelet> data;
    for (const gkVector<2>& place : starOutline(80, 30)) data.emplace_back(place, 9, gkAngle8(3));
    const gkContourT<gkEdgelet> original(data);
    std::vector<gkContourT<gkEdgelet>> copies(kThreads, original);
    onManyThreads([&](int i) {
        gkContourT<gkEdgelet>& own = copies[static_cast<std::size_t>(i)];
        own.data(data);
        EXPECT_EQ(original.points(), own.points());
        EXPECT_EQ(original.dataFromPointsXform().rep(), own.dataFromPointsXform().rep());
    });
}
