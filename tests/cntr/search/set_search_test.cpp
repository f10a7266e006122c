// Questions to sets of many regions. Oracle: a walk through the list, every member asked, with members of its
// own that have the same history.
#include "cntr/search/region_boxes.h"
#include "tests/ch_core/edgelets.h"
#include "tests/gen/each.h"
#include "tests/gen/probes.h"
#include "tests/support/answer.h"
#include "tests/support/archived.h"
#include "tests/support/region_sets.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using Members = std::vector<Shared>;

const auto kKeep = gkContourDefs::eKeepIntersections;

bool walkInside(const Members& members, const gkVector<2>& p, bool considerHoles) {
    for (const Shared& member : members) {
        if (member->inside(p, considerHoles)) return true;
    }
    return false;
}

double walkDistance(const Members& members, const gkVector<2>& p, bool verticesOnly, bool considerHoles,
                    bool zeroInside) {
    double least = std::numeric_limits<double>::infinity();
    for (const Shared& member : members) {
        const double distance = member->distToPoint(p, verticesOnly, considerHoles, zeroInside);
        if (least > distance) least = distance;
    }
    return least;
}

bool walkSelfIntersecting(const Members& members) {
    bool crosses = false;
    for (const Shared& member : members) crosses = member->isSelfIntersecting() || crosses;
    for (std::size_t i = 0; i + 1 < members.size(); ++i) {
        for (std::size_t j = i + 1; j < members.size(); ++j) {
            if (!members[i]->intersections(*members[j]).empty()) return true;
        }
    }
    return crosses;
}

gkXform<2> stretch(double across, double along) { return gkXform<2>(gkMatrix<2>(across, 0, 0, along), {0, 0}); }

// Shares the identity's key, so that its box may be taken for the identity's.
gkXform<2> sameKeyAsIdentity() { return stretch(1, 3); }

// A set, and the same regions for the walk.
struct Pair {
    Members members;
    Members walked;
    OpenedSet set;

    void add(const gkRegion& region) {
        members.push_back(Shared(new gkRegion(region)));
        walked.push_back(Shared(new gkRegion(region)));
    }
    void listed() { set = OpenedSet(Holes(members.begin(), members.end())); }

    template <class Change> void change(Change apply) {
        apply(members);
        apply(walked);
    }

    void compareInside(const gkVector<2>& p) const {
        for (const bool holes : {false, true})
            EXPECT_EQ(answer([&] { return walkInside(walked, p, holes); }),
                      answer([&] { return set.inside(p, holes); }))
                << p;
    }
    void compareDistances(const gkVector<2>& p) const {
        for (int i = 0; i < 8; ++i) {
            const bool vertices = (i & 1) != 0;
            const bool holes = (i & 2) != 0;
            const bool zero = (i & 4) != 0;
            EXPECT_EQ(answer([&] { return walkDistance(walked, p, vertices, holes, zero); }),
                      answer([&] { return set.distToPoint(p, vertices, holes, zero); }))
                << p << " " << i;
        }
    }
    void compare(const Points& probes) const {
        for (const gkVector<2>& p : probes) {
            compareInside(p);
            compareDistances(p);
            if (testing::Test::HasFailure()) return;
        }
    }
    // What members keep for the identity's key, and what they have left to chance.
    void compareKeptBoxes() const {
        for (std::size_t i = 0; i < members.size(); ++i)
            EXPECT_EQ(answer([&] { return walked[i]->encloseRect(sameKeyAsIdentity()); }),
                      answer([&] { return members[i]->encloseRect(sameKeyAsIdentity()); }))
                << i;
    }
};

constexpr int kSide = 7;

// Squares of side 2 on a lattice of 4: member 7 y + x has its lower corner at (4 x, 4 y).
Pair lattice() {
    Pair pair;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) pair.add(gkRegion(square(4 * x, 4 * y, 2)));
    pair.listed();
    return pair;
}

const Points& latticeProbes() {
    static const Points probes = [] {
        Points all;
        for (int y = -1; y <= 15; ++y)
            for (int x = -1; x <= 15; ++x) all.emplace_back(2 * x, 2 * y);
        for (int i = 0; i < 15; ++i) all.emplace_back(1.9 * i, 27 - 1.7 * i);
        all.emplace_back(500, 500);
        all.emplace_back(std::numeric_limits<double>::quiet_NaN(), 1);
        all.emplace_back(1, std::numeric_limits<double>::infinity());
        return all;
    }();
    return probes;
}

