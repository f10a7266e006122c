// Draws what repair makes of crossing outlines: each as given, regularized, and as its outer hull.
//
// usage: repair DIRECTORY, which gets five SVG files

#include "cntr/region.h"
#include "cntr/regionst.h"
#include "sheet.h"

#include <cstdint>
#include <exception>
#include <iostream>

namespace {

using Points = std::vector<gkVector<2>>;
using Regions = std::vector<gkRegion>;

constexpr double kTurn = 6.283185307179586;

gkVector<2> polar(double length, double angle) { return gkVector<2>(length, gkRadian(angle)); }

// Tenths are enough and the same everywhere.
std::string oneDigit(double value) {
    const long tenths = static_cast<long>(value * 10.0 + 0.5);
    const std::string digit = tenths % 10 == 0 ? "" : "." + std::to_string(tenths % 10);
    return std::to_string(tenths / 10) + digit;
}

std::string sizeOf(const Regions& regions) {
    double area = 0.0;
    std::size_t vertices = 0;
    for (const gkRegion& region : regions) {
        area += region.area(false);
        vertices += region.points().size();
    }
    const std::string count = regions.size() == 1 ? "" : std::to_string(regions.size()) + " regions, ";
    return count + std::to_string(vertices) + " vertices, area " + oneDigit(area);
}

Regions regularized(const gkRegion& given) {
    gkRegion result;
    given.regularize(result);
    return {result};
}

Regions outerHull(const gkRegion& given) {
    gkRegion result;
    given.outerHull(result);
    return {result};
}

gkRegionSet setOf(const Regions& regions) {
    std::vector<gkPtrHandle_const<gkRegion>> list;
    for (const gkRegion& region : regions) list.emplace_back(new gkRegion(region));
    return gkRegionSet(list);
}

Regions listOf(const gkRegionSet& set) {
    Regions regions;
    for (const auto& region : set.regions()) regions.push_back(*region);
    return regions;
}

Regions regularizedSet(const Regions& given) {
    gkRegionSet result;
    setOf(given).regularize(result);
    return listOf(result);
}

Regions outerHullOfSet(const Regions& given) {
    gkRegionSet result;
    setOf(given).outerHull(result);
    return listOf(result);
}

gkRect boxOf(const Regions& regions) { return setOf(regions).encloseRect(gkXform<2>()); }

std::string verticesOf(const gkRegion& given) { return std::to_string(given.points().size()) + " vertices"; }

// The three panels of one region; small ones get vertex numbers.
void row(Sheet& sheet, const gkRegion& given) {
    const bool small = given.points().size() <= 12;
    sheet.panel({given}, "as given", verticesOf(given), small ? Sheet::eVertices : Sheet::eNone);
    sheet.panelOver({given}, regularized(given), "regularized", sizeOf(regularized(given)));
    sheet.panelOver({given}, outerHull(given), "outer hull", sizeOf(outerHull(given)));
}

void rowOfSet(Sheet& sheet, const Regions& given, const std::string& note) {
    sheet.panel(given, "as given", note, Sheet::eVertices);
    sheet.panelOver(given, regularizedSet(given), "regularized", sizeOf(regularizedSet(given)));
    sheet.panelOver(given, outerHullOfSet(given), "outer hull", sizeOf(outerHullOfSet(given)));
}

// Two lobes, and a loop within a loop.
void drawFigureEight(const std::string& directory) {
    const gkRegion eight(Points{{0, 0}, {0, 8}, {8, 0}, {8, 8}});
    const gkRegion twice(
        Points{{8, 5.5}, {8, 8}, {0, 8}, {0, 0}, {5.5, 0}, {5.5, 5.5}, {2.5, 5.5}, {2.5, 2.5}, {8, 2.5}});
    Sheet sheet(3, 2, boxOf({eight, twice}));
    row(sheet, eight);
    row(sheet, twice);
    sheet.save(directory + "/figure_eight.svg");
}

// With pointed tips every edge is crossed and none can start the walk; a blunt tip is a free edge.
void drawPentagram(const std::string& directory) {
    Points pointed;
    Points blunt;
    for (int i = 0; i < 5; ++i) pointed.push_back(polar(10.0, kTurn * (i * 2 % 5) / 5 - kTurn / 4));
    for (std::size_t i = 0; i < 5; ++i) {
        const gkVector<2> along = pointed[(i + 1) % 5] - pointed[i];
        blunt.push_back(pointed[i] + along * 0.08);
        blunt.push_back(pointed[i] + along * 0.92);
    }
    const gkRegion given(blunt);
    Sheet sheet(4, 1, boxOf({gkRegion(pointed)}));
    sheet.panel({gkRegion(pointed)}, "pointed tips: refused", "every edge is crossed", Sheet::eVertices);
    row(sheet, given);
    sheet.save(directory + "/pentagram.svg");
}

// The same two squares; the second one's vertices run one way round and the other.
void drawOverlappingSquares(const std::string& directory) {
    const gkRegion first(Points{{0, 0}, {4, 0}, {4, 4}, {0, 4}});
    const gkRegion second(Points{{2, 2}, {6, 2}, {6, 6}, {2, 6}});
    const gkRegion reversed(Points{{2, 2}, {2, 6}, {6, 6}, {6, 2}});
    Sheet sheet(3, 2, boxOf({first, second}));
    rowOfSet(sheet, {first, second}, "both run the same way round");
    rowOfSet(sheet, {first, reversed}, "one runs the other way round");
    sheet.save(directory + "/overlapping_squares.svg");
}

// The first overlaps both others: it takes in the second, and the third moves up unasked.
void drawChain(const std::string& directory) {
    const Regions given = {gkRegion(Points{{3, 0}, {7, 0}, {7, 4}, {3, 4}}),
                           gkRegion(Points{{0, 1}, {0, 3}, {4, 3}, {4, 1}}),
                           gkRegion(Points{{6, 1}, {6, 3}, {10, 3}, {10, 1}})};
    const Regions once = outerHullOfSet(given);
    Sheet sheet(4, 1, boxOf(given));
    rowOfSet(sheet, given, "3 regions: middle, left, right");
    sheet.panelOver(given, outerHullOfSet(once), "outer hull of the outer hull", sizeOf(outerHullOfSet(once)));
    sheet.save(directory + "/chain.svg");
}

// Numbers in [-1, 1) by a linear congruence, the same on every machine.
class Noise {
public:
    double next() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(state_ >> 40) / 8388608.0 - 1.0;
    }

private:
    std::uint64_t state_ = 27;
};

// The noise along the curve is longer than the steps, so that the curve folds back and crosses itself here and
// there.
void drawNoisyCurve(const std::string& directory) {
    constexpr int kCount = 26;
    Noise noise;
    Points points;
    for (int i = 0; i < kCount; ++i) {
        const double t = kTurn * (i + 1.9 * noise.next()) / kCount;
        points.push_back(polar(10.0 + 1.5 * polar(1.0, 3.0 * t).x() + 1.8 * noise.next(), t));
    }
    const gkRegion given(points);
    Sheet sheet(3, 1, boxOf({given}));
    row(sheet, given);
    sheet.save(directory + "/noisy_curve.svg");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: repair DIRECTORY\n";
        return 2;
    }
    try {
        drawFigureEight(argv[1]);
        drawPentagram(argv[1]);
        drawOverlappingSquares(argv[1]);
        drawChain(argv[1]);
        drawNoisyCurve(argv[1]);
    } catch (gkException&) {
        std::cerr << "repair: the library refused, or a picture could not be written\n";
        return 1;
    } catch (const std::exception& error) {
        std::cerr << "repair: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
