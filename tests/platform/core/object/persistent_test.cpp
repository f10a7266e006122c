// The base of persistent objects: the changed mark and the virtual operations.
#include "platform/core/archive/archive_memory.h"
#include "platform/core/object/persistent.h"

#include <gtest/gtest.h>

namespace {

class Plain : public gkPersistent {
public:
    int reInits = 0;
    void reInit() override { ++reInits; }
};

} // namespace

TEST(Persistent, IsUnchangedAtFirst) { EXPECT_FALSE(Plain().isChanged()); }

TEST(Persistent, RemembersAChangeUntilItIsCleared) {
    const Plain object;
    object.mutating();
    EXPECT_TRUE(object.isChanged());
    object.clearChanged();
    EXPECT_FALSE(object.isChanged());
}

TEST(Persistent, ACopyStartsUnchanged) {
    Plain changed;
    changed.mutating();
    EXPECT_FALSE(Plain(changed).isChanged());
}

TEST(Persistent, AssignmentLeavesTheMarkOfTheTarget) {
    Plain changed;
    changed.mutating();
    Plain unchanged;
    unchanged = changed;
    EXPECT_FALSE(unchanged.isChanged());
    changed = Plain();
    EXPECT_TRUE(changed.isChanged());
}

TEST(Persistent, TheVisitedMarkIsKeptForEachObjectAndArchive) {
    gkArchiveMemory one;
    gkArchiveMemory other;
    const Plain a;
    const Plain b;
    EXPECT_FALSE(a.haveVisited(one));
    a.setVisited(one);
    EXPECT_TRUE(a.haveVisited(one));
    EXPECT_FALSE(b.haveVisited(one));
    EXPECT_FALSE(a.haveVisited(other));
}

TEST(Persistent, HasNothingOfItsOwnToBuildAnew) {
    class : public gkPersistent {
    } object;
    object.reInit();
    EXPECT_FALSE(object.isChanged());
}

TEST(Persistent, TheBaseRecordIsOneByteEachTime) {
    gkArchiveMemory out;
    Plain object;
    out || object || object;
    EXPECT_EQ(8u + 2u, out.bytes().size());
    EXPECT_EQ(0, out.bytes().back());
}

TEST(Persistent, LoadSimpleLoadsAndRebuilds) {
    gkArchiveMemory out;
    Plain object;
    out || object;
    gkArchiveMemory in(out.bytes());
    object.loadSimple(in);
    in.finish();
    EXPECT_EQ(1, object.reInits);
}