// Corners in any order, so that some cross themselves.
Points smallOutline(gen::Random& random, const gkVector<2>& at, double size) {
    Points outline;
    for (int i = random.integer(3, 8); i > 0; --i)
        outline.push_back(at + gkVector<2>(random.between(-size, size), random.between(-size, size)));
    return outline;
}

Pair randomPair(std::uint64_t seed) {
    gen::Random random(seed);
    const double scales[] = {1.0, 1.0, 1.0, 1e-6, 1e5, 1e-120, 1e-160, 1e138, 1e142};
    const double scale = scales[random.index(9)];
    const bool regular = random.chance(0.7); // no member that throws or has a NaN
    const double reach = random.chance(0.3) ? 10.0 : 200.0;
    Pair pair;
    for (int i = random.integer(1, 300); i > 0; --i) {
        const gkVector<2> at =
            gkVector<2>(random.between(-reach, reach), random.between(-reach, reach)) * scale;
        gkRegion region(smallOutline(random, at, 5 * scale));
        if (random.chance(0.02))
            region.points(gen::shape(gen::kinds()[random.index(gen::kinds().size())], seed));
        if (!regular && random.chance(0.01)) region.points({});
        if (regular && !gk_OwnBox(region)) region.points(square(at.x(), at.y(), scale));
        if (random.chance(0.3) && region.points().size() > 1) {
            const Shared hole(new gkRegion(smallOutline(random, at, scale)));
            const Shared aside(new gkRegion(smallOutline(random, at + gkVector<2>(20, 0) * scale, scale)));
            if (!regular && random.chance(0.1)) aside->points({});
            const bool nested = random.chance(0.3);
            try {
                if (nested) hole->holes({Shared(new gkRegion(square(at.x(), at.y(), scale / 4)))});
                region.holes({hole, aside});
            } catch (const gkContourDefs::BadParams&) { // they meet an outline
                region.holes({});
            }
        }
        pair.add(region);
    }
    pair.listed();
    return pair;
}

Points probesOf(const Pair& pair, std::uint64_t seed) {
    gen::Random random(seed + 1000);
    Points probes;
    for (int i = 0; i < 12; ++i) {
        const gkRegion& region = *pair.members[random.index(pair.members.size())];
        if (region.points().empty()) continue;
        const Points near = gen::probes(region.points(), seed);
        for (int k = 0; k < 4; ++k) probes.push_back(near[random.index(near.size())]);
        for (const auto& hole : region.holes())
            if (!hole->points().empty()) probes.push_back(hole->points().front());
    }
    return probes;
}

Answer refusal(const char* error) {
    Answer refused;
    refused.error = error;
    return refused;
}

struct MemberChange {
    const char* name;
    void (*apply)(const Members&);
};

// Of the member in the middle (12..14), as its holder may make them.
const std::vector<MemberChange> kMemberChanges = {
    {"points", [](const Members& m) { m[24]->points(square(100, 100, 9)); }},
    {"points too few",
     [](const Members& m) {
         m[24]->points({{1, 1}});
     }},
    {"points not moderate",
     [](const Members& m) {
         m[24]->points({{0, 0}, {std::numeric_limits<double>::quiet_NaN(), 3}, {5, 1}, {5, 200}});
     }},
    {"a first vertex of NaN",
     [](const Members& m) {
         m[24]->points({{std::numeric_limits<double>::quiet_NaN(), 3}, {5, 1}, {5, 200}});
     }},
    {"assignment", [](const Members& m) { *m[24] = gkRegion(square(100, 100, 9)); }},
    {"assignment of the contour part",
     [](const Members& m) { static_cast<gkContour&>(*m[24]) = gkContour(square(100, 100, 9), true, 0); }},
    {"assignment of another member", [](const Members& m) { *m[24] = *m[3]; }},
    {"map onto itself", [](const Members& m) { m[24]->map(stretch(9, 9), *m[24]); }},
    {"loading from an archive",
     [](const Members& m) {
         gkRegion source(square(100, 100, 9));
         load(written(source), *m[24]);
     }},
    {"a hole within", [](const Members& m) { m[24]->holes({sharedSquare(12.5, 12.5, 1)}); }},
    {"a hole far outside", [](const Members& m) { m[24]->holes({sharedSquare(100, 100, 9)}); }},
    {"a box of another transform", [](const Members& m) { m[24]->encloseRect(sameKeyAsIdentity()); }},
    {"boxes that push the identity's out",
     [](const Members& m) {
         for (int i = 2; i < 40; ++i) m[24]->encloseRect(stretch(i, i));
         m[24]->encloseRect(sameKeyAsIdentity());
     }},
    {"a small bound of boxes",
     [](const Members& m) {
         m[24]->cachedVectorSize(0);
         m[24]->encloseRect(stretch(2, 2));
         m[24]->encloseRect(sameKeyAsIdentity());
     }},
};

