#include "platform/core/archive/archive_file.h"

#include <filesystem>
#include <fstream>
#include <ios>
#include <system_error>
#include <vector>

namespace {

std::vector<unsigned char> readAll(const std::filesystem::path& path) {
    std::error_code error;
    // A directory opens as a stream on some systems, and a pipe has no size.
    if (!std::filesystem::is_regular_file(path, error)) throw gkArchive::CannotOpen();
    std::ifstream in(path, std::ios::binary);
    if (!in) throw gkArchive::CannotOpen();
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > std::vector<unsigned char>().max_size()) throw gkArchive::ReadFailed();
    std::vector<unsigned char> bytes(static_cast<std::size_t>(size));
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (static_cast<std::uintmax_t>(in.gcount()) != size) throw gkArchive::ReadFailed();
    return bytes;
}

} // namespace

gkArchiveFile::gkArchiveFile(const gkFileName& name, Mode mode)
    : gk_ArchiveBuffer(mode == eLoad ? Direction::eLoad : Direction::eSave,
                       mode == eLoad ? readAll(name.native()) : std::vector<unsigned char>()),
      name_(name) {}

gkArchiveFile::~gkArchiveFile() = default;

void gkArchiveFile::close() {
    if (closed_) return;
    finish();
    if (isSaving()) {
        // A buffer of its own would be the one request for memory that comes after the file has been emptied.
        char room[64];
        std::ofstream out;
        out.rdbuf()->pubsetbuf(room, sizeof room);
        out.open(std::filesystem::path(name_.native()), std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(buffer().data()),
                  static_cast<std::streamsize>(buffer().size()));
        out.close();
        if (!out) throw WriteFailed();
    }
    closed_ = true;
}
