#include "tests/gen/questions.h"

#include "tests/gen/places.h"

#include <limits>

namespace gen {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

} // namespace

std::vector<double> angles(std::uint64_t seed) {
    const double quarter = 1.5707963267948966;
    std::vector<double> list = {0.0, 7e-16, 2e-15, kNan};
    for (int i = -4; i <= 4; ++i) list.push_back(quarter * i);
    Random random(seed);
    for (int i = 0; i < 8; ++i) list.push_back(random.between(-20.0, 20.0));
    return list;
}

std::vector<gkXform<2>> xforms(std::uint64_t seed) {
    Random random(seed);
    const gkRadian turn(random.between(-3.0, 3.0));
    const gkVector<2> shift = place(random, 3.0);
    const gkVector<2> rows[] = {place(random, 3.0), place(random, 3.0)};
    return {gkXform<2>(),
            gkXform<2>(gkMatrix<2>(1.0 + 8e-16, 0.0, 0.0, 1.0), {1e-15, 0.0}),
            gkXform<2>(gkMatrix<2>(1.0 + 2e-15, 0.0, 0.0, 1.0), {0.0, 0.0}),
            gkXform<2>(gkMatrix<2>(turn, turn, 1.0, 1.0), shift),
            gkXform<2>(gkMatrix<2>(-1.0, 0.0, 0.0, 1.0), {shift.y(), 0.0}),
            gkXform<2>(gkMatrix<2>(rows[0].x(), rows[0].y(), rows[1].x(), rows[1].y()), shift),
            gkXform<2>(gkMatrix<2>(1.0, 2.0, 2.0, 4.0), {0.0, 0.0})};
}

Points probesWithBadOnes(const Points& points, std::uint64_t seed) {
    Points list = probes(points, seed);
    list.emplace_back(kNan, 0.0);
    list.emplace_back(0.0, kInf);
    list.emplace_back(-kInf, kNan);
    return list;
}

std::vector<gkLineSeg> segmentsWithBadOnes(const Points& points, std::uint64_t seed) {
    std::vector<gkLineSeg> list = querySegments(points, seed);
    list.emplace_back(gkVector<2>(kNan, 0.0), gkVector<2>(1.0, 1.0));
    list.emplace_back(gkVector<2>(0.0, 0.0), gkVector<2>(kInf, 1.0));
    list.emplace_back(gkVector<2>(-kInf, -kInf), gkVector<2>(kInf, kInf));
    return list;
}

std::vector<double> tolerancesWithBadOnes(const Points& points) {
    std::vector<double> list = tolerances(points);
    for (const double bad : {0.0, -1.0, kInf, kNan}) list.push_back(bad);
    return list;
}

} // namespace gen
