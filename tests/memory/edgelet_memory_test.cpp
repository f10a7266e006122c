// Edgelet shapes that run short of memory. What remains is weaker than for plain shapes where two lists follow
// one another: the shape is whole enough to be asked, set anew, and destroyed.
#include "platform/core/archive/archive_memory.h"
#include "tests/ch_core/edgelets.h"
#include "tests/memory/sweep.h"
#include "tests/memory/twins.h"

#include <memory>

namespace {

using memory::expectAnswersOfATwin;

std::vector<gkEdgelet> edgelets(int count) {
    std::vector<gkEdgelet> list;
    for (const gkVector<2>& place : starOutline(count, 40.0)) list.emplace_back(place, 9, gkAngle8(3));
    return list;
}

std::unique_ptr<EdgeletContour> freshContour() {
    return std::make_unique<EdgeletContour>(edgelets(60), scale(2.0));
}

std::unique_ptr<EdgeletRegion> freshRegion() {
    Transform half = scale(0.5);
    return std::make_unique<EdgeletRegion>(edgelets(60), half, 3UL);
}

std::unique_ptr<EdgeletSet> freshSet() {
    EdgeletSet::Regions list;
    for (int i = 0; i < 3; ++i) list.push_back(gkPtrHandle_const<EdgeletRegion>(freshRegion().release()));
    return std::make_unique<EdgeletSet>(list);
}

// Set anew after a failed change, a shape is as good as one that never met a shortage.
template <class Shape> void expectUsable(Shape& shape) {
    shape.data(edgelets(50));
    EXPECT_EQ(50U, shape.data().size());
    EXPECT_EQ(50U, shape.points().size());
    expectAnswersOfATwin(static_cast<const gkContour&>(shape));
}

template <class Make, class Change> void sweepChange(Make make, Change change) {
    EXPECT_GT(sweep(
                  make, [&](const auto& shape) { change(*shape); },
                  [](const auto& shape, Outcome) {
                      expectAnswersOfATwin(static_cast<const gkContour&>(*shape));
                      expectUsable(*shape);
                  }),
              0);
}

template <class Shape> std::vector<unsigned char> bytesOf(Shape& shape) {
    gkArchiveMemory archive;
    archive || shape;
    archive.finish();
    return archive.bytes();
}

} // namespace

TEST(EdgeletMemory, AContourIsUsableAfterAFailedChange) {
    sweepChange(freshContour, [](EdgeletContour& contour) { contour.data(edgelets(70)); });
    sweepChange(freshContour, [](EdgeletContour& contour) {
        static_cast<gkContour&>(contour).points(starOutline(70, 40.0));
    });
    sweepChange(freshContour, [](EdgeletContour& contour) { contour = *freshContour(); });
}

TEST(EdgeletMemory, ARegionIsUsableAfterAFailedChange) {
    sweepChange(freshRegion, [](EdgeletRegion& region) { region.data(edgelets(70)); });
    sweepChange(freshRegion,
                [](EdgeletRegion& region) { static_cast<gkContour&>(region).points(starOutline(70, 40.0)); });
    sweepChange(freshRegion, [](EdgeletRegion& region) { region = *freshRegion(); });
    sweepChange(freshRegion, [](EdgeletRegion& region) {
        region.holes({gkPtrHandle_const<EdgeletRegion>(freshRegion().release())});
    });
}

TEST(EdgeletMemory, ASetAnswersAfterAFailedAssignment) {
    EXPECT_GT(sweep(
                  freshSet, [](const std::unique_ptr<EdgeletSet>& set) { *set = *freshSet(); },
                  [](const std::unique_ptr<EdgeletSet>& set, Outcome) {
                      EXPECT_EQ(set->regions().size(), set->regionsT().size());
                      expectAnswersOfATwin(static_cast<const gkRegionSet&>(*set));
                  }),
              0);
}

TEST(EdgeletMemory, AFailedConstructionOrCopyLosesNothing) {
    const auto nothing = [] { return 0; };
    const auto noCheck = [](int, Outcome) {};
    EXPECT_GT(sweep(
                  nothing, [](int) { freshContour(); }, noCheck),
              0);
    EXPECT_GT(sweep(
                  nothing, [](int) { freshRegion(); }, noCheck),
              0);
    EXPECT_GT(sweep(
                  nothing, [](int) { freshSet(); }, noCheck),
              0);
    const auto contour = freshContour();
    const auto region = freshRegion();
    const auto set = freshSet();
    EXPECT_GT(sweep(
                  nothing, [&](int) { EdgeletContour copy(*contour); }, noCheck),
              0);
    EXPECT_GT(sweep(
                  nothing, [&](int) { EdgeletRegion copy(*region); }, noCheck),
              0);
    EXPECT_GT(sweep(
                  nothing, [&](int) { EdgeletSet copy(*set); }, noCheck),
              0);
}

TEST(EdgeletMemory, AFailedLoadLosesNothing) {
    const std::vector<unsigned char> contour = bytesOf(*freshContour());
    const std::vector<unsigned char> region = bytesOf(*freshRegion());
    const std::vector<unsigned char> set = bytesOf(*freshSet());
    const auto load = [](const std::vector<unsigned char>& bytes) {
        return [&bytes](const auto& shape) {
            gkArchiveMemory archive(bytes);
            archive || *shape;
            archive.finish();
        };
    };
    const auto asContour = [](const auto& shape, Outcome) {
        expectAnswersOfATwin(static_cast<const gkContour&>(*shape));
    };
    EXPECT_GT(sweep([] { return std::make_unique<EdgeletContour>(); }, load(contour), asContour), 0);
    EXPECT_GT(sweep([] { return std::make_unique<EdgeletRegion>(); }, load(region), asContour), 0);
    EXPECT_GT(sweep([] { return std::make_unique<EdgeletSet>(); }, load(set),
                    [](const auto& shape, Outcome) {
                        expectAnswersOfATwin(static_cast<const gkRegionSet&>(*shape));
                    }),
              0);
}
