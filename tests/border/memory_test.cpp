// Memory taken on one side of the border and given back on the other. A sanitizer, or a heap that checks
// itself, sees a mismatch; the counts see an object that is freed twice or never.
#include "gkcntr.h"
#include "tests/border/used_memory.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

class Counted : public gkRegion {
public:
    Counted() : gkContour({{0, 0}, {4, 0}, {4, 4}}, true, 0) { ++alive; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() override { --alive; }
    static int alive;
};
int Counted::alive = 0;

std::vector<gkVector<2>> wave(int size) {
    std::vector<gkVector<2>> points;
    for (int i = 0; i < size; ++i) points.emplace_back(i, i % 7);
    return points;
}

// Every way in which memory goes over the border, once.
void goAcross() {
    gkContour contour(wave(200), true, 1);
    gkRegion hull;
    contour.convexHull(hull); // the library fills an object of ours
    std::vector<gkVector<2>> taken = contour.intersections(gkLineSeg({0, 3.5}, {200, 3.5}), true);
    taken.insert(taken.end(), 1000, gkVector<2>()); // we let its vector grow
    contour.points(std::move(taken));               // and it replaces what we made
    gkRegionSet set({gkPtrHandle_const<gkRegion>(new gkRegion(hull))});
    const std::vector<gkPtrHandle_const<gkRegion>> list = set.regions();
    set.regions({}, gkContourDefs::eKeepIntersections); // now ours are the last handles
    gkSvgTablet picture(10, 10);
    picture.drawText({1, 1}, std::string(500, 'x'), 3, gkColor::red(), gkUITablet::eOverlayLayer);
    std::string text = picture.svg();
    text += text;
    gkArchiveMemory archive(gkArchiveMemory().bytes());
    std::wostringstream out;
    gkBadPointer(std::wstring(300, L'x').c_str()).message_(out);
    EXPECT_EQ(300u, out.str().size());
}

} // namespace

TEST(BorderMemory, OfAnObjectOfOursIsFreedByTheLibrarysLastHandle) {
    {
        gkRegionSet set;
        set.add(gkPtrHandle_const<gkRegion>(new Counted), gkContourDefs::eKeepIntersections);
        EXPECT_EQ(1, Counted::alive);
        gkRegionSet copy(set);
        set = gkRegionSet();
        EXPECT_EQ(1, Counted::alive);
        EXPECT_EQ(1, copy.regions()[0]->references() - 1); // the list we were given holds it as well
    }
    EXPECT_EQ(0, Counted::alive);
}

TEST(BorderMemory, OfAnObjectOfTheLibraryIsFreedByOurLastHandle) {
    gkArchiveMemory out;
    gkPtrHandle<gkRegion> region(new gkRegion(wave(50)));
    out || region;
    gkPtrHandle<gkRegion> back;
    {
        gkArchiveMemory in(out.bytes());
        in || back;
        in.finish();
    }
    EXPECT_EQ(1, back->references());
    const gkPtrHandle_const<gkContour> base(back); // another type, the same object
    EXPECT_EQ(2, back->references());
    back = gkPtrHandle<gkRegion>();
    EXPECT_EQ(wave(50), base->points());
}

TEST(BorderMemory, ComesBackWholeWhateverSideTookIt) {
    for (int i = 0; i < 10; ++i) goAcross();
    const std::size_t before = usedMemory();
    for (int i = 0; i < 200; ++i) goAcross();
    EXPECT_TRUE(heapIsSound());
    // One leaked vector in each round would be some thousand bytes for each of them.
    EXPECT_LT(usedMemory(), before + 20000);
}