struct ListChange {
    const char* name;
    void (*apply)(Pair&);
};

const std::vector<ListChange> kListChanges = {
    {"add",
     [](Pair& p) {
         p.add(gkRegion(square(100, 100, 9)));
         p.set.add(p.members.back(), kKeep);
     }},
    {"regions",
     [](Pair& p) {
         p.members.pop_back();
         p.walked.pop_back();
         p.set.regions(p.members, kKeep);
     }},
    {"setRegions",
     [](Pair& p) {
         p.members.erase(p.members.begin());
         p.walked.erase(p.walked.begin());
         p.set.setRegions(Holes(p.members.begin(), p.members.end()));
     }},
    {"assignment",
     [](Pair& p) {
         Pair other = lattice();
         for (const Members& members : {other.members, other.walked}) members[7]->points(square(70, 70, 3));
         p.members = other.members;
         p.walked = other.walked;
         p.set = other.set;
     }},
    {"loading from an archive",
     [](Pair& p) {
         p.add(gkRegion(square(100, 100, 9)));
         gkRegionSet source(p.members, kKeep);
         load(written(source), p.set);
     }},
};

} // namespace

TEST(SetSearch, AnswersInsideAndDistancesLikeAWalkThroughTheList) {
    for (std::uint64_t seed = 1; seed <= gen::rounds(200); ++seed) {
        SCOPED_TRACE(seed);
        const Pair pair = randomPair(seed);
        pair.compare(probesOf(pair, seed));
        if (HasFailure()) return;
    }
}

TEST(SetSearch, TellsWhetherRegionsMeetLikeAWalkThroughThePairs) {
    for (std::uint64_t seed = 1; seed <= gen::rounds(200); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        Pair pair;
        // Sparse enough that about half of the sets do not meet.
        for (int i = random.integer(2, 120); i > 0; --i) {
            const gkVector<2> at(random.between(-400, 400), random.between(-400, 400));
            pair.add(gkRegion(square(at.x(), at.y(), random.between(1, 12))));
        }
        if (random.chance(0.1)) pair.add(gkRegion());
        pair.listed();
        EXPECT_EQ(answer([&] { return walkSelfIntersecting(pair.walked); }),
                  answer([&] { return pair.set.isSelfIntersecting(); }));
        pair.compareKeptBoxes();
        if (HasFailure()) return;
    }
}

TEST(SetSearch, FindsSquaresThatTouchInOnePoint) {
    Pair pair = lattice();
    EXPECT_FALSE(pair.set.isSelfIntersecting());
    pair.add(gkRegion({{2, 1}, {3, 0.5}, {3, 1.5}})); // one corner on the right edge of the first
    pair.listed();
    EXPECT_TRUE(pair.set.isSelfIntersecting());
}

TEST(SetSearch, SeesEveryChangeOfAMember) {
    for (const MemberChange& change : kMemberChanges) {
        SCOPED_TRACE(change.name);
        Pair pair = lattice();
        pair.compare(latticeProbes());
        pair.change(change.apply);
        pair.compare(latticeProbes());
        pair.change([](const Members& m) { m[24]->points(square(12, 12, 3)); });
        pair.compare(latticeProbes());
    }
}

TEST(SetSearch, SeesAChangeOfAHole) {
    Pair pair = lattice();
    pair.change([](const Members& m) { m[24]->holes({sharedSquare(12.5, 12.5, 1)}); });
    pair.compare(latticeProbes());
    pair.change(
        [](const Members& m) { const_cast<gkRegion&>(*m[24]->holes().front()).points(square(60, 60, 5)); });
    pair.compareDistances({64, 64});
    pair.compare(latticeProbes());
}

TEST(SetSearch, SeesTheSecondChangeOfAMemberAsWell) {
    Pair pair = lattice();
    for (int i = 0; i < 5; ++i) {
        pair.compare({{13, 13}, {50, 13}, {13, 50}, {101, 101}});
        pair.change([](const Members& m) { m[24]->points(square(100, 100, 9)); });
        pair.compare({{13, 13}, {50, 13}, {13, 50}, {101, 101}});
        pair.change([](const Members& m) { m[24]->points(square(12, 12, 2)); });
    }
}

