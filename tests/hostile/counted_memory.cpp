#include "tests/hostile/counted_memory.h"

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

std::size_t used = 0;
std::size_t most = 0;
std::size_t asked = 0;

// Every block begins with its own size; the room keeps what follows aligned for any type.
constexpr std::size_t kRoom = alignof(std::max_align_t);
static_assert(kRoom >= sizeof(std::size_t), "the size fits in front of the block");

void* taken(std::size_t size) {
    auto* const block = static_cast<unsigned char*>(std::malloc(size + kRoom));
    if (!block) throw std::bad_alloc();
    new (block) std::size_t(size);
    used += size;
    ++asked;
    if (used > most) most = used;
    return block + kRoom;
}

void givenBack(void* memory) noexcept {
    if (!memory) return;
    unsigned char* const block = static_cast<unsigned char*>(memory) - kRoom;
    used -= *reinterpret_cast<std::size_t*>(block);
    std::free(block);
}

} // namespace

void* operator new(std::size_t size) { return taken(size); }
void operator delete(void* memory) noexcept { givenBack(memory); }
void operator delete(void* memory, std::size_t) noexcept { givenBack(memory); }

namespace counted {

Memory::Memory() : usedBefore_(used), requestsBefore_(asked) { most = used; }
std::size_t Memory::peak() const { return most - usedBefore_; }
std::size_t Memory::requests() const { return asked - requestsBefore_; }
std::size_t Memory::kept() const { return used - usedBefore_; }

} // namespace counted
