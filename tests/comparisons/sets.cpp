// Sets of regions.
#include "cntr/regionst.h"
#include "tests/comparisons/asked_contour.h"
#include "tests/comparisons/holed.h"
#include "tests/gen/places.h"
#include "tests/gen/tangles.h"
#include "tests/oracle/region_set.h"
#include "tests/oracle/repair.h"

#include <algorithm>

namespace comparisons {
namespace {

struct AskedSet {
    gkRegionSet set;
    oracle::RegionSet plain;
    Points all; // vertices, for questions
};

using SetQuestion = void (*)(AskedSet&, Questions&, Tally&);

// Few vertices, for a definition asks every member.
Points member(gen::Random& random, double reach) {
    const gkVector<2> at = gen::place(random, reach);
    if (random.chance(0.02)) return outlineOf(random.next(), kSmall).points;
    if (random.chance(0.5)) return square(at.x(), at.y(), random.between(0.5, 9.0));
    Points points;
    for (int i = random.integer(3, 8); i > 0; --i) points.push_back(at + gen::place(random, 5.0));
    return points;
}

// As many members as make an index worth while, one less, one more; mostly a few. They lie in each other's way
// and some cross themselves, or they are squares so far apart that seldom more than two meet.
std::vector<Points> scattered(gen::Random& random) {
    const int many[] = {31, 32, 33, 70};
    const int count = random.chance(0.05) ? many[random.index(std::size(many))] : random.integer(1, 8);
    const bool sparse = random.chance(0.5);
    const double reach = sparse ? 8.0 * count : 20.0;
    std::vector<Points> members;
    for (int i = 0; i < count; ++i) {
        const gkVector<2> at = gen::place(random, reach);
        members.push_back(sparse ? square(at.x(), at.y(), random.between(1.0, 12.0)) : member(random, reach));
    }
    return members;
}

std::vector<Points> membersOf(std::uint64_t seed, std::string& kind) {
    gen::Random random(seed);
    const std::vector<gen::SetKind>& kinds = gen::setKinds();
    const std::size_t index = random.index(kinds.size() + 4);
    if (index < kinds.size()) {
        kind = kinds[index].name;
        return kinds[index].make(random);
    }
    kind = "scattered";
    if (random.chance(0.01)) return {};
    return scattered(random);
}

AskedSet askedSet(const std::vector<Points>& members, std::uint64_t seed) {
    gen::Random random(seed + 3);
    AskedSet asked;
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const Points& points : members) {
        const Holed holed =
            random.chance(0.2) ? withHoles(points, holesFor(points, random)) : withoutHoles(points);
        regions.push_back(holed.region);
        asked.plain.push_back(holed.plain);
        asked.all.insert(asked.all.end(), points.begin(), points.end());
    }
    asked.set = gkRegionSet(regions);
    return asked;
}

void inside(AskedSet& a, Questions& questions, Tally& tally) {
    const gkVector<2> p = questions.point();
    const bool holes = questions.flag();
    tally.compare(
        "inside, considerHoles", [&] { return oracle::inside(a.plain, p, holes); },
        [&] { return a.set.inside(p, holes); }, p, holes);
}

void distance(AskedSet& a, Questions& questions, Tally& tally) {
    const gkVector<2> p = questions.point();
    const bool vertices = questions.flag();
    const bool holes = questions.flag();
    const bool zero = questions.flag();
    tally.compare(
        "distToPoint, verticesOnly, considerHoles, zeroInside",
        [&] { return oracle::distToPoint(a.plain, p, vertices, holes, zero); },
        [&] { return a.set.distToPoint(p, vertices, holes, zero); }, p, vertices, holes, zero);
}

void encloseRect(AskedSet& a, Questions& questions, Tally& tally) {
    const gkXform<2> xform = questions.xform();
    tally.compare(
        "encloseRect", [&] { return oracle::encloseRect(a.plain, xform); },
        [&] { return a.set.encloseRect(xform); }, xform.matrix(), xform.translation());
}

void area(AskedSet& a, Questions& questions, Tally& tally) {
    const bool holes = questions.flag();
    tally.compare(
        "area, considerHoles", [&] { return oracle::area(a.plain, holes); }, [&] { return a.set.area(holes); },
        holes);
}

void centerOfMass(AskedSet& a, Questions& questions, Tally& tally) {
    const bool holes = questions.flag();
    tally.compare(
        "centerOfMass, considerHoles", [&] { return oracle::centroid(a.plain, holes); },
        [&] { return a.set.centerOfMass(holes); }, holes);
}

void inertia(AskedSet& a, Questions& questions, Tally& tally) {
    const bool holes = questions.flag();
    tally.compare(
        "inertiaMatrix, considerHoles", [&] { return oracle::inertiaMatrix(a.plain, holes); },
        [&] { return a.set.inertiaMatrix(holes); }, holes);
}

Operation onSets(const std::string& name, int times, const std::vector<SetQuestion>& questions) {
    return {name, [=](std::uint64_t seed, Tally& tally) {
                std::string kind;
                AskedSet asked = askedSet(membersOf(seed, kind), seed);
                tally.shape(kind, seed, asked.plain.size());
                Questions drawn(asked.all, seed);
                for (int i = 0; i < times; ++i)
                    questions[drawn.random().index(questions.size())](asked, drawn, tally);
            }};
}

std::vector<Points> outlinesOf(const gkRegionSet& set) {
    std::vector<Points> all;
    for (const auto& region : set.regions()) all.push_back(region->points());
    return all;
}

// Both of a list of outlines without holes. The definition's pairs and merges take their time: the larger lists
// are seldom.
template <class Define, class Ask> Operation onOutlines(const std::string& name, Define define, Ask ask) {
    return {name, [=](std::uint64_t seed, Tally& tally) {
                std::string kind;
                const std::vector<Points> members = membersOf(seed, kind);
                tally.shape(kind, seed, members.size());
                std::vector<gkPtrHandle_const<gkRegion>> regions;
                for (const Points& points : members) regions.emplace_back(new gkRegion(points));
                const gkRegionSet set(regions);
                tally.compare(
                    name.c_str(), [&] { return define(members); }, [&] { return ask(set); });
            }};
}

} // namespace

Operations setOperations() {
    using Outlines = std::vector<Points>;
    return {onSets("set.inside", 24, {&inside}),
            onSets("set.distance", 24, {&distance}),
            onSets("set.encloseRect", 8, {&encloseRect}),
            onSets("set.area", 2, {&area}),
            onSets("set.centerOfMass", 1, {&centerOfMass}),
            onSets("set.inertia", 1, {&inertia}),
            onSets("set.anyOrder", 24, {&inside, &distance, &encloseRect, &area}),
            onOutlines(
                "set.crossesItself", [](const Outlines& list) { return oracle::isSelfIntersecting(list); },
                [](const gkRegionSet& set) { return set.isSelfIntersecting(); }),
            onOutlines(
                "set.regularize", [](const Outlines& list) { return oracle::regularize(list); },
                [](const gkRegionSet& set) {
                    gkRegionSet result;
                    set.regularize(result);
                    return outlinesOf(result);
                }),
            onOutlines(
                "set.outerHull", [](const Outlines& list) { return oracle::outerHull(list); },
                [](const gkRegionSet& set) {
                    gkRegionSet result;
                    set.outerHull(result);
                    return outlinesOf(result);
                })};
}

} // namespace comparisons
