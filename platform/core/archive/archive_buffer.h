/// \file
/// An archive whose bytes are all in memory: what the memory and the file archive have in common.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_BUFFER_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_BUFFER_H

#include "platform/core/archive/archive.h"
#include "platform/export.h"

#include <cstddef>
#include <vector>

/// The bytes of an archive in a vector.
class GKCNTR_API gk_ArchiveBuffer : public gkArchive {
public:
    ~gk_ArchiveBuffer() override;

protected:
    /// Saves, beginning with the header, or loads from `bytes`, whose header is checked: throws NotAnArchive,
    /// UnknownFormat or Truncated.
    explicit gk_ArchiveBuffer(Direction direction, std::vector<unsigned char> bytes = {});

    const std::vector<unsigned char>& buffer() const { return bytes_; }

    void putBytes(const unsigned char* bytes, std::size_t count) override;
    void getBytes(unsigned char* bytes, std::size_t count) override;
    std::size_t bytesLeft() const override;

private:
    std::vector<unsigned char> bytes_;
    std::size_t position_ = 0;
};

#endif
