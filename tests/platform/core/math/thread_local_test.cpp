// Values of threads: one for each thread and slot, destroyed when the thread ends.
#include "platform/core/math/thread_local.h"

#include "platform/core/math/random.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

std::atomic<int> living{0};
std::atomic<int> made{0};

struct Counted {
    Counted() {
        ++living;
        ++made;
    }
    ~Counted() { --living; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    int value = 0;
};

Counted* makeCounted() { return new Counted; }

// Runs `body` in a thread of its own and waits for its end.
template <class F> void inNewThread(F body) { std::thread(body).join(); }

class ThreadLocal : public testing::Test {
protected:
    void SetUp() override {
        // The values of this thread whose slots earlier tests have destroyed go away with the next first value.
        const gk_ThreadLocal<int> other([] { return new int(0); });
        other.get();
        living = 0;
        made = 0;
    }
};

} // namespace

TEST_F(ThreadLocal, MakesTheValueOnFirstUseOnly) {
    const gk_ThreadLocal<Counted> slot(&makeCounted);
    EXPECT_EQ(0, made);
    Counted& first = slot.get();
    EXPECT_EQ(1, made);
    EXPECT_EQ(&first, &slot.get());
    EXPECT_EQ(1, made);
}

TEST_F(ThreadLocal, GivesEachThreadItsOwnValue) {
    gk_ThreadLocal<Counted> slot(&makeCounted);
    slot.get().value = 7;
    inNewThread([&] {
        EXPECT_EQ(0, slot.get().value);
        slot.get().value = 8;
        EXPECT_EQ(8, slot.get().value);
    });
    EXPECT_EQ(7, slot.get().value);
    EXPECT_EQ(2, made);
}

TEST_F(ThreadLocal, DestroysTheValueAtTheEndOfItsThread) {
    gk_ThreadLocal<Counted> slot(&makeCounted);
    inNewThread([&] {
        slot.get();
        EXPECT_EQ(1, living);
    });
    EXPECT_EQ(0, living);
    inNewThread([] {}); // a thread that never asks makes nothing
    EXPECT_EQ(1, made);
}

TEST_F(ThreadLocal, ServesManyThreadsAtOnce) {
    gk_ThreadLocal<Counted> slot(&makeCounted);
    std::vector<std::thread> threads;
    std::atomic<int> wrong{0};
    for (int t = 0; t < 16; ++t) {
        threads.emplace_back([&slot, &wrong, t] {
            slot.get().value = t;
            for (int i = 0; i < 1000; ++i) {
                if (slot.get().value != t) ++wrong;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(0, wrong);
    EXPECT_EQ(16, made);
    EXPECT_EQ(0, living);
}

TEST_F(ThreadLocal, KeepsSlotsApart) {
    gk_ThreadLocal<int> one([] { return new int(1); });
    gk_ThreadLocal<int> two([] { return new int(2); });
    gk_ThreadLocal<std::string> text([] { return new std::string("three"); });
    EXPECT_EQ(1, one.get());
    EXPECT_EQ(2, two.get());
    EXPECT_EQ("three", text.get());
    one.get() = 5;
    EXPECT_EQ(2, two.get());
    EXPECT_EQ(5, one.get());
}

TEST_F(ThreadLocal, ReferencesOutliveFirstUsesOfOtherSlots) {
    gk_ThreadLocal<int> slot([] { return new int(42); });
    int& value = slot.get();
    std::vector<std::unique_ptr<gk_ThreadLocal<int>>> others;
    for (int i = 0; i < 100; ++i) {
        others.push_back(std::make_unique<gk_ThreadLocal<int>>([i] { return new int(i); }));
        others.back()->get();
    }
    EXPECT_EQ(42, value);
    EXPECT_EQ(&value, &slot.get());
    EXPECT_EQ(99, others.back()->get());
}

TEST_F(ThreadLocal, ValueOfASlotThatDiedFirstIsDestroyedAtTheEndOfItsThread) {
    inNewThread([] {
        {
            gk_ThreadLocal<Counted> slot(&makeCounted);
            slot.get();
        }
        EXPECT_EQ(1, living);
    });
    EXPECT_EQ(0, living);
}

TEST_F(ThreadLocal, ValueOfADeadSlotGoesWithTheNextFirstValue) {
    {
        gk_ThreadLocal<Counted> slot(&makeCounted);
        slot.get();
    }
    EXPECT_EQ(1, living);
    gk_ThreadLocal<int> other([] { return new int(0); });
    other.get();
    EXPECT_EQ(0, living);
}

TEST_F(ThreadLocal, NewSlotInThePlaceOfADeadOneStartsAfresh) {
    using Slot = gk_ThreadLocal<Counted>;
    alignas(Slot) unsigned char place[sizeof(Slot)];
    Slot* slot = new (place) Slot(&makeCounted);
    slot->get().value = 7;
    slot->~Slot();
    slot = new (place) Slot(&makeCounted);
    EXPECT_EQ(0, slot->get().value);
    EXPECT_EQ(2, made);
    slot->~Slot();
}

TEST_F(ThreadLocal, FactoryThatThrowsLeavesTheSlotEmpty) {
    bool fail = true;
    gk_ThreadLocal<Counted> slot([&fail] {
        if (fail) throw std::runtime_error("not yet");
        return new Counted;
    });
    EXPECT_THROW(slot.get(), std::runtime_error);
    fail = false;
    slot.get().value = 3;
    EXPECT_EQ(3, slot.get().value);
    EXPECT_EQ(1, made);
}

TEST_F(ThreadLocal, FactoryMayUseAnotherSlot) {
    gk_ThreadLocal<int> base([] { return new int(20); });
    gk_ThreadLocal<int> sum([&base] { return new int(base.get() + 1); });
    EXPECT_EQ(21, sum.get());
    inNewThread([&] { EXPECT_EQ(21, sum.get()); });
}

namespace {

// Leaves a mark through another slot while its thread ends.
struct Farewell {
    gk_ThreadLocal<Counted>* other;
    int* seen;
    ~Farewell() { *seen = other->get().value; }
};

} // namespace

TEST_F(ThreadLocal, DestructorAtThreadEndMayUseAnotherSlot) {
    gk_ThreadLocal<Counted> earlier(&makeCounted);
    gk_ThreadLocal<Counted> later(&makeCounted);
    int seenEarlier = -1;
    int seenLater = -1;
    gk_ThreadLocal<Farewell> first([&] { return new Farewell{&earlier, &seenEarlier}; });
    gk_ThreadLocal<Farewell> second([&] { return new Farewell{&later, &seenLater}; });
    inNewThread([&] {
        earlier.get().value = 4;
        first.get();
        second.get(); // whose other value is made while the thread ends
    });
    EXPECT_EQ(4, seenEarlier);
    EXPECT_EQ(0, seenLater);
    EXPECT_EQ(2, made);
    EXPECT_EQ(0, living);
}

TEST_F(ThreadLocal, GeneratorOfEveryThreadStartsWithItsSeed) {
    static const gk_ThreadLocal<gkRandomUniform> slot([] { return new gkRandomUniform(1); });
    gkRandomUniform expected(1);
    const double first = expected.next();
    const double second = expected.next();
    for (int thread = 0; thread < 3; ++thread) {
        inNewThread([&] {
            EXPECT_EQ(first, slot.get().next());
            EXPECT_EQ(second, slot.get().next());
        });
    }
}
