// Ten thousand and a hundred thousand regions, measured as one set.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/geos.h"
#include "bench/suite.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/inside_count.h"
#include "tests/oracle/repair.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bench {

namespace {

using Shapes = std::shared_ptr<const std::vector<Points>>;
using OracleSet = std::vector<oracle::Points>;

Shapes shapesOf(std::size_t count) { return std::make_shared<const std::vector<Points>>(grid(count)); }

SharedPoints probesOf(const std::vector<Points>& shapes, std::size_t count) {
    Points all;
    for (const Points& shape : shapes) all.insert(all.end(), shape.begin(), shape.end());
    return shared(queryPoints(boxOf(all), count));
}

auto setMaker(const Shapes& shapes) {
    return [=] {
        std::vector<gkPtrHandle_const<gkRegion>> regions;
        for (const Points& shape : *shapes) regions.emplace_back(regionOf(shape).release());
        return std::make_unique<gkRegionSet>(regions);
    };
}

auto oracleSetMaker(const Shapes& shapes) {
    return [=] {
        auto set = std::make_unique<OracleSet>();
        for (const Points& shape : *shapes) set->push_back(vectorsOf(shape));
        return set;
    };
}

auto geosMaker(const Shapes& shapes) {
    return [=] { return std::make_unique<GeosShapes>(*shapes); };
}

void inside(Race& race, Kind, std::size_t count) {
    const Shapes shapes = shapesOf(count);
    const SharedPoints probes = probesOf(*shapes, race.queries());
    race.add("ours", Standing::eOurs, setMaker(shapes),
             [=](const gkRegionSet& set, std::size_t k) { return set.inside(vectorOf((*probes)[k]), true); });
    race.add("plain", Standing::ePlain, oracleSetMaker(shapes), [=](const OracleSet& set, std::size_t k) {
        return std::any_of(set.begin(), set.end(), [&](const oracle::Points& points) {
            return oracle::inside(points, vectorOf((*probes)[k]));
        });
    });
    race.add("GEOS STRtree, prepared", Standing::ePeer, geosMaker(shapes), Indexed<GeosSet>(),
             [=](GeosSet& set, std::size_t k) { return set.inside((*probes)[k]); });
    race.add(
        "Boost rtree", Standing::ePeer, [=] { return std::make_unique<std::vector<Points>>(*shapes); },
        Indexed<BoostSet>(), [=](const BoostSet& set, std::size_t k) { return set.inside((*probes)[k]); });
}

void distance(Race& race, Kind, std::size_t count) {
    const Shapes shapes = shapesOf(count);
    const SharedPoints probes = probesOf(*shapes, race.queries());
    const auto geosProbes = std::make_shared<GeosPoints>(*probes);
    race.add("ours", Standing::eOurs, setMaker(shapes), [=](const gkRegionSet& set, std::size_t k) {
        return set.distToPoint(vectorOf((*probes)[k]), false, true, false);
    });
    race.add("plain", Standing::ePlain, oracleSetMaker(shapes), [=](const OracleSet& set, std::size_t k) {
        double least = std::numeric_limits<double>::infinity();
        for (const oracle::Points& points : set)
            least = std::min(least, oracle::distToPoint(points, true, vectorOf((*probes)[k]), false));
        return least;
    });
    race.add("GEOS STRtree, prepared", Standing::ePeer, geosMaker(shapes), Indexed<GeosSet>(),
             [=](GeosSet& set, std::size_t k) { return set.distance(*geosProbes, k); });
}

void crossesItself(Race& race, Kind, std::size_t count) {
    const Shapes shapes = shapesOf(count);
    race.add("ours", Standing::eOurs, setMaker(shapes),
             [](const gkRegionSet& set, std::size_t) { return set.isSelfIntersecting(); });
    race.add("plain", Standing::ePlain, oracleSetMaker(shapes),
             [](const OracleSet& set, std::size_t) { return oracle::isSelfIntersecting(set); });
    race.add("GEOS STRtree, prepared", Standing::ePeer, geosMaker(shapes), Indexed<GeosSet>(),
             [](GeosSet& set, std::size_t) { return set.crossesItself(); });
}

} // namespace

void addSetRows(std::vector<Row>& rows) {
    // The smaller sets tell how it grows, before the greatest are tried.
    const std::vector<std::size_t> sizes = {100, 1000, 10000, 100000};
    rows.push_back({"set_inside", {Kind::eStar}, sizes, {Mode::eRepeated}, inside});
    rows.push_back({"set_distance", {Kind::eStar}, sizes, {Mode::eRepeated}, distance});
    rows.push_back({"set_crosses_itself", {Kind::eStar}, sizes, {Mode::eFresh}, crossesItself});
}

} // namespace bench
