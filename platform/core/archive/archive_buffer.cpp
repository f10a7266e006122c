#include "platform/core/archive/archive_buffer.h"

#include <algorithm>
#include <utility>

gk_ArchiveBuffer::gk_ArchiveBuffer(Direction direction, std::vector<unsigned char> bytes)
    : gkArchive(direction), bytes_(std::move(bytes)) {
    open();
}

gk_ArchiveBuffer::~gk_ArchiveBuffer() = default;

void gk_ArchiveBuffer::putBytes(const unsigned char* bytes, std::size_t count) {
    bytes_.insert(bytes_.end(), bytes, bytes + count);
}

void gk_ArchiveBuffer::getBytes(unsigned char* bytes, std::size_t count) {
    std::copy_n(bytes_.data() + position_, count, bytes);
    position_ += count;
}

std::size_t gk_ArchiveBuffer::bytesLeft() const { return bytes_.size() - position_; }
