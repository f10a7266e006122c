// Inside or not without a ray, and the ray's direction from a tree. Oracle: tests/oracle/inside_count.h.
#include "cntr/measures.h"
#include "cntr/search/inside_cells.h"
#include "cntr/search/inside_scan.h"
#include "cntr/search/magnitude.h"
#include "cntr/search/ray_direction.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/inside_count.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <cmath>
#include <limits>

namespace {

using gen::Points;

// The kind's own probes and places all over the box.
Points probes(const Points& points, std::uint64_t seed) {
    Points list = gen::probes(points, seed);
    gen::Random random(seed);
    const gkRect box = gk_EncloseRect(points, gkXform<2>());
    for (int i = 0; i < 60; ++i)
        list.emplace_back(random.between(box.ul().x(), box.lr().x()),
                          random.between(box.ul().y(), box.lr().y()));
    return list;
}

struct Counts {
    int known = 0;
    int asked = 0;

    void add(gk_Inside answer) {
        ++asked;
        if (answer != gk_Inside::eUnknown) ++known;
    }
};

// What cells know of an outline, and the certificate of its rays. The vertices must outlive it.
class ByCells {
public:
    static std::optional<ByCells> of(const Points& points) {
        const gk_Segments outline(points, true);
        const std::optional<gk_CellGrid> grid = gk_CellGrid::of(outline);
        if (!grid) return std::nullopt;
        return ByCells(points, outline, *grid);
    }

    bool allowRaysFrom(const gkVector<2>& p) const { return certificate_.allowsRaysFrom(p); }
    gk_Inside inside(const gkVector<2>& p) const { return gk_InsideByCells(outline_, cells_, certificate_, p); }

private:
    ByCells(const Points& points, const gk_Segments& outline, const gk_CellGrid& grid)
        : outline_(outline),
          certificate_(points.size(), points.front(), 2.0 * gk_CircleAroundFirst(points).radius(), grid.box()),
          cells_(gk_SegmentCells(grid, outline).withParity(outline)) {}

    gk_Segments outline_;
    gk_InsideCertificate certificate_;
    gk_SegmentCells cells_;
};

bool isInside(gk_Inside answer) { return answer == gk_Inside::eInside; }

} // namespace

TEST(InsideSearch, WhatAScanKnowsIsThePlainAnswer) {
    Counts counts;
    search::each(12, [&](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        const gk_Segments outline(points, true);
        const gkRect box = gk_EncloseRect(points, gkXform<2>());
        for (const gkVector<2>& p : probes(points, seed)) {
            if (!box.within(p) || !gk_IsModerate(p)) continue;
            const gk_InsideScan scan = gk_ScanInside(outline, p);
            counts.add(scan.inside);
            if (scan.box) {
                ASSERT_EQ(
                    answer([&] { return box; }), answer([&] {
                        return gkRect::fromCorners({scan.box->x0, scan.box->y0}, {scan.box->x1, scan.box->y1});
                    }));
            }
            if (scan.inside == gk_Inside::eUnknown) continue;
            ASSERT_EQ(oracle::insideCount(points, p, false) % 2 == 1, isInside(scan.inside)) << p;
        }
    });
    EXPECT_LT(counts.asked / 3, counts.known); // the rest lies on edges and at vertices
}

TEST(InsideSearch, AScanTakesTheBoxOfModerateNumbersOnly) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const gkVector<2>& bad : {gkVector<2>(nan, 9), gkVector<2>(9, nan), gkVector<2>(0, 2e140),
                                   gkVector<2>(-INFINITY, 0), gkVector<2>(INFINITY, 9)}) {
        for (std::size_t place = 0; place < 6; ++place) {
            Points points = {{0, 0}, {1, 0}, {2, 5}, {1, 1}, {0, 7}, {-1, 3}};
            points[place] = bad;
            const gk_InsideScan scan = gk_ScanInside(gk_Segments(points, true), {0.5, 0.25});
            EXPECT_FALSE(scan.box) << place << bad;
            EXPECT_EQ(gk_Inside::eUnknown, scan.inside) << place << bad;
        }
    }
}

