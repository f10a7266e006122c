// What the process has taken from its heap.
#ifndef GK_TESTS_BORDER_USED_MEMORY_H
#define GK_TESTS_BORDER_USED_MEMORY_H

#include <cstddef>

// Bytes in use in the heap that program and library share; constant where the system does not tell.
std::size_t usedMemory();

// False when the heap's own bookkeeping is damaged.
bool heapIsSound();

#endif