TEST(SetSearch, FollowsTheList) {
    for (const ListChange& change : kListChanges) {
        SCOPED_TRACE(change.name);
        Pair pair = lattice();
        pair.compare(latticeProbes());
        change.apply(pair);
        pair.compare(latticeProbes());
    }
}

TEST(SetSearch, OfACopyFollowsTheCopysOwnList) {
    Pair pair = lattice();
    pair.compare(latticeProbes());
    Pair copy = pair;
    copy.set.add(sharedSquare(100, 100, 9), kKeep);
    copy.walked.push_back(sharedSquare(100, 100, 9));
    copy.compare(latticeProbes());
    pair.compare(latticeProbes());
    pair.change([](const Members& m) { m[24]->points(square(70, 70, 9)); });
    pair.compare(latticeProbes());
    copy.compare(latticeProbes());
}

TEST(SetSearch, LeavesMembersWithTheBoxesAWalkWouldHaveAskedFor) {
    // The last probe decides how far the walk has come: up to the member that holds it.
    for (const int reached : {0, 10, 30, 48}) {
        SCOPED_TRACE(reached);
        const Pair pair = lattice();
        const gkVector<2> p(4 * (reached % kSide) + 1, 4 * (reached / kSide) + 1);
        for (int i = 0; i < 4; ++i) pair.compareInside(p);
        pair.compareKeptBoxes();
    }
}

TEST(SetSearch, ADistanceWithZeroInsideLeavesMembersWithTheirBoxes) {
    const Pair pair = lattice();
    for (int i = 0; i < 4; ++i) pair.compareDistances({13, 13});
    pair.compareKeptBoxes();
}

TEST(SetSearch, AMemberWithoutVerticesThrowsOnlyBehindOneThatHoldsThePoint) {
    Pair pair = lattice();
    pair.change([](const Members& m) { m[24]->points({}); });
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(pair.set.inside({1, 1}, false));
        EXPECT_THROW(pair.set.inside({25, 25}, false), gkContourDefs::EmptyContour);
        EXPECT_THROW(pair.set.distToPoint({1, 1}, false, false, true), gkContourDefs::EmptyContour);
    }
    EXPECT_THROW(pair.set.isSelfIntersecting(), gkContourDefs::EmptyContour);
    EXPECT_FALSE(pair.set.isSelfIntersecting()) << "the value reached by then";
}

TEST(SetSearch, ARingOfHolesIsRefusedWhereThePointIsInside) {
    Pair pair = lattice();
    const Shared outer = sharedSquare(12, 12, 2);
    const Shared inner = sharedSquare(12.5, 12.5, 1);
    outer->holes({inner});
    inner->holes({outer});
    Holes list(pair.members.begin(), pair.members.end());
    list[24] = outer;
    pair.set.regions(list, kKeep);
    for (int i = 0; i < 4; ++i) {
        EXPECT_THROW(pair.set.inside({13, 13}, true), gkContourDefs::BadParams);
        EXPECT_THROW(pair.set.distToPoint({13, 13}, false, true, true), gkContourDefs::BadParams);
        EXPECT_TRUE(pair.set.inside({13, 13}, false));
        EXPECT_TRUE(pair.set.inside({25, 25}, true));
    }
    inner->forgetHandles(); // or the ring would keep itself alive
}

TEST(SetSearch, TheEarlierOfTwoMembersAroundThePointDecides) {
    const Shared ring = sharedSquare(12, 12, 2);
    const Shared inner = sharedSquare(12.5, 12.5, 1);
    ring->holes({inner});
    inner->holes({ring});
    for (int place = 0; place < kSide * kSide; ++place) {
        if (place == 24) continue;
        const Pair pair = lattice();
        Holes list(pair.members.begin(), pair.members.end());
        list[24] = ring;
        list[static_cast<std::size_t>(place)] = sharedSquare(-10, -10, 60); // around all
        const gkRegionSet set(list);
        for (int i = 0; i < 3; ++i) {
            const Answer expected = place < 24 ? answer([] { return true; }) : refusal("BadParams");
            EXPECT_EQ(expected, answer([&] { return set.inside({13, 13}, true); })) << place;
        }
    }
    inner->forgetHandles(); // or the ring would keep itself alive
}