// Where a ray may be twice 1.2e6 long, it could be parallel to a segment beside a vertex as near as a scan
// allows.
TEST(InsideSearch, AScanOfAnOutlineTooWideForItsMarginsKnowsNothing) {
    for (const bool isUpright : {false, true}) {
        const auto inside = [&](double reach) {
            Points points = {{-reach, -5}, {reach, -5}, {reach, 5}, {-reach, 5}};
            if (isUpright)
                for (gkVector<2>& p : points) p = gkVector<2>(p.y(), p.x());
            return gk_ScanInside(gk_Segments(points, true), {1, 1}).inside;
        };
        EXPECT_EQ(gk_Inside::eInside, inside(6e4));
        EXPECT_EQ(gk_Inside::eUnknown, inside(6e5));
    }
}

TEST(InsideSearch, WhatCellsKnowIsThePlainAnswer) {
    Counts counts;
    search::each(12, [&](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        const std::optional<ByCells> cells = ByCells::of(points);
        if (!cells) return;
        for (const gkVector<2>& p : probes(points, seed)) {
            if (!gk_IsModerate(p) || !cells->allowRaysFrom(p)) continue;
            const gk_Inside known = cells->inside(p);
            counts.add(known);
            if (known == gk_Inside::eUnknown) continue;
            ASSERT_EQ(oracle::insideCount(points, p, false) % 2 == 1, isInside(known)) << p;
        }
    });
    EXPECT_LT(counts.asked / 3, counts.known); // the rest lies on edges and at vertices
}

TEST(InsideSearch, FlatOutlinesHaveNoCells) {
    for (const gkVector<2>& size : {gkVector<2>(100, 1e-9), gkVector<2>(1e-9, 100), gkVector<2>(0, 0)}) {
        const Points points = {{0, 0}, {size.x(), 0}, size, {0, size.y()}};
        EXPECT_FALSE(gk_CellGrid::of(gk_Segments(points, true))) << size;
    }
    const Points square = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    EXPECT_TRUE(gk_CellGrid::of(gk_Segments(square, true)));
}

// 3000 segments that all lie in the cell at a corner.
TEST(InsideSearch, CellsThatListTooManySegmentsKnowNothing) {
    Points points = {{100, 0}, {100, 100}, {0, 100}};
    for (int i = 0; i < 3000; ++i) points.emplace_back(0.2 * (i % 2), 0.5 - 0.5 * i / 3000.0);
    const std::optional<ByCells> cells = ByCells::of(points);
    ASSERT_TRUE(cells);
    EXPECT_EQ(gk_Inside::eUnknown, cells->inside({0.3, 0.3}));
    EXPECT_EQ(gk_Inside::eInside, cells->inside({50, 50}));
}

TEST(InsideSearch, TreeSendsTheRayWhereThePlainScanDoes) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        const gk_Segments outline(points, true);
        const auto tree = gk_SegmentTree::of(outline);
        if (!tree) return;
        for (const gkVector<2>& p : probes(points, seed)) {
            if (!gk_IsModerate(p)) continue;
            const auto plain = gk_RayDirection(outline, p);
            const auto fast = gk_RayDirection(outline, *tree, p);
            ASSERT_EQ(plain.has_value(), fast.has_value()) << p;
            if (plain) {
                ASSERT_EQ(answer([&] { return *plain; }), answer([&] { return *fast; })) << p;
            }
        }
    });
}

