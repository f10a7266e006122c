// Nearest segments, nearest vertices and vertices within a tolerance from trees. Oracle: tests/oracle/closest.h
// and vertex_cells.h, every segment, no shortcut.
#include "cntr/search/nearest.h"

#include "cntr/search/magnitude.h"
#include "cntr/search/vertex_cells.h"
#include "platform/core/shapes/line_ops.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/vertex_cells.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using gen::Points;

gkVector<2> pointOn(const gk_Segments& segments, std::size_t k, const gkVector<2>& p) {
    if (k == kNoSegment) return gkVector<2>();
    return gk_LineOps::closestPoint(gkLineSeg(segments.first(k), segments.second(k)), p);
}

} // namespace

TEST(NearestSearch, ScanFindsThePlainNearestPoint) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        for (const bool closed : {false, true}) {
            const gk_Segments segments(points, closed);
            for (const gkVector<2>& p : gen::probes(points, seed)) {
                ASSERT_EQ(answer([&] { return oracle::closestPoint(points, closed, p, false); }),
                          answer([&] { return pointOn(segments, gk_NearestSegment(segments, p), p); }))
                    << p;
            }
        }
    });
}

// The square of a length below 1e-140 has lost its bits, so what is computed from it may come out nearer than
// the segment's box allows; such a segment is asked wherever it lies, its neighbours in the run only where they
// may be best.
TEST(NearestSearch, ScanAsksSegmentsTooShortForTheirBox) {
    for (const double tiny : {1e-150, 1e-160, 1e-200, 3e-320}) {
        Points points;
        for (int i = 0; i < 4; ++i) points.emplace_back(tiny * (i % 2), tiny * (i / 2));
        for (int i = 1; i < 200; ++i) points.emplace_back(i, 0.25 * (i % 3));
        for (const bool closed : {false, true}) {
            const gk_Segments segments(points, closed);
            for (const gkVector<2>& p :
                 {gkVector<2>(120, 1), gkVector<2>(64.5, 0.1), gkVector<2>(0, 1), gkVector<2>(2.5, 0.5)}) {
                EXPECT_EQ(answer([&] { return oracle::closestPoint(points, closed, p, false); }),
                          answer([&] { return pointOn(segments, gk_NearestSegment(segments, p), p); }))
                    << tiny << ' ' << p;
            }
        }
    }
}

TEST(NearestSearch, TreeFindsTheSegmentOfTheScan) {
    std::uint64_t trees = 0;
    search::each(12, [&](const Points& points, std::uint64_t seed) {
        for (const bool closed : {false, true}) {
            const gk_Segments segments(points, closed);
            const auto tree = gk_SegmentTree::of(segments);
            if (!tree) continue;
            ++trees;
            for (const gkVector<2>& p : gen::probes(points, seed)) {
                if (!gk_IsModerate(p)) continue;
                ASSERT_EQ(gk_NearestSegment(segments, p), gk_NearestSegment(segments, *tree, p)) << p;
            }
        }
    });
    EXPECT_LT(gen::rounds(300), trees);
}

TEST(NearestSearch, TreeFindsThePlainNearestVertex) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        const auto tree = gk_VertexTree::of(points);
        if (!tree || points.size() < 2) return;
        for (const gkVector<2>& p : gen::probes(points, seed)) {
            if (!gk_IsModerate(p)) continue;
            ASSERT_EQ(oracle::closestVertexIndex(points, p),
                      static_cast<long>(gk_NearestVertex(points, *tree, p)))
                << p;
        }
    });
}

TEST(NearestSearch, CellsFindTheSegmentAndTheVertexOfTheScan) {
    int found = 0;
    int asked = 0;
    search::each(12, [&](const Points& points, std::uint64_t seed) {
        for (const bool closed : {false, true}) {
            const gk_Segments segments(points, closed);
            const auto grid = gk_CellGrid::of(segments);
            if (!grid) continue;
            const gk_SegmentCells cells(*grid, segments);
            for (const gkVector<2>& p : gen::probes(points, seed)) {
                if (!gk_IsModerate(p)) continue;
                ++asked;
                if (const auto vertex = gk_NearestVertex(segments, cells, p)) {
                    ASSERT_EQ(gk_NearestVertex(points, p), *vertex) << p;
                }
                const auto segment = gk_NearestSegment(segments, cells, p);
                if (!segment) continue;
                ++found;
                ASSERT_EQ(gk_NearestSegment(segments, p), *segment) << p;
            }
        }
    });
    EXPECT_LT(asked / 4, found); // the rest is far away or outside the box
}

