#include "cntr/change_mark.h"

#include <atomic>

namespace {

std::atomic<std::uint64_t> counted{0};

} // namespace

void gk_ChangeMark::noteChange() noexcept {
    if (!set_) return;
    set_ = false;
    counted.fetch_add(1, std::memory_order_relaxed);
}

std::uint64_t gk_ChangeMark::changes() noexcept { return counted.load(std::memory_order_relaxed); }