// Just beyond an edge within 1e-6 a region counts as holding the point, if only its box does: the edge is not
// counted, the one behind it is. A box three times as high does.
TEST(SetSearch, TakesTheBoxThatAMemberKeepsForAnotherTransform) {
    const gkVector<2> beyond(13, 2 + 5e-7);
    for (const int asked : {0, 1, 2, 3}) { // times before the box is there
        SCOPED_TRACE(asked);
        Pair pair = lattice();
        // The first member holds the point and ends the walk, so the others have not been asked for a box yet.
        for (int i = 0; i < asked; ++i) pair.compareInside({1, 1});
        pair.change([](const Members& m) { m[3]->encloseRect(sameKeyAsIdentity()); });
        for (int i = 0; i < 3; ++i) EXPECT_TRUE(pair.set.inside(beyond, false));
        pair.compare(latticeProbes());
    }
}

TEST(SetSearch, AMemberThatLostItsBoxIsAskedForItAgain) {
    Pair pair = lattice();
    for (int i = 0; i < 3; ++i) pair.compareInside({500, 500});
    pair.change([](const Members& m) {
        m[24]->cachedVectorSize(0);
        m[24]->encloseRect(stretch(2, 2));
    });
    for (int i = 0; i < 3; ++i) pair.compareInside({500, 500});
    pair.compareKeptBoxes();
}

TEST(SetSearch, ANullHandleIsRefusedWhenItIsAsked) {
    Pair pair = lattice();
    Holes list(pair.members.begin(), pair.members.end());
    list[24] = gkPtrHandle_const<gkRegion>();
    const gkRegionSet set(list);
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(set.inside({1, 1}, false));
        EXPECT_THROW(set.inside({25, 25}, false), gkBadPointer);
        EXPECT_THROW(set.distToPoint({1, 1}, true, false, false), gkBadPointer);
    }
}

TEST(SetSearch, ANullHandleAsAHoleIsRefusedWhenItIsAsked) {
    const Pair pair = lattice();
    gkRegion square(*pair.members[24]);
    Bytes bytes = written(square);
    bytes[bytes.size() - 4] = 1; // holes, of which none follows; now one, of no object
    bytes.insert(bytes.end(), 4, 0);
    load(bytes, *pair.members[24]);
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(pair.set.inside({1, 1}, true));
        EXPECT_TRUE(pair.set.inside({13, 13}, false));
        EXPECT_THROW(pair.set.inside({13, 13}, true), gkBadPointer);
        EXPECT_THROW(pair.set.distToPoint({13, 13}, false, true, false), gkBadPointer);
    }
}

// The squares of their distances are nothing, so there is nothing to order them by.
TEST(SetSearch, OfTinyRegionsAboutTheOriginAnswersLikeAWalk) {
    Pair pair;
    for (int i = 0; i < 40; ++i) pair.add(gkRegion(square(i * 1e-110, -i * 1e-110, 1e-111)));
    pair.listed();
    for (int i = 0; i < 4; ++i) pair.compare({{0, 0}, {1e-110, 2e-110}, {3.5e-109, -3.5e-109}, {1, 1}});
}

// Of the identity's key less and greater ones: neither takes its place.
TEST(SetSearch, BoxesOfOtherTransformsLeaveTheIdentitysAlone) {
    const Pair pair = lattice();
    for (int i = 0; i < 3; ++i) pair.compareInside({13, 13});
    for (const double by : {-5.0, 5.0}) {
        for (const Members& members : {pair.members, pair.walked})
            members[24]->encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 1), {by, 0}));
        pair.compareInside({13, 13});
        pair.compareDistances({13, 13});
    }
    pair.compareKeptBoxes();
}

TEST(SetSearch, OfAnEdgeletSetSeesChangedData) {
    std::vector<gkPtrHandle<EdgeletRegion>> members;
    for (int i = 0; i < 40; ++i) {
        members.emplace_back(new EdgeletRegion(edgelets("0 0, 2 0, 2 2, 0 2", 1.0), 0));
        members.back()->points(square(4 * i, 0, 2));
    }
    const EdgeletSet set(members);
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(set.inside({41, 1}, false));
        EXPECT_EQ(1.0, set.distToPoint({41, 3}, false, false, false));
    }
    members[10]->data(edgelets("40 50, 42 50, 42 52, 40 52", 1.0));
    for (int i = 0; i < 4; ++i) {
        EXPECT_FALSE(set.inside({41, 1}, false));
        EXPECT_TRUE(set.inside({41, 51}, false));
        EXPECT_EQ(1.0, set.distToPoint({41, 53}, false, false, false));
    }
}
