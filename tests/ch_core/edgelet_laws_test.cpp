// Laws of the shapes that carry edgelets: deriving forth and back, copies, writing and reading.
#include "platform/core/transform/rigid.h"
#include "tests/ch_core/edgelets.h"
#include "tests/gen/kinds.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

constexpr double kUnit = 0x1p-53; // of rounding
constexpr std::uint64_t kSeeds = 200;

gkVector<2> place(gen::Random& random, double reach) {
    return gkVector<2>{random.between(-reach, reach), random.between(-reach, reach)};
}

gkMatrix<2> matrix(gen::Random& random) {
    return gkMatrix<2>{random.between(-3, 3), random.between(-3, 3), random.between(-3, 3),
                       random.between(-3, 3)};
}

struct Family {
    const char* name;
    gkXform<2> (*make)(gen::Random&);
};

const Family kFamilies[] = {
    {"linear",
     [](gen::Random& random) {
         return gkXform<2>(matrix(random), {0, 0});
     }},
    {"affine",
     [](gen::Random& random) {
         const gkMatrix<2> any = matrix(random);
         return gkXform<2>(any, place(random, 500));
     }},
    {"nearly singular",
     [](gen::Random& random) {
         const gkVector<2> row = place(random, 3);
         const double beside = std::ldexp(1.0, -random.integer(10, 30));
         return gkXform<2>(gkMatrix<2>(row.x(), row.y(), row.x() + beside, row.y() - beside),
                           place(random, 500));
     }},
    {"rigid",
     [](gen::Random& random) {
         const gkRadian angle(random.between(-7, 7));
         return gk2Rigid(angle, place(random, 500)).xform();
     }},
    {"scaled",
     [](gen::Random& random) {
         const double scale = std::ldexp(random.between(1, 2), random.integer(-20, 20));
         return gkXform<2>(gkMatrix<2>(scale, 0, 0, random.chance(0.5) ? scale : -scale), {0, 0});
     }},
};

Transform shared(const gkXform<2>& xform) { return Transform(new gk2XformLinear(xform)); }

double norm(const gkMatrix<2>& m) { // Frobenius
    double sum = 0.0;
    for (const int row : {0, 1}) {
        for (const int column : {0, 1}) sum += m.element(row, column) * m.element(row, column);
    }
    return std::sqrt(sum);
}

std::vector<gkEdgelet> randomData(gen::Random& random) {
    std::vector<gkEdgelet> data;
    for (int i = random.integer(0, 20); i > 0; --i) {
        const auto magnitude = static_cast<unsigned short>(random.integer(0, 65535));
        const gkAngle8 angle(static_cast<unsigned char>(random.integer(0, 255)));
        data.emplace_back(place(random, 100), magnitude, angle);
    }
    return data;
}

Points positions(const std::vector<gkEdgelet>& data) {
    Points list;
    for (const gkEdgelet& edgelet : data) list.push_back(edgelet.position());
    return list;
}

// Calls check(xform, random, kappa) for random transforms; kappa = |A| |A^-1| = |A|^2 / |det A|.
template <class Check> void eachTransform(Check check) {
    for (const Family& family : kFamilies) {
        for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
            SCOPED_TRACE(std::string(family.name) + ", seed " + std::to_string(seed));
            gen::Random random(seed);
            const gkXform<2> xform = family.make(random);
            check(xform, random, norm(xform.matrix()) * norm(xform.matrix().inverse()));
            if (::testing::Test::HasFailure()) return;
        }
    }
}

} // namespace

// The bounds of both ways, with u = 2^-53 and the transform p -> A p + t. The computed determinant's error is
// common to all elements of the inverse: u kappa of the result. What remains rounds each product and sum on its
// own, at most 8 of them in a row on terms that |A^-1| has magnified: 8 u (kappa |p| + |A^-1| |t|) forth and
// back. 16 leaves room for second-order terms.
TEST(EdgeletLaws, PointsComeBackFromTheirDataWithinRounding) {
    eachTransform([](const gkXform<2>& xform, gen::Random& random, double kappa) {
        EdgeletContour contour(std::vector<gkEdgelet>(), shared(xform));
        const Points before = positions(randomData(random));
        contour.points(before);
        contour.data(std::vector<gkEdgelet>(contour.data()));
        ASSERT_EQ(before.size(), contour.points().size());
        const double moved = norm(xform.matrix().inverse()) * xform.translation().length();
        for (std::size_t i = 0; i < before.size(); ++i) {
            EXPECT_LE(before[i].distance(contour.points()[i]),
                      16 * kUnit * (kappa * before[i].length() + moved));
        }
    });
}

TEST(EdgeletLaws, PositionsComeBackFromTheirPointsWithinRounding) {
    eachTransform([](const gkXform<2>& xform, gen::Random& random, double kappa) {
        const std::vector<gkEdgelet> before = randomData(random);
        EdgeletContour contour(before, shared(xform));
        ASSERT_EQ(before.size(), contour.points().size());
        contour.points(Points(contour.points()));
        ASSERT_EQ(before.size(), contour.data().size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            const gkVector<2> position = before[i].position();
            EXPECT_LE(position.distance(contour.data()[i].position()),
                      16 * kUnit * kappa * (position.length() + xform.translation().length()));
            EXPECT_EQ(0, contour.data()[i].magnitude());
            EXPECT_EQ(gkAngle8(0), contour.data()[i].angle());
        }
    });
}

