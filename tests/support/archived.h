// Records as bytes: written, read, and hex text changed in places.
#ifndef GK_TESTS_SUPPORT_ARCHIVED_H
#define GK_TESTS_SUPPORT_ARCHIVED_H

#include "platform/core/archive/archive_memory.h"
#include "tests/support/hex.h"

#include <cstddef>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

// The header of an archive and the record behind it.
inline Bytes withHeader(const std::string& record) {
    Bytes all = gkArchiveMemory().bytes();
    const Bytes bytes = fromHex(record);
    all.insert(all.end(), bytes.begin(), bytes.end());
    return all;
}

// The record of an object in place, with the header.
inline Bytes written(gkPersistent& object) {
    gkArchiveMemory archive;
    archive || object;
    archive.finish();
    return archive.bytes();
}

// Reads the record of an object in place, to the last byte.
inline void load(const Bytes& bytes, gkPersistent& object) {
    gkArchiveMemory archive(bytes);
    archive || object;
    archive.finish();
}

// The hex text with the bytes from `byte` on replaced by those of `value`.
inline std::string atOffset(const std::string& hex, std::size_t byte, const std::string& value) {
    std::string clean;
    for (const char c : hex) {
        if (c != ' ') clean += c;
    }
    return clean.replace(2 * byte, value.size(), value);
}

// The first bytes of a whole.
inline Bytes cut(const Bytes& whole, std::size_t size) {
    return Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
}

#endif
