#include "platform/core/archive/archive_memory.h"

#include <utility>

gkArchiveMemory::gkArchiveMemory() : gk_ArchiveBuffer(Direction::eSave) {}

gkArchiveMemory::gkArchiveMemory(std::vector<unsigned char> bytes)
    : gk_ArchiveBuffer(Direction::eLoad, std::move(bytes)) {}

gkArchiveMemory::gkArchiveMemory(const unsigned char* bytes, std::size_t count)
    : gkArchiveMemory(std::vector<unsigned char>(bytes, bytes + count)) {}

gkArchiveMemory::~gkArchiveMemory() = default;
