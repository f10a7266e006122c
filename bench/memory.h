// What the library holds in memory.
#ifndef GK_BENCH_MEMORY_H
#define GK_BENCH_MEMORY_H

#include <cstddef>
#include <iosfwd>

namespace bench {

// Bytes that operator new has given out and not got back, as malloc rounds them; counted only between these
// two.
void beginCounting();
std::ptrdiff_t countedBytes();
void endCounting();

// An unqueried contour, and what it keeps in addition after each kind of question.
void printMemory(std::ostream& out);

} // namespace bench

#endif
