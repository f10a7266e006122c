// Repair of an outline that crosses itself, and the merge of two regions that overlap.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/clipper.h"
#include "bench/peers/geos.h"
#include "bench/suite.h"
#include "tests/oracle/area.h"
#include "tests/oracle/repair.h"

namespace bench {

namespace {

// Areas of repaired outlines are compared; the grid of the clipper and slits at crossings need some room.
constexpr double kAreaTolerance = 1e-6;

auto clipperMaker(const std::vector<Points>& outlines) {
    return [=] { return std::make_unique<ClipperPaths>(outlines); };
}

// Where a part is wound around twice or not at all, libraries differ in what belongs to it; of an eight they
// agree, but for the small loops at noisy vertices.
void compareAreas(Race& race, Kind kind) {
    race.tolerance(1e-3);
    if (kind == Kind::eLissajous) race.answersMayDiffer();
}

void addRepairPeers(Race& race, const SharedPoints& points) {
    race.add("GEOS MakeValid", Standing::ePeer, areaMaker<GeosArea>(points),
             [](const GeosArea& a, std::size_t) { return a.madeValidArea(); });
    race.add("GEOS GeometryFixer", Standing::ePeer, areaMaker<GeosArea>(points),
             [](const GeosArea& a, std::size_t) { return a.fixedArea(); });
    race.add("clipper non-zero, outer", Standing::ePeer, clipperMaker({*points}),
             [](const ClipperPaths& a, std::size_t) { return a.outerArea(); });
    race.add("clipper even-odd", Standing::ePeer, clipperMaker({*points}),
             [](const ClipperPaths& a, std::size_t) { return a.evenOddArea(); });
}

void regularize(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    compareAreas(race, kind);
    race.add("ours", Standing::eOurs, regionMaker(points), [](const gkRegion& r, std::size_t) {
        gkRegion result;
        r.regularize(result);
        return result.area(false);
    });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::area(oracle::regularize(p)); });
    addRepairPeers(race, points);
}

void outerHull(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    compareAreas(race, kind);
    race.add("ours", Standing::eOurs, regionMaker(points), [](const gkRegion& r, std::size_t) {
        gkRegion result;
        r.outerHull(result);
        return result.area(false);
    });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::area(oracle::outerHull(p)); });
    addRepairPeers(race, points);
}

struct TwoGeos {
    GeosArea one;
    GeosArea other;
};

struct TwoBoost {
    BoostArea one;
    BoostArea other;
};

void mergeOfTwo(Race& race, Kind, std::size_t n) {
    const std::vector<Points> blobs = overlappingBlobs(n);
    race.tolerance(kAreaTolerance);
    race.add(
        "ours", Standing::eOurs,
        [=] {
            std::vector<gkPtrHandle_const<gkRegion>> regions;
            for (const Points& blob : blobs) regions.emplace_back(regionOf(blob).release());
            return std::make_unique<gkRegionSet>(regions);
        },
        [](const gkRegionSet& set, std::size_t) {
            gkRegionSet result;
            set.outerHull(result);
            return result.area(false);
        });
    race.add(
        "plain", Standing::ePlain,
        [=] {
            return std::make_unique<std::vector<oracle::Points>>(
                std::initializer_list<oracle::Points>{vectorsOf(blobs[0]), vectorsOf(blobs[1])});
        },
        [](const std::vector<oracle::Points>& set, std::size_t) {
            double sum = 0.0;
            for (const oracle::Points& points : oracle::outerHull(set)) sum += oracle::area(points);
            return sum;
        });
    race.add(
        "GEOS union", Standing::ePeer,
        [=] {
            return std::unique_ptr<TwoGeos>(new TwoGeos{GeosArea({blobs[0], {}}), GeosArea({blobs[1], {}})});
        },
        [](const TwoGeos& two, std::size_t) { return two.one.mergedArea(two.other); });
    race.add(
        "Boost union", Standing::ePeer,
        [=] {
            return std::unique_ptr<TwoBoost>(
                new TwoBoost{BoostArea({blobs[0], {}}), BoostArea({blobs[1], {}})});
        },
        [](const TwoBoost& two, std::size_t) { return two.one.mergedArea(two.other); });
    race.add("clipper union", Standing::ePeer, clipperMaker(blobs),
             [](const ClipperPaths& a, std::size_t) { return a.outerArea(); });
}

} // namespace

void addRepairRows(std::vector<Row>& rows) {
    rows.push_back({"regularize", {Kind::eLissajous, Kind::eEight}, {}, {Mode::eFresh}, regularize});
    rows.push_back({"outer_hull", {Kind::eLissajous, Kind::eEight}, {}, {Mode::eFresh}, outerHull});
    rows.push_back({"merge_of_two", {Kind::eStar}, {}, {Mode::eFresh}, mergeOfTwo});
}

} // namespace bench
