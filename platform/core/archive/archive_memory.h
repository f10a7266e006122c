/// \file
/// An archive in memory.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_MEMORY_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_MEMORY_H

#include "platform/core/archive/archive_buffer.h"
#include "platform/export.h"

#include <cstddef>
#include <vector>

/// Saves into, or loads from, a vector of bytes.
///
///     gkArchiveMemory out;
///     out || contour;
///     gkArchiveMemory in(out.bytes());
///     in || other;
///     in.finish();
class GKCNTR_API gkArchiveMemory : public gk_ArchiveBuffer {
public:
    /// A saving archive.
    gkArchiveMemory();
    /// A loading archive over `bytes`, which it keeps. Throws NotAnArchive, UnknownFormat or Truncated.
    explicit gkArchiveMemory(std::vector<unsigned char> bytes);
    /// A loading archive over a copy of `count` bytes.
    gkArchiveMemory(const unsigned char* bytes, std::size_t count);
    ~gkArchiveMemory() override;

    /// Everything saved so far, the header included; when loading, all the bytes.
    const std::vector<unsigned char>& bytes() const { return buffer(); }
};

#endif