// The first gap that is wide at all, near the x direction, where directions are first known by a series: by how
// little it is wide, and whether the search stops within it and goes on from there, must not matter.
TEST(InsideSearch, TreeFindsAGapThatIsWideByAHair) {
    constexpr std::size_t kCount = 2000;
    const double step = std::acos(-1.0) / static_cast<double>(kCount);
    const gkVector<2> point(0.0, 0.0);
    for (double before = 0.0005; before < 0.03; before += 0.0004) {
        for (const double more : {1e-11, 1e-8, 0.4 * step}) {
            std::vector<double> angles;
            for (double angle = before; angle > 0.0; angle -= 0.6 * step) angles.push_back(angle);
            const double after = before + step + more;
            const double rest = (6.28 - after) / static_cast<double>(kCount - angles.size());
            for (double angle = after; angles.size() < kCount; angle += rest) angles.push_back(angle);
            Points points;
            for (const double angle : angles)
                points.emplace_back(50.0 * std::cos(angle), 50.0 * std::sin(angle));

            const gk_Segments outline(points, true);
            const auto tree = gk_SegmentTree::of(outline);
            ASSERT_TRUE(tree);
            const auto fast = gk_RayDirection(outline, *tree, point);
            ASSERT_TRUE(fast);
            EXPECT_NEAR(before + (step + more) / 2.0, std::atan2(fast->y(), fast->x()), 1e-14)
                << before << ' ' << more;
            EXPECT_EQ(answer([&] { return *gk_RayDirection(outline, point); }), answer([&] { return *fast; }));
        }
    }
}

// A vertex so little below the x direction that its own direction is computed as zero comes first of all.
TEST(InsideSearch, TreeBeginsWithADirectionThatRoundsToZero) {
    constexpr std::size_t kCount = 200;
    constexpr double kFirst = 0.02;
    constexpr double kStep = 0.031; // both wider than pi / 200
    Points points = {{50, 0}};
    for (std::size_t i = 1; i < kCount; ++i) {
        const double angle = kFirst + kStep * static_cast<double>(i - 1);
        points.emplace_back(50.0 * std::cos(angle), 50.0 * std::sin(angle));
    }
    const gk_Segments outline(points, true);
    const auto tree = gk_SegmentTree::of(outline);
    ASSERT_TRUE(tree);
    const auto rayFrom = [&](double y) {
        const auto fast = gk_RayDirection(outline, *tree, {0, y});
        EXPECT_EQ(answer([&] {
                      return gk_RayDirection(outline, {0, y}).value();
                  }),
                  answer([&] { return fast.value(); }))
            << y;
        return fast ? std::atan2(fast->y(), fast->x()) : 0.0;
    };
    EXPECT_NEAR(kFirst / 2.0, rayFrom(0.0), 1e-12);
    EXPECT_NEAR(kFirst / 2.0, rayFrom(std::numeric_limits<double>::denorm_min()), 1e-12);
    EXPECT_NEAR(kFirst + kStep / 2.0, rayFrom(1e-310), 1e-12);
    EXPECT_NEAR(kFirst + kStep / 2.0, rayFrom(1e-290), 1e-12);
}

// The first gap that seems wide is narrower than a wide one by less than the room that is given to angles.
TEST(InsideSearch, TreePassesOverAGapThatIsNarrowByLessThanAnAnglesRoom) {
    constexpr std::size_t kCount = 2000;
    const double step = std::acos(-1.0) / static_cast<double>(kCount);
    for (const double less : {0.0, 3e-13, 1e-12}) {
        std::vector<double> angles;
        for (double angle = 0.9 * step; angle < 5.0 * step; angle += 0.9 * step) angles.push_back(angle);
        angles.push_back(angles.back() + step - less);
        angles.push_back(angles.back() + 1.5 * step);
        const double middle = angles.back() - 0.75 * step;
        const double rest = (6.28 - angles.back()) / static_cast<double>(kCount - angles.size());
        while (angles.size() < kCount) angles.push_back(angles.back() + rest);
        Points points;
        for (const double angle : angles) points.emplace_back(50.0 * std::cos(angle), 50.0 * std::sin(angle));
        const gk_Segments outline(points, true);
        const auto tree = gk_SegmentTree::of(outline);
        ASSERT_TRUE(tree);
        const auto fast = gk_RayDirection(outline, *tree, {0, 0});
        ASSERT_TRUE(fast);
        EXPECT_EQ(answer([&] {
                      return *gk_RayDirection(outline, {0, 0});
                  }),
                  answer([&] { return *fast; }))
            << less;
        if (less == 0.0) continue; // rounding decides
        EXPECT_NEAR(middle, std::atan2(fast->y(), fast->x()), 1e-14) << less;
    }
}

