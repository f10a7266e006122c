#include "tests/memory/failing_new.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

long living = 0;
long failures = 0;
long untilFailure = 0; // 0: no request fails
bool failed = false;
bool lasts = false;

bool isToFail() {
    if (failed) return lasts;
    if (untilFailure == 0 || --untilFailure > 0) return false;
    failed = true;
    return true;
}

void* taken(std::size_t size, std::size_t alignment) {
    if (isToFail()) return nullptr;
    const std::size_t whole = (size + alignment - 1) / alignment * alignment;
    void* const block = std::aligned_alloc(alignment, whole == 0 ? alignment : whole);
    if (block != nullptr) ++living;
    return block;
}

void* takenOrThrown(std::size_t size, std::size_t alignment) {
    void* const block = taken(size, alignment);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void giveBack(void* block) {
    if (block == nullptr) return;
    --living;
    std::free(block);
}

constexpr std::size_t kUsual = alignof(std::max_align_t);

} // namespace

long livingBlocks() { return living; }

long failedRequests() { return failures; }

FailingNew::FailingNew(long k, Shortage shortage) {
    failed = false;
    lasts = shortage == Shortage::eLasting;
    untilFailure = k;
}

FailingNew::~FailingNew() {
    if (failed) ++failures;
    untilFailure = 0;
    failed = false;
}

bool FailingNew::hasFailed() const { return failed; }

void* operator new(std::size_t size) { return takenOrThrown(size, kUsual); }
void* operator new[](std::size_t size) { return takenOrThrown(size, kUsual); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return taken(size, kUsual); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return taken(size, kUsual); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return takenOrThrown(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return takenOrThrown(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { giveBack(block); }
void operator delete[](void* block) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t) noexcept { giveBack(block); }
void operator delete[](void* block, std::size_t) noexcept { giveBack(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { giveBack(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { giveBack(block); }
void operator delete(void* block, std::align_val_t) noexcept { giveBack(block); }
void operator delete[](void* block, std::align_val_t) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { giveBack(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { giveBack(block); }
