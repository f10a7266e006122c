// Archives of every record there is, in every version, byte by byte.
#ifndef GK_TESTS_HOSTILE_GOLDENS_H
#define GK_TESTS_HOSTILE_GOLDENS_H

#include <string>
#include <vector>

namespace hostile {

struct Golden {
    std::string name;
    std::string kind; // of content.h
    std::vector<unsigned char> bytes;
    // Written today: it is read and written as it stands, and so is whatever else is read from it, unless a
    // version byte has become that of an older record.
    bool isCurrent;
};

const std::vector<Golden>& goldens();

// Hex pieces of the archives, for those that are put together elsewhere.
namespace hex {
std::string number(unsigned long value); // 32 bits
std::string list(unsigned long count);   // the head of a vector
// A new object: its number, its class and its record.
std::string object(unsigned long number, const std::string& name, const std::string& record);
std::string contour(); // records of today's version, of an outline of three vertices
std::string region(const std::string& holes = list(0));
std::string set(const std::string& regions);
std::vector<unsigned char> archive(const std::string& body);
} // namespace hex

} // namespace hostile

#endif