TEST(InsideSearch, RayOfFarCoordinatesIsNotCertified) {
    // At 1e10 a crossing is computed some 1e-6 off its segments, and the plain count misses some.
    const gk_InsideCertificate certificate(4, {1e10, 0}, 2e10, {0, 0, 1e10, 1e10});
    EXPECT_FALSE(certificate.allowsRaysFrom({5e9, 1e9}));
}

TEST(InsideSearch, NoCertifiedRayCanBeParallelToASegmentThatItMeets) {
    for (double size = 1.0; size < 1e9; size *= 1.5) {
        const double longest = 2.0 * std::sqrt(2.0) * size; // the ray, and no segment is longer
        const gk_InsideCertificate certificate(4, {0, 0}, longest, {0, 0, size, size});
        EXPECT_EQ(size < 2.29e6, certificate.isExact()) << size; // 512 u (size + longest) = 5e-7
        if (certificate.isExact()) {
            EXPECT_LT(4.0 * gkLine::kParallelSine, 2.0 * certificate.margins().segment / longest) << size;
        }
    }
}

TEST(InsideSearch, WhatCellsKnowOfAWideCombIsThePlainAnswer) {
    constexpr int kTeeth = 200;
    for (const double width : {1e5, 1e6, 2e6}) {
        gen::Random random(static_cast<std::uint64_t>(width));
        const double pitch = width / kTeeth;
        Points points;
        for (int i = 0; i < kTeeth; ++i) {
            const double x = i * pitch;
            points.emplace_back(x, random.unit());
            points.emplace_back(x + random.unit(), width - random.unit());
            points.emplace_back(x + pitch / 2.0, width - random.unit());
            points.emplace_back(x + pitch / 2.0, random.unit());
        }
        points.emplace_back(width, -1.0);
        points.emplace_back(0.0, -1.0);
        const std::optional<ByCells> cells = ByCells::of(points);
        ASSERT_TRUE(cells);
        int known = 0;
        for (int i = 0; i < 300; ++i) {
            // Half of them some touches beside a tooth.
            const double beside = (random.unit() - 0.5) * std::pow(10.0, random.between(-6.0, -3.0));
            const double tooth = std::floor(random.between(0.0, kTeeth)) * pitch + pitch / 2.0 + beside;
            const gkVector<2> p(i % 2 == 0 ? tooth : random.between(0.0, width), random.between(0.0, width));
            const gk_Inside inside = cells->allowRaysFrom(p) ? cells->inside(p) : gk_Inside::eUnknown;
            if (inside == gk_Inside::eUnknown) continue;
            ++known;
            ASSERT_EQ(oracle::insideCount(points, p, false) % 2 == 1, isInside(inside)) << p;
        }
        EXPECT_LT(200, known) << width;
    }
}

TEST(InsideSearch, RayThatMayEndInsideIsNotCertified) {
    // The first vertex is the middle of a square on its corner, so D is 100, and from a corner of the box a ray
    // may end inside.
    const Points square = {{0, 0}, {50, 0}, {0, 50}, {-50, 0}, {0, -50}};
    const double rayLength = 2.0 * gk_CircleAroundFirst(square).radius();
    const gk_InsideCertificate certificate(square.size(), square.front(), rayLength, {-50, -50, 50, 50});
    EXPECT_FALSE(certificate.allowsRaysFrom({-49, -49}));
    EXPECT_TRUE(certificate.allowsRaysFrom({-20, -20}));
    EXPECT_FALSE(certificate.allowsEnd({20, 20}));
    EXPECT_TRUE(certificate.allowsEnd({-49, 51}));
}
