// One reading of hostile bytes under supervision: how it ended and what it took.
#ifndef GK_TESTS_HOSTILE_READING_H
#define GK_TESTS_HOSTILE_READING_H

#include <cstddef>
#include <string>
#include <vector>

namespace hostile {

struct Reading {
    bool isRead = false;      // to the last byte
    std::string error;        // the class of gkArchive::Errors otherwise
    std::size_t peak = 0;     // bytes of memory in use at one time
    std::size_t requests = 0; // for memory
    std::size_t steps = 0;    // pieces of bytes that were asked for
    std::size_t kept = 0;     // bytes of memory not given back when everything is gone
};

Reading read(const std::string& kind, const std::vector<unsigned char>& bytes);

// Memory beyond 16 bytes for each byte read: the objects in place, an error with its text, tables at their
// least.
constexpr std::size_t kMemoryAnyway = 4096;

// An empty text when a reading of so many bytes stayed within its bounds.
std::string beyondBounds(const Reading& reading, std::size_t bytes);

} // namespace hostile

#endif