TEST(NearestSearch, CellsListEverySegmentThatComesNear) {
    search::each(4, [](const Points& points, std::uint64_t) {
        const gk_Segments segments(points, true);
        const auto grid = gk_CellGrid::of(segments);
        if (!grid || grid->size() > 3000) return;
        const gk_SegmentCells cells(*grid, segments);
        for (std::size_t row = 0; row < grid->rows(); ++row) {
            for (std::size_t column = 0; column < grid->columns(); ++column) {
                const auto list = cells.segmentsIn(column, row);
                EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
                const gk_Box cell = {grid->leftOf(column), grid->bottomOf(row), grid->leftOf(column + 1),
                                     grid->bottomOf(row + 1)};
                for (std::size_t k = 0; k < segments.size(); ++k) {
                    // Places along the segment stand for all of it.
                    const gkVector<2> along = segments.second(k) - segments.first(k);
                    bool isInside = false;
                    for (int step = 0; step <= 8; ++step)
                        isInside = isInside || cell.holds(segments.first(k) + along * (step / 8.0));
                    if (!isInside) continue;
                    ASSERT_TRUE(std::binary_search(list.begin(), list.end(), k)) << k;
                }
            }
        }
    });
}

TEST(NearestSearch, TreeFindsTheVerticesWithinATolerance) {
    search::each(4, [](const Points& points, std::uint64_t seed) {
        const auto tree = gk_VertexTree::of(points);
        if (!tree || points.size() < 2) return;
        gk_VertexCells cells;
        for (const double tolerance : gen::tolerances(points)) {
            for (const gkVector<2>& p : gen::probes(points, seed)) {
                ASSERT_EQ(answer([&] { return oracle::vertexIndex(points, p, tolerance); }),
                          answer([&] { return cells.near(points, &*tree, p, tolerance); }))
                    << p << tolerance;
            }
        }
    });
}

// The square of the vertex's distance is 2.4 times the least double and rounds to 2 of them, so the distance
// comes out below the tolerance that the vertex lies beyond.
TEST(NearestSearch, VertexThatUnderflowBringsWithinATinyToleranceIsFound) {
    const Points points = {{3.4434e-162, 0}, {0, 9e-162}, {9e-162, 9e-162}};
    const gkVector<2> p(0, 0);
    const double tolerance = 3.3e-162;
    ASSERT_LT(points[0].distance(p), tolerance);
    ASSERT_GT(points[0].x(), tolerance);
    const auto tree = gk_VertexTree::of(points);
    ASSERT_TRUE(tree);
    gk_VertexCells cells;
    EXPECT_EQ(std::vector<int>{0}, oracle::vertexIndex(points, p, tolerance));
    EXPECT_EQ(std::vector<int>{0}, cells.near(points, &*tree, p, tolerance));
    EXPECT_EQ(std::vector<int>{0}, cells.near(points, &*tree, p, tolerance)) << "asked again";
}

TEST(NearestSearch, TreesRefuseNumbersBeyondTheirBounds) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const gkVector<2>& bad : {gkVector<2>(nan, 0), gkVector<2>(0, 2e140), gkVector<2>(-INFINITY, 0)}) {
        const Points points = {{0, 0}, bad, {1, 1}};
        EXPECT_FALSE(gk_SegmentTree::of(gk_Segments(points, true)));
        EXPECT_FALSE(gk_VertexTree::of(points));
    }
    const Points tiny = {{0, 0}, {1e-150, 0}, {1, 1}};
    EXPECT_FALSE(gk_SegmentTree::of(gk_Segments(tiny, true)));
    EXPECT_TRUE(gk_VertexTree::of(tiny));
    EXPECT_FALSE(gk_SegmentTree::of(gk_Segments({}, true)));
    EXPECT_FALSE(gk_VertexTree::of({}));
}
