// The plain list of vertices.
#include "platform/core/object/errors.h"
#include "platform/core/shapes/polygon.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Vector = gkVector<2>;

const std::vector<Vector> kTriangle = {{0, 0}, {4, 0}, {0, 3}};

} // namespace

TEST(Polygon, IsEmptyAndEvenOddByDefault) {
    EXPECT_EQ(0u, gkPolygon().size());
    EXPECT_TRUE(gkPolygon().vertices().empty());
    EXPECT_EQ(gkPolygon::eEvenOdd, gkPolygon().fillMode());
}

TEST(Polygon, KeepsVerticesAndFillMode) {
    const gkPolygon polygon(kTriangle, gkPolygon::eNonZero);
    EXPECT_EQ(3u, polygon.size());
    EXPECT_EQ(kTriangle, polygon.vertices());
    EXPECT_EQ(Vector(4, 0), polygon[1]);
    EXPECT_EQ(gkPolygon::eNonZero, polygon.fillMode());
}

TEST(Polygon, ARepeatedFirstVertexStaysAVertex) {
    gkPolygon polygon(kTriangle);
    polygon.append({0, 0});
    EXPECT_EQ(4u, polygon.size());
    EXPECT_EQ(polygon[0], polygon[3]);
    EXPECT_NE(gkPolygon(kTriangle), polygon);
}

TEST(Polygon, AVertexThatIsNotThereIsRefused) {
    EXPECT_THROW(gkPolygon()[0], gkMathError::OutOfRange);
    const gkPolygon polygon(kTriangle);
    EXPECT_NO_THROW(polygon[2]);
    EXPECT_THROW(polygon[3], gkMathError::OutOfRange);
    EXPECT_THROW(polygon[std::numeric_limits<std::size_t>::max()], gkMathError::OutOfRange);
}

TEST(Polygon, EqualsByVerticesInOrderAndFillMode) {
    EXPECT_EQ(gkPolygon(kTriangle), gkPolygon(kTriangle));
    EXPECT_NE(gkPolygon(kTriangle), gkPolygon(kTriangle, gkPolygon::eNonZero));
    EXPECT_NE(gkPolygon(kTriangle), gkPolygon({{4, 0}, {0, 3}, {0, 0}}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(gkPolygon({{nan, 0}}), gkPolygon({{nan, 0}}));
}
