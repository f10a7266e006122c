// Every function on vertex lists against its definition in tests/oracle, bit for bit.
#include "cntr/moments.h"
#include "platform/core/fit/ellipse_fit.h"
#include "tests/gen/each.h"
#include "tests/oracle/ellipse.h"
#include "tests/support/answer.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using gen::Points;

std::vector<gkEdgelet> edgelets(const Points& points) {
    std::vector<gkEdgelet> list;
    for (const gkVector<2>& p : points) list.emplace_back(p, static_cast<unsigned short>(9), gkAngle8(200));
    return list;
}

Answer asAnswer(const oracle::Inertia& m) {
    Answer result;
    result.add(m.area);
    result.add(m.center);
    result.add(gkMatrix<2>(m.xx, m.xy, m.xy, m.yy));
    return result;
}

Answer asAnswer(const gk_InertiaData& data) {
    Answer result;
    result.add(data.area());
    result.add(data.centerOfMass());
    result.add(data.inertiaMatrix());
    return result;
}

oracle::Inertia record(const gk_InertiaData& data) {
    const gkMatrix<2>& m = data.inertiaMatrix();
    return {data.area(), data.centerOfMass(), m.element(0, 0), m.element(1, 1), m.element(0, 1)};
}

// Zero, NaN, equal and opposite areas among ordinary ones.
gk_InertiaData randomPiece(gen::Random& random) {
    const double areas[] = {0.0, -0.0, 1.0, -1.0, 1e-16, -1e-17, std::numeric_limits<double>::quiet_NaN()};
    const double area = random.chance(0.5) ? areas[random.index(7)] : random.between(-4.0, 4.0);
    const auto any = [&] { return random.between(-9.0, 9.0); };
    const double mixed = any();
    return gk_InertiaData(area, {any(), any()}, gkMatrix<2>(any(), mixed, mixed, any()));
}

} // namespace

TEST(MomentsOracle, AreaIsTheDefinitions) {
    gen::eachShape(300, [](const Points& points, std::uint64_t) {
        const Answer expected = answer([&] { return oracle::area(points); });
        EXPECT_EQ(expected, answer([&] { return gf_Area(points); }));
        EXPECT_EQ(points.size() < 3 ? answer([] { return 0.0; }) : expected,
                  answer([&] { return gf_Area(edgelets(points)); }));
    });
}

TEST(MomentsOracle, CentroidIsTheDefinitions) {
    gen::eachShape(300, [](const Points& points, std::uint64_t) {
        const Answer expected = answer([&] { return oracle::centroid(points); });
        EXPECT_EQ(expected, answer([&] { return gnContour::centerOfMass(points); }));
        EXPECT_EQ(expected, answer([&] { return gf_CenterOfMass(points); }));
        EXPECT_EQ(expected, answer([&] { return gf_CenterOfMass(edgelets(points)); }));
    });
}

TEST(MomentsOracle, InertiaIsTheDefinitions) {
    gen::eachShape(300, [](const Points& points, std::uint64_t) {
        EXPECT_EQ(asAnswer(oracle::polygonInertia(points)), asAnswer(gf_InertiaDataPolygon(points)));
        const Points reversed(points.rbegin(), points.rend());
        EXPECT_EQ(asAnswer(oracle::polygonInertia(reversed)), asAnswer(gf_InertiaDataPolygon(reversed)));
    });
}

TEST(MomentsOracle, SumOfPiecesIsTheDefinitions) {
    gen::Random random(7);
    for (std::uint64_t i = 0; i < gen::rounds(100000); ++i) {
        const gk_InertiaData a = randomPiece(random);
        const gk_InertiaData b = randomPiece(random);
        ASSERT_EQ(asAnswer(oracle::sum(record(a), record(b))), asAnswer(a + b)) << "pair " << i << " of seed 7";
    }
}

TEST(MomentsOracle, EllipseOfMomentsIsTheDefinitions) {
    gen::eachShape(300, [](const Points& points, std::uint64_t) {
        const gk_InertiaData data = gf_InertiaDataPolygon(points);
        EXPECT_EQ(answer([&] { return oracle::ellipseOfMoments(record(data)); }),
                  answer([&] { return gf_EllipseFromInertiaData(data); }));
    });
}

TEST(MomentsOracle, FittedEllipseIsTheFittersOwn) {
    gen::eachShape(100, [](const Points& points, std::uint64_t) {
        const gkEllipseFitParams params(static_cast<gkEllipseFitDefs::fit_mode>(0), gkRadian(0.0), 0,
                                        std::numeric_limits<double>::infinity());
        gkEllipseFitResults results;
        const Answer expected = answer([&] {
            gfEllipseFit(params, points, results);
            return results.ellipse();
        });
        gkEllipse ellipse;
        double error = results.error();
        EXPECT_EQ(expected, answer([&] {
                      gf_FitEllipse(points, ellipse, error);
                      return ellipse;
                  }));
        EXPECT_EQ(results.error(), error);
    });
}

TEST(MomentsOracle, StandardDeviationIsTheDefinitions) {
    gen::Random random(11);
    for (std::uint64_t i = 0; i < gen::rounds(10000); ++i) {
        std::vector<double> values(random.index(40));
        for (double& value : values) value = random.between(-1.0, 1.0) * (random.chance(0.1) ? 1e200 : 1.0);
        ASSERT_EQ(answer([&] { return oracle::stdDev(values); }), answer([&] { return gf_StdDev(values); }))
            << "list " << i << " of seed 11";
    }
}
