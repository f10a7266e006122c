// What operator new has given out in this program.
#ifndef GK_TESTS_HOSTILE_COUNTED_MEMORY_H
#define GK_TESTS_HOSTILE_COUNTED_MEMORY_H

#include <cstddef>

namespace counted {

// From its construction on: the most bytes that were in use at one time beyond those in use then, and how often
// memory was asked for. One at a time, one thread.
class Memory {
public:
    Memory();
    std::size_t peak() const;
    std::size_t requests() const;
    // Bytes taken since and not given back.
    std::size_t kept() const;

private:
    std::size_t usedBefore_;
    std::size_t requestsBefore_;
};

} // namespace counted

#endif
