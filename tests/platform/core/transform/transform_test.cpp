// Transforms as shared objects, and rigid motions.
#include "platform/core/archive/archive_memory.h"
#include "platform/core/object/errors.h"
#include "platform/core/transform/rigid.h"
#include "platform/core/transform/xform_linear.h"

#include <gtest/gtest.h>

namespace {

const gkXform<2> kStretch(gkMatrix<2>(2, 0, 0, 4), {1, -1});

const gkXform<2>& xformOf(const gkPtrHandle_const<gk2XformBase>& handle) {
    return dynamic_cast<const gk2XformLinear&>(*handle).xform();
}

class BaseAssigned : public gk2XformLinear {
public:
    using gk2XformLinear::gk2XformLinear;
    void assignBase(const gk2XformLinear& other) { gk2XformBase::operator=(other); }
};

} // namespace

TEST(LinearTransform, IsTheIdentityByDefault) {
    EXPECT_EQ(gkVector<2>(3, 4), gk2XformLinear().mapPoint({3, 4}));
    EXPECT_EQ(gkXform<2>(), gk2XformLinear().xform());
}

TEST(LinearTransform, MapsPointsAsItsTransformDoes) {
    EXPECT_EQ(gkVector<2>(7, 15), gk2XformLinear(kStretch).mapPoint({3, 4}));
}

TEST(LinearTransform, InverseUndoesIt) {
    const gkPtrHandle_const<gk2XformBase> inverse = gk2XformLinear(kStretch).inverseBase();
    EXPECT_EQ(gkVector<2>(3, 4), inverse->mapPoint({7, 15}));
}

TEST(LinearTransform, WithoutAnInverseThrowsSingular) {
    EXPECT_THROW(gk2XformLinear(gkXform<2>(gkMatrix<2>(1, 2, 2, 4), {})).inverseBase(), gkMathError::Singular);
}

TEST(LinearTransform, CloneIsEqualAndAnotherObject) {
    const gkPtrHandle_const<gk2XformBase> one(new gk2XformLinear(kStretch));
    const gkPtrHandle_const<gk2XformBase> clone = one->clone();
    EXPECT_EQ(kStretch, xformOf(clone));
    EXPECT_TRUE(one != clone);
}

TEST(LinearTransform, SharedInAnArchiveStaysShared) {
    gkPtrHandle_const<gk2XformBase> one(new gk2XformLinear(kStretch));
    gkArchiveMemory out;
    out || one;
    out || one;
    gkArchiveMemory in(out.bytes());
    gkPtrHandle_const<gk2XformBase> first;
    gkPtrHandle_const<gk2XformBase> second;
    in || first;
    in || second;
    in.finish();
    EXPECT_EQ(kStretch, xformOf(first));
    EXPECT_TRUE(first == second);
}

TEST(LinearTransform, UnknownVersionNamesTheClass) {
    gkArchiveMemory empty;
    gk2XformLinear transform;
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(transform);
    std::vector<unsigned char> bytes = out.bytes();
    bytes[empty.bytes().size()] = 1;
    gkArchiveMemory in(bytes);
    try {
        in || static_cast<gkPersistent&>(transform);
        FAIL() << "nothing was thrown";
    } catch (const gkArchive::UnknownVersion& error) {
        EXPECT_STREQ("gk2XformLinear", error.text());
        EXPECT_EQ(0, error.number());
    }
}

TEST(LinearTransform, ComparesExactly) {
    EXPECT_TRUE(gk2XformLinear(kStretch) == gk2XformLinear(kStretch));
    EXPECT_TRUE(gk2XformLinear(kStretch) != gk2XformLinear());
    gk2XformLinear assigned;
    assigned = gk2XformLinear(kStretch);
    EXPECT_EQ(kStretch, assigned.xform());
}

// The base holds nothing.
TEST(LinearTransform, KeepsItsTransformWhereOnlyItsBaseIsAssigned) {
    BaseAssigned assigned(kStretch);
    assigned.assignBase(gk2XformLinear());
    EXPECT_EQ(kStretch, assigned.xform());
}

TEST(Rigid, TurnsThenMoves) {
    const gk2Rigid quarter(gkDegree(90.0), {10, 0});
    const gkVector<2> image = quarter.mapPoint({1, 0});
    EXPECT_NEAR(10.0, image.x(), 1e-15);
    EXPECT_NEAR(1.0, image.y(), 1e-15);
}

TEST(Rigid, InverseUndoesIt) {
    const gk2Rigid motion(gkRadian(0.7), {3, -2});
    const gkVector<2> back = (motion.inverse() * motion).mapPoint({5, 6});
    EXPECT_NEAR(5.0, back.x(), 1e-14);
    EXPECT_NEAR(6.0, back.y(), 1e-14);
}

TEST(Rigid, AngleAndTranslationAreKeptAsGiven) {
    const gk2Rigid pose(gkRadian(9.0), {3, -2});
    EXPECT_EQ(9.0, pose.angle().toDouble());
    EXPECT_EQ(gkVector<2>(3, -2), pose.translation());
    EXPECT_TRUE(pose == gk2Rigid(gkRadian(9.0), {3, -2}));
    EXPECT_TRUE(pose != gk2Rigid());
    EXPECT_TRUE(pose != gk2Rigid(gkRadian(9.0), {3, -1}));
    EXPECT_EQ(gkXform<2>(), gk2Rigid().xform());
}
