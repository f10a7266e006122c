// Shared handles and the count they keep.
#include "platform/core/object/errors.h"
#include "platform/core/object/handle.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

std::atomic<int> alive{0};

class Base : public virtual gkRepBase {
public:
    explicit Base(int v = 0) : value(v) { ++alive; }
    Base(const Base& other) : gkRepBase(other), value(other.value) { ++alive; }
    Base& operator=(const Base&) = default;
    ~Base() override { --alive; }
    int value;
};

class Side : public virtual gkRepBase {
public:
    int more = 4;
};

// Both branches share one count, and the handle's pointer differs from the counted base.
class Derived : public Side, public Base {
public:
    Derived() : Base(9) {}
};

// A class that holds handles to a class it knows only by name, as a contour may hold one to a region.
class Incomplete;
class Holder {
public:
    gkPtrHandle<Incomplete> one;
    gkPtrHandle_const<Incomplete> other;
    std::vector<gkPtrHandle_const<Incomplete>> list;
};

// All of this is compiled while Incomplete is incomplete.
Holder copyAndChange(const Holder& holder) {
    Holder copy = holder;
    copy.list.push_back(copy.one);
    copy.other = copy.one;
    copy.one = gkPtrHandle<Incomplete>();
    EXPECT_TRUE(copy.one.isNull());
    EXPECT_TRUE(copy.other == holder.one);
    return copy;
}

class Incomplete : public Holder, public Base {};

static_assert(sizeof(gkPtrHandle<Base>) == 2 * sizeof(void*));
static_assert(sizeof(gkPtrHandle_const<Base>) == 2 * sizeof(void*));
static_assert(std::is_nothrow_move_constructible_v<gkPtrHandle<Base>>);
static_assert(std::is_convertible_v<gkPtrHandle<Derived>, gkPtrHandle<Base>>);
static_assert(std::is_convertible_v<gkPtrHandle<Derived>, gkPtrHandle_const<Base>>);
static_assert(std::is_convertible_v<gkPtrHandle_const<Derived>, gkPtrHandle_const<Base>>);
static_assert(!std::is_convertible_v<gkPtrHandle<Base>, gkPtrHandle<Derived>>);
static_assert(!std::is_convertible_v<gkPtrHandle_const<Base>, gkPtrHandle<Base>>);
static_assert(!std::is_convertible_v<Base*, gkPtrHandle<Base>>);
static_assert(!std::is_convertible_v<gkPtrHandle<Base>, bool>);
static_assert(std::is_same_v<const Base&, decltype(*gkPtrHandle_const<Base>())>);

class HandleTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(0, alive); }
    void TearDown() override { EXPECT_EQ(0, alive); }
};

} // namespace

TEST_F(HandleTest, IsNullByDefault) {
    const gkPtrHandle<Base> handle;
    EXPECT_TRUE(handle.isNull());
    EXPECT_FALSE(static_cast<bool>(handle));
    EXPECT_EQ(nullptr, handle.get());
    EXPECT_TRUE(gkPtrHandle_const<Base>(nullptr).isNull());
    EXPECT_TRUE((gkPtrHandle<Base>(gkPtrHandle<Derived>()).isNull()));
}

TEST_F(HandleTest, ThatIsNullThrowsWhenDereferenced) {
    const gkPtrHandle<Base> handle;
    const gkPtrHandle_const<Base> constHandle;
    EXPECT_THROW(static_cast<void>(handle->value), gkBadPointer);
    EXPECT_THROW(static_cast<void>((*handle).value), gkBadPointer);
    EXPECT_THROW(static_cast<void>(constHandle->value), gkBadPointer);
    EXPECT_THROW(static_cast<void>((*constHandle).value), gkBadPointer);
}

TEST_F(HandleTest, FreesTheObjectWithTheLastHolder) {
    gkPtrHandle<Base> first(new Base(3));
    EXPECT_EQ(1, first->references());
    {
        const gkPtrHandle<Base> second = first;
        EXPECT_EQ(2, first->references());
        EXPECT_EQ(3, second->value);
    }
    EXPECT_EQ(1, first->references());
    first = gkPtrHandle<Base>();
    EXPECT_EQ(0, alive);
}

