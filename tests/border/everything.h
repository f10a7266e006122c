// One archive with everything an archive can hold: each kind of value, each class, sharing and nesting.
#ifndef GK_TESTS_BORDER_EVERYTHING_H
#define GK_TESTS_BORDER_EVERYTHING_H

#include <vector>

// The bytes of the archive, built anew.
std::vector<unsigned char> writeEverything();

// The bytes that come out when all of it is read into objects and those are written again. Throws
// gkArchive::Errors when it cannot be read, and std::runtime_error when what was read is not what
// writeEverything() put in.
std::vector<unsigned char> readAndRewrite(const std::vector<unsigned char>& bytes);

#endif
