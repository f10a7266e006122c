// What a thread leaves behind in the library when it ends: nothing. Oracle: counted destructors, the size of
// the heap.
#include "gkcntr.h"
#include "tests/border/used_memory.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

std::atomic<int> living{0};
std::atomic<int> made{0};

struct Probe {
    Probe() {
        ++living;
        ++made;
    }
    ~Probe() { --living; }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;
};

const gk_ThreadLocal<Probe>& probes() {
    static const gk_ThreadLocal<Probe> slot([] { return new Probe; });
    return slot;
}

// Fills a map of kept results beyond its bound, so that the thread's random generator picks what goes. The
// boxes that are then asked for again tell, by being shared or new, which one went.
void useTheGenerator() {
    const gkContour contour({{0, 0}, {4, 0}, {0, 3}}, true, 1);
    for (int i = 0; i < 8; ++i) {
        contour.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 1), {static_cast<double>(i), 0}));
        contour.extremalVertexIndex(gkRadian(i));
    }
}

} // namespace

TEST(BorderThreads, ThatEndDestroyTheirValuesInTheLibrary) {
    made = 0;
    std::thread([] {
        probes().get();
        useTheGenerator();
        EXPECT_EQ(1, living);
    }).join();
    EXPECT_EQ(1, made);
    EXPECT_EQ(0, living);
}

TEST(BorderThreads, AThousandTimesLeaveNothingBehind) {
    const auto run = [](int threads) {
        for (int i = 0; i < threads; ++i) {
            std::thread([] {
                probes().get();
                useTheGenerator();
            }).join();
        }
    };
    run(20); // what the system itself takes once
    made = 0;
    const std::size_t before = usedMemory();
    run(1000);
    EXPECT_EQ(1000, made);
    EXPECT_EQ(0, living);
    // A generator is 8 bytes, and no heap gives less than 16: all of them left behind are 16000 at least.
    EXPECT_LT(usedMemory(), before + 8000);
}

TEST(BorderThreads, EndTogetherAsWell) {
    made = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 32; ++i) {
        threads.emplace_back([] {
            probes().get();
            useTheGenerator();
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(32, made);
    EXPECT_EQ(0, living);
}

TEST(BorderThreads, ShareHandlesToWhatTheLibraryMade) {
    gkPtrHandle<gkRegion> region(new gkRegion({{0, 0}, {4, 0}, {0, 3}}));
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([region] {
            for (int k = 0; k < 1000; ++k) {
                const gkPtrHandle_const<gkContour> copy(region);
                if (copy->label() != 0) ADD_FAILURE();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    threads.clear();
    EXPECT_EQ(1, region->references());
}