TEST_F(HandleTest, ThatWasMovedFromIsNull) {
    gkPtrHandle<Base> from(new Base(3));
    gkPtrHandle<Base> to = std::move(from);
    EXPECT_TRUE(from.isNull());
    EXPECT_EQ(nullptr, from.rep());
    EXPECT_EQ(1, to->references());
    from = std::move(to);
    EXPECT_TRUE(to.isNull());
    EXPECT_EQ(3, from->value);
}

TEST_F(HandleTest, SurvivesAssignmentToItself) {
    gkPtrHandle<Base> handle(new Base(3));
    gkPtrHandle<Base>& same = handle;
    handle = same;
    ASSERT_FALSE(handle.isNull());
    EXPECT_EQ(1, handle->references());
}

TEST_F(HandleTest, MayBeAssignedFromInsideItsOwnObject) {
    struct Link : Base {
        gkPtrHandle<Link> next;
    };
    gkPtrHandle<Link> head(new Link);
    head->next = gkPtrHandle<Link>(new Link);
    head = head->next; // frees the object that holds the source
    EXPECT_EQ(1, alive);
    EXPECT_EQ(1, head->references());
}

TEST_F(HandleTest, ConvertsToABaseAndKeepsTheCount) {
    const gkPtrHandle<Derived> derived(new Derived);
    const gkPtrHandle<Base> base = derived;
    const gkPtrHandle_const<Base> constBase = derived;
    const gkPtrHandle_const<Side> side = gkPtrHandle_const<Derived>(derived);
    EXPECT_EQ(4, derived->references());
    EXPECT_EQ(9, base->value);
    EXPECT_EQ(9, constBase->value);
    EXPECT_EQ(4, side->more);
    EXPECT_TRUE(base == derived);
    EXPECT_TRUE(side == constBase);
}

TEST_F(HandleTest, ComparesObjectsNotValues) {
    const gkPtrHandle<Base> a(new Base(1));
    const gkPtrHandle<Base> b(new Base(1));
    EXPECT_TRUE(a == a);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(gkPtrHandle<Base>() == gkPtrHandle_const<Base>());
    EXPECT_TRUE(a != gkPtrHandle<Base>());
}

TEST_F(HandleTest, WorksWithAClassKnownOnlyByName) {
    Holder holder;
    holder.one = gkPtrHandle<Incomplete>(new Incomplete);
    {
        const Holder copy = copyAndChange(holder);
        EXPECT_EQ(1u, copy.list.size());
        EXPECT_EQ(3, holder.one->references());
    }
    EXPECT_EQ(1, holder.one->references());
}

TEST_F(HandleTest, OfACopiedObjectCountsTheCopyAnew) {
    const gkPtrHandle<Base> first(new Base(3));
    const gkPtrHandle<Base> copy(new Base(*first));
    EXPECT_EQ(1, copy->references());
    const gkPtrHandle<Base> again = first;
    *copy = *first;
    EXPECT_EQ(1, copy->references());
    EXPECT_EQ(2, first->references());
    EXPECT_EQ(0, Base(*first).references());
}

TEST_F(HandleTest, CanBeTakenOnAnObjectThatIsHeldAlready) {
    const gkPtrHandle<Base> first(new Base(3));
    const gkPtrHandle_const<Base> second(first.get());
    EXPECT_EQ(2, first->references());
}

TEST_F(HandleTest, MayBeCopiedOnSeveralThreads) {
    gkPtrHandle<Derived> shared(new Derived);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([mine = shared] {
            for (int i = 0; i < 20000; ++i) {
                const gkPtrHandle_const<Base> copy = mine;
                const gkPtrHandle_const<Base> another = copy;
                if (another->value != 9) std::abort();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    threads.clear();
    EXPECT_EQ(1, shared->references());
}

TEST_F(HandleTest, TheLastHolderMayBeOnAnyThread) {
    for (int round = 0; round < 200; ++round) {
        gkPtrHandle<Base> shared(new Base(1));
        std::thread one([mine = shared]() mutable { mine = gkPtrHandle<Base>(); });
        std::thread two([mine = shared]() mutable { mine = gkPtrHandle<Base>(); });
        shared = gkPtrHandle<Base>();
        one.join();
        two.join();
    }
}

TEST(RepHold, CanLetGoWithoutFreeing) {
    Base onTheStack(1);
    gk_RepHold hold(&onTheStack);
    EXPECT_EQ(1, onTheStack.references());
    hold.detach();
    EXPECT_EQ(0, onTheStack.references());
    EXPECT_EQ(nullptr, hold.get());
}
