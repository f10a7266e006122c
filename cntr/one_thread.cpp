#include "cntr/one_thread.h"

#ifdef GKCNTR_CHECK_THREADS

#include "platform/system/assert.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <thread>

namespace {

// Orders nothing between threads: a user who forgot to would otherwise not be told by a race detector either.
constexpr std::memory_order kRelaxed = std::memory_order_relaxed;

} // namespace

struct gk_OneThread::Mark {
    std::atomic<const void*> shape{nullptr};
    std::atomic<std::thread::id> owner{std::thread::id()};

    static Mark& of(const void* shape) {
        static Mark marks[kPlaces];
        const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(shape));
        return marks[static_cast<std::size_t>((address * 0x9E3779B97F4A7C15u) >> (64 - kBits))];
    }

private:
    static constexpr int kBits = 12;
    static constexpr std::size_t kPlaces = std::size_t{1} << kBits;
};

gk_OneThread::gk_OneThread(const void* shape) {
    Mark& mark = Mark::of(shape);
    const void* found = nullptr;
    if (mark.shape.compare_exchange_strong(found, shape, kRelaxed)) {
        mark.owner.store(std::this_thread::get_id(), kRelaxed);
        mark_ = &mark;
    } else if (found == shape && mark.owner.load(kRelaxed) != std::this_thread::get_id()) {
        // Also where the owner has not signed yet or has just left: it was here a moment ago.
        gstd_assert_("a shape is used by one thread at a time", "cntr/one_thread", __LINE__);
    }
}

gk_OneThread::~gk_OneThread() {
    if (mark_ == nullptr) return;
    mark_->owner.store(std::thread::id(), kRelaxed);
    mark_->shape.store(nullptr, kRelaxed);
}

#endif
