// tests/cntr/triangle_fan_test.cpp - triangles of a fan two at a time. Oracle: tests/oracle/inertia.h, one by
// one.
#include "cntr/triangle_fan.h"
#include "tests/gen/each.h"
#include "tests/gen/random.h"
#include "tests/oracle/inertia.h"
#include "tests/support/answer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using gen::Points;

Answer asAnswer(const oracle::Inertia& m) {
    Answer result;
    for (const double value : {m.area, m.center.x(), m.center.y(), m.xx, m.yy, m.xy}) result.add(value);
    return result;
}

Answer asAnswer(const gk_InertiaPiece& piece) {
    const gkVector<2> center = gk_VectorOf(piece.center);
    const gkVector<2> squares = gk_VectorOf(piece.squares);
    return asAnswer(oracle::Inertia{piece.area, center, squares.x(), squares.y(), piece.xy});
}

void expectDefinitions(const gkVector<2>& hub, const Points& points) {
    std::size_t i = 0;
    gk_TriangleFan::forEach(hub, points, [&](const gk_InertiaPiece& piece) {
        const gkVector<2>& previous = points[i == 0 ? points.size() - 1 : i - 1];
        EXPECT_EQ(asAnswer(oracle::triangleInertia(hub, previous, points[i])), asAnswer(piece)) << "edge " << i;
        ++i;
    });
    EXPECT_EQ(points.size(), i);
}

} // namespace

TEST(TriangleFan, AboutAnyHubIsTheDefinitions) {
    gen::eachShape(100, [](const Points& points, std::uint64_t seed) {
        if (points.empty()) return;
        gen::Random random(seed);
        const gkVector<2>& vertex = points[random.index(points.size())];
        expectDefinitions(gkVector<2>(), points);
        expectDefinitions(vertex, points);
        expectDefinitions(vertex + gkVector<2>(random.between(-9.0, 9.0), random.between(-9.0, 9.0)), points);
    });
}

// Feet that fall beside an end by about the slack of 1e-10, where height and slack decide together.
TEST(TriangleFan, FeetBesideAnEndAreDecidedAsDefined) {
    gen::Random random(5);
    for (std::uint64_t round = 0; round < gen::rounds(2000); ++round) {
        const double size = std::pow(10.0, random.between(-6.0, 6.0));
        const gkVector<2> hub(random.between(-1.0, 1.0) * size, random.between(-1.0, 1.0) * size);
        Points points;
        for (int i = 0; i < 40; ++i) {
            const double beside = random.chance(0.2) ? 0.0 : std::pow(10.0, random.between(-12.0, -3.0));
            const double height = std::pow(10.0, random.between(-3.0, 3.0));
            const gkVector<2> end = hub + gkVector<2>(random.chance(0.5) ? size : 0.0, 0.0);
            points.push_back(hub + gkVector<2>(size, 0.0));
            points.push_back(end + gkVector<2>(random.chance(0.5) ? beside : -beside, height));
        }
        expectDefinitions(hub, points);
        if (HasFailure()) return;
    }
}

// Triangles so thin, small or large that products would leave the ordinary numbers.
TEST(TriangleFan, OfExtremeSizesIsTheDefinitions) {
    gen::Random random(6);
    for (std::uint64_t round = 0; round < gen::rounds(2000); ++round) {
        Points points;
        for (int i = 0; i < 12; ++i) {
            const double width = std::pow(10.0, random.between(-170.0, 170.0));
            const double height = random.chance(0.5) ? width : std::pow(10.0, random.between(-170.0, 170.0));
            points.emplace_back(random.between(-1.0, 1.0) * width, random.between(-1.0, 1.0) * height);
        }
        expectDefinitions(points[random.index(points.size())] * 0.5, points);
        if (HasFailure()) return;
    }
}

TEST(TriangleFan, AThirdRoundsAsADivision) {
    gen::Random random(7);
    for (std::uint64_t i = 0; i < gen::rounds(1000000); ++i) {
        double x = std::ldexp(random.between(-1.0, 1.0), random.integer(-900, 900));
        if (random.chance(0.5)) x = 3.0 * x; // thirds that are doubles, or nearly
        if (random.chance(0.5)) x = std::nextafter(x, random.chance(0.5) ? 0.0 : 1e300);
        ASSERT_EQ(x / 3.0, gk_TriangleFan::third(gk_TwoDoubles(x)).first()) << x;
    }
    EXPECT_FALSE(std::signbit(gk_TriangleFan::third(gk_TwoDoubles(0.0)).first()));
}
