#include "tests/border/used_memory.h"

#include <malloc.h>

#ifdef _WIN32

std::size_t usedMemory() {
    std::size_t used = 0;
    _HEAPINFO block = {};
    while (_heapwalk(&block) == _HEAPOK) {
        if (block._useflag == _USEDENTRY) used += block._size;
    }
    return used;
}

bool heapIsSound() { return _heapchk() == _HEAPOK; }

#else

std::size_t usedMemory() { return mallinfo2().uordblks; }

bool heapIsSound() { return true; } // this heap ends the process when it finds damage

#endif