TEST(EdgeletLaws, UnderTheIdentityAndPowersOfTwoEverythingComesBackExactly) {
    for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        const std::vector<gkEdgelet> data = randomData(random);
        const Transform power = scale(std::ldexp(1.0, random.integer(-40, 40)));
        for (const Transform& transform : {Transform(), scale(1), power}) {
            EdgeletContour contour(data, transform);
            const Points derived = contour.points();
            if (transform != power) {
                EXPECT_EQ(positions(data), derived);
            }
            contour.points(Points(derived));
            EXPECT_EQ(positions(data), positions(contour.data()));
            contour.data(std::vector<gkEdgelet>(contour.data()));
            EXPECT_EQ(derived, contour.points());
        }
    }
}

TEST(EdgeletLaws, DatumAndPointAreWhatTheListsAreMadeOf) {
    eachTransform([](const gkXform<2>& xform, gen::Random& random, double) {
        const std::vector<gkEdgelet> data = randomData(random);
        EdgeletContour contour(data, shared(xform));
        Points one;
        for (const gkEdgelet& edgelet : data) one.push_back(contour.point(edgelet));
        EXPECT_EQ(one, contour.points());
        contour.points(one);
        for (std::size_t i = 0; i < one.size(); ++i) {
            EXPECT_EQ(gkEdgelet(xform * one[i], 0, gkAngle8(0)), contour.data()[i]);
            EXPECT_EQ(contour.datum(one[i]), contour.data()[i]);
        }
    });
}

TEST(EdgeletLaws, CopiesAreEqualUntilOneChanges) {
    eachTransform([](const gkXform<2>& xform, gen::Random& random, double) {
        std::vector<gkEdgelet> data = randomData(random);
        data.emplace_back(gkVector<2>(1, 2), 3, gkAngle8(4));
        Transform transform = shared(xform);
        const EdgeletContour contour(data, transform);
        EdgeletContour copy(contour);
        EXPECT_TRUE(copy == contour);
        EXPECT_EQ(data, copy.data());
        copy.data({});
        EXPECT_TRUE(copy != contour);
        copy = contour;
        EXPECT_TRUE(copy == contour);
        EXPECT_EQ(data, copy.data());

        const EdgeletRegion region(data, transform, 5);
        EdgeletRegion other(region);
        EXPECT_TRUE(other == region);
        other.points({});
        EXPECT_TRUE(other != region);
        other = region;
        EXPECT_TRUE(other == region);
        EXPECT_EQ(data, other.data());

        const EdgeletSet set(EdgeletSet::Regions{gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(region))});
        EdgeletSet assigned;
        EXPECT_TRUE(assigned != set);
        assigned = set;
        EXPECT_TRUE(assigned == set);
        EXPECT_TRUE(EdgeletSet(set) == set);
        EXPECT_TRUE(EdgeletSet(set).regionsT() == set.regionsT());
    });
}

TEST(EdgeletLaws, WrittenAndReadContoursAreTheSame) {
    eachTransform([](const gkXform<2>& xform, gen::Random& random, double) {
        EdgeletContour contour(randomData(random), shared(xform));
        contour.label(17);
        contour.isClosed(random.chance(0.5));
        contour.cachedVectorSize(6);
        EdgeletContour read(triangle(), scale(2));
        loadInto(read, archived(contour));
        EXPECT_TRUE(static_cast<const gkContour&>(contour) == read);
        EXPECT_EQ(17ul, read.label());
        EXPECT_EQ(contour.data(), read.data());
        const auto* linear = dynamic_cast<const gk2XformLinear*>(read.dataFromPointsXform().get());
        ASSERT_TRUE(linear != nullptr);
        EXPECT_TRUE(linear->xform() == xform);
        EXPECT_EQ(recordOf(contour), recordOf(read));
    });
}

TEST(EdgeletLaws, WrittenAndReadRegionsAndSetsKeepOutlinesAndPlainHoles) {
    eachTransform([](const gkXform<2>& xform, gen::Random& random, double) {
        Transform transform = shared(xform);
        EdgeletRegion region(randomData(random), transform, 23);
        if (region.points().size() >= 2) { // a hole far away
            static_cast<gkRegion&>(region).holes({sharedSquare(1e15, 1e15, 64)});
        }
        EdgeletRegion read;
        loadInto(read, archived(region));
        EXPECT_TRUE(static_cast<const gkRegion&>(region) == read);
        EXPECT_EQ(23ul, read.label());
        EXPECT_EQ(static_cast<gkRegion&>(region).holes().size(), static_cast<gkRegion&>(read).holes().size());
        EXPECT_TRUE(read.data().empty());
        EXPECT_EQ(recordOf(region), recordOf(read));

        EdgeletSet set(EdgeletSet::Regions{gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(region)),
                                           gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(triangle(), 1))});
        EdgeletSet readSet;
        loadInto(readSet, archived(set));
        EXPECT_TRUE(set == readSet);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_TRUE(readSet.regions().at(i) == readSet.regionsT().at(i));
        }
        EXPECT_EQ(recordOf(set), recordOf(readSet));
    });
}
